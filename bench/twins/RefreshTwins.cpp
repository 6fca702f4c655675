// Two cockpits live through the same flight of random inputs. In one every value counts as changed
// at every tick, so that all is worked out again; the other works out what it has to. What they
// send to panels and simulator must be the same at each tick.
#include <array>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>
#include <vector>

#include "bench/virtual/VirtualCockpit.h"

namespace {

constexpr int kSteps = 600;

// Bound has an action of each kind, and all modes of the Radio Panel that the others don't have.
constexpr const char* kBound =
    "[Common]\r\nSpecialMode=none\r\n"
    "[MultiPanel1]\r\nRotUpActionHDG=VButton,64,1\r\nSelectorActionHDG=VKey,65,0,65\r\n"
    "ButtonActionAP=VButton,65,2\r\nCourseSel=0\r\n"
    "[RadioPanel1]\r\nADFMode=2\r\nDMEMode=2\r\nAltimeterUnit=1\r\nButtonActionCOM1=VKey,66,2,"
    "66\r\n"
    "[RadioPanel2]\r\nADFMode=4\r\nInnRotUpCOM1=VButton,66,3\r\n"
    "[SwitchPanel1]\r\nRetractableGear=0\r\n";

std::string Profile(const std::string& mode) {
    const std::string radios = "[RadioPanel1]\r\nADFMode=5\r\n[RadioPanel2]\r\nADFMode=" +
                               std::to_string(mode.size() % 3) + "\r\n";
    return "[Common]\r\nSpecialMode=" + mode + "\r\n" + radios;
}

std::string Tiles(int panel, size_t function) {
    std::string text = "[BIPPanel" + std::to_string(panel) + "]\r\n";
    for (int tile = 0; tile < kBIPTiles; ++tile) {
        do {
            function = (function + 1) % TileFunctions.size();
        } while (TileFunctions[function].Name.empty());
        text.append("T").append(std::to_string(tile)).append("=");
        text.append(TileFunctions[function].Key.Text()).append("\r\n");
    }
    return text;
}

std::vector<OffsetRow> AllRows() {
    std::vector<OffsetRow> rows = {{"", 0x281C, 4}, {"", 0x2E80, 4}, {"", 0x060C, 2}};
    rows.insert(rows.end(), std::begin(kMultiOffsets), std::end(kMultiOffsets));
    rows.insert(rows.end(), kRadioOffsets.begin(), kRadioOffsets.end());
    rows.insert(rows.end(), kSwitchOffsets.begin(), kSwitchOffsets.end());
    rows.insert(rows.end(), kTileOffsets.begin(), kTileOffsets.end());
    return rows;
}

struct Twin : VirtualCockpit {
    explicit Twin(bool anew) : anew_(anew) {
        for (const int number : {1, 2}) {
            for (const PanelIdentity& identity : kPanelIdentities) {
                panels.push_back(&Plug(identity.kind, number));
            }
        }
        const std::string tiles = Tiles(1, 0) + Tiles(2, 30);
        PutProfile("Plain", Profile("none") + tiles);
        PutProfile("Bound", kBound + Tiles(1, 45) + Tiles(2, 15));
        PutProfile("Airliner", Profile("ngx") + tiles);
        PutProfile("Jet", Profile("maddog") + Tiles(1, 10) + Tiles(2, 50));
        Start(
            "Splash=0\r\nClickThreshold=100\r\n"
            "[Profiles]\r\nPlain= \r\nBound= \r\nAirliner= \r\nJet= \r\n"
            "[Aircrafts]\r\nBaron=Plain\r\nCub=Bound\r\nTwin=Airliner\r\nMD=Jet\r\n");
        writing_ =
            machine.server.Writing.Connect([this](uint32_t offset, std::span<const uint8_t> bytes) {
                seen_ += " w" + std::to_string(offset);
                for (const uint8_t byte : bytes) seen_ += ':' + std::to_string(byte);
            });
    }

    void Tick() {
        if (anew_) program->Session.OffsetTable.ChangeAll();
        VirtualCockpit::Tick();
    }

    // What was sent since the last call.
    std::string TakeSeen() {
        std::string seen = std::move(seen_);
        seen_.clear();
        for (VirtualDevice* panel : panels) {
            for (const auto& report : panel->featureReports) {
                seen += ' ' + panel->path;
                for (const uint8_t byte : report) seen += ':' + std::to_string(byte);
            }
            panel->featureReports.clear();
        }
        seen += " keys " + std::to_string(machine.keyboard.typed.size());
        for (const int number : {1, 2}) seen += ' ' + Shown(number);
        return seen;
    }

    std::vector<VirtualDevice*> panels;

  private:
    const bool anew_;
    std::string seen_;
    ScopedConnection writing_;
};

// Does the same things to both cockpits.
class Flight {
  public:
    explicit Flight(uint32_t seed) : random_(seed) {}

    // False, after having told it, where the two differ.
    bool Fly() {
        Both([](Twin& twin) { twin.Connect(); });
        for (int step = 0; step < kSteps; ++step) {
            for (uint32_t acts = Below(3); acts > 0; --acts) Act();
            Both([](Twin& twin) { twin.Tick(); });
            const std::string asIs = twins_[0].TakeSeen();
            const std::string anew = twins_[1].TakeSeen();
            if (asIs == anew) continue;
            std::printf("at step %d after '%s'\n  as is: %s\n  anew:  %s\n", step, act_,
                        asIs.c_str(), anew.c_str());
            return false;
        }
        return true;
    }

  private:
    template <class Call>
    void Both(Call call) {
        for (Twin& twin : twins_) call(twin);
    }
    uint32_t Below(uint32_t count) { return static_cast<uint32_t>(random_() % count); }

    void Act() {
        constexpr struct {
            const char* name;
            uint32_t share;
            void (Flight::*act)();
        } kActs[] = {
            {"report", 60, &Flight::Report},      {"value", 60, &Flight::Value},
            {"knob", 40, &Flight::Knob},          {"press", 30, &Flight::Press},
            {"power", 6, &Flight::Power},         {"profile", 2, &Flight::Profile},
            {"title", 2, &Flight::Title},         {"session", 2, &Flight::Session},
            {"short reply", 4, &Flight::Shorten}, {"refusal", 4, &Flight::Refuse},
            {"window", 4, &Flight::Window},       {"bindings", 2, &Flight::Bindings},
            {"engine", 3, &Flight::Engine},       {"pause", 8, &Flight::Pause},
        };
        uint32_t choice = Below(227);
        for (const auto& each : kActs) {
            if (choice < each.share) {
                act_ = each.name;
                (this->*each.act)();
                return;
            }
            choice -= each.share;
        }
    }

    // Turns a bit of a panel's state over; of a selector's position another one is taken.
    void Report() {
        const uint32_t panel = Below(static_cast<uint32_t>(states_.size()));
        auto& state = states_[panel];
        const bool selector = Below(2) == 0;
        if (selector && panel % 4 == 0) {
            state[1] = static_cast<uint8_t>(1U << Below(7));
            state[2] = static_cast<uint8_t>((state[2] & 0xC0U) | 1U << Below(6));
        } else if (selector) {
            state[1] = static_cast<uint8_t>(1U << Below(5));
        } else {
            state[1 + Below(3)] ^= static_cast<uint8_t>(1U << Below(8));
        }
        Send(panel);
    }

    void Send(uint32_t panel) {
        const auto state = states_[panel];
        Both([&](Twin& twin) {
            twin.panels[panel]->positions.assign(state.begin(), state.end());
            twin.panels[panel]->SendReport({state[0], state[1], state[2], state[3]});
        });
    }

    // A step of a Radio or Multi Panel's knob.
    void Knob() {
        const bool multi = Below(2) == 0;
        const uint32_t panel = 4 * Below(2) + (multi ? 1 : 0);
        const size_t byte = multi ? 1 : 3;
        const auto bit = static_cast<uint8_t>(multi ? 0x20U << Below(2) : 1U << Below(8));
        for (int pulse = 0; pulse < 4; ++pulse) {
            states_[panel][byte] ^= bit;
            Send(panel);
        }
    }

    // Radio Panels mostly, where a button's press shows at once. Some are long.
    void Press() {
        const bool multi = Below(4) == 0;
        const uint32_t panel = 4 * Below(2) + (multi ? 1 : 0);
        const auto bit = static_cast<uint8_t>(multi ? 1U << Below(8) : 0x40U << Below(2));
        const uint32_t ticks = Below(3) == 0 ? 15 : Below(2);
        states_[panel][2] ^= bit;
        Send(panel);
        Both([ticks](Twin& twin) {
            for (uint32_t i = 0; i < ticks; ++i) twin.Tick();
        });
        states_[panel][2] ^= bit;
        Send(panel);
    }

    void Value() {
        static const std::vector<OffsetRow> kRows = AllRows();
        const OffsetRow& row = kRows[3 + Below(static_cast<uint32_t>(kRows.size() - 3))];
        Put(row, Below(3) == 0 ? random_() : uint64_t{Below(3)});
    }

    void Put(const OffsetRow& row, uint64_t value) {
        Both([&](Twin& twin) {
            OffsetServer& server = twin.machine.server;
            const auto offset = static_cast<uint32_t>(row.offset);
            switch (row.dataType) {
                case 1:
                    return server.Set<uint8_t>(offset, static_cast<uint8_t>(value));
                case 2:
                case 3:
                    return server.Set<uint16_t>(offset, static_cast<uint16_t>(value));
                case 7:
                    return server.Set<float>(offset, static_cast<float>(value % 1000));
                case 8:
                    return server.Set<double>(offset, static_cast<double>(value % 10));
                default:
                    return server.Set<uint32_t>(offset, static_cast<uint32_t>(value));
            }
        });
    }

    // Mostly on.
    void Power() { Put(AllRows()[Below(3)], Below(4) == 0 ? 0 : 1); }

    void Profile() {
        const int32_t profile = static_cast<int32_t>(Below(4));
        Both([&](Twin& twin) { twin.Window().cmbProfiles.SetListIndex(profile); });
    }

    // A value changes with the title, in the tick that brings both.
    void Title() {
        const char* const title = std::array{"Baron", "Cub", "Twin", "MD"}[Below(4)];
        Both([title](Twin& twin) { twin.SetTitle(title); });
        Value();
        if (Below(2) == 0) Shorten();
    }

    void Session() {
        const uint32_t ticks = 1 + Below(4);
        const bool shortened = Below(2) == 0;
        Both([&](Twin& twin) {
            twin.machine.ipc.RemoveWindows();
            for (uint32_t i = 0; i < ticks; ++i) twin.Tick();
            twin.Connect();
        });
        if (shortened) Shorten();
    }

    // The reply to the next tick ends early.
    void Shorten() {
        const uint32_t records = Below(60);
        Both([&](Twin& twin) {
            twin.machine.ipc.AfterServing([&twin, records](std::span<uint8_t> block) {
                size_t at = 0;
                for (uint32_t i = 0; i < records && block[at] != 0; ++i) {
                    at += (block[at] == 1 ? 16U : 12U) + block[at + 8] + 256U * block[at + 9];
                }
                block[at] = 0;
                twin.machine.ipc.AfterServing({});
            });
        });
    }

    void Refuse() {
        const int times = static_cast<int>(1 + Below(3));
        Both([&](Twin& twin) { twin.machine.hid.Refuse(HidCall::SetFeature, times); });
    }

    // The tiles' setup window opens, gives the panel colours of its own, and closes.
    void Window() {
        const uint32_t ticks = Below(3);
        const auto tile = static_cast<int16_t>(Below(kBIPTiles));
        Both([&](Twin& twin) {
            twin.program->Windows.BIPSetupOpen = true;
            twin.BIP().TurnTile(tile, LampColor::kRed);
            for (uint32_t i = 0; i < ticks; ++i) twin.Tick();
            twin.program->Windows.BIPSetupOpen = false;
        });
    }

    // A setup window has changed the bindings of a panel.
    void Bindings() {
        const uint32_t choice = Below(3);
        const uint32_t panel = Below(4);
        Both([&](Twin& twin) {
            const std::string number = std::to_string(choice);
            const std::string profile = twin.program->Profiles.CurrentProfile;
            twin.PutProfile(profile, "[RadioPanel1]\r\nDMEMode=" + number +
                                         "\r\nAltimeterUnit=" + number + "\r\nADFMode=" + number +
                                         "\r\n[MultiPanel1]\r\nCourseSel=" + number +
                                         "\r\n[SwitchPanel1]\r\nRetractableGear=" + number +
                                         "\r\n" + Tiles(1, choice));
            PanelUnit& unit = twin.Unit(static_cast<PanelKind>(panel), 1);
            unit.logic->LoadSetup();
            if (unit.kind != PanelKind::Switch) unit.logic->SetupChanged();
            if (unit.kind == PanelKind::Multi) twin.RadioLogic(2).SetupChanged();
        });
    }

    void Engine() {
        const auto engine = static_cast<uint8_t>(1 + Below(4));
        const auto version = static_cast<uint8_t>(7 + Below(2));
        Both([&](Twin& twin) {
            twin.program->Session.EngineSelected = engine;
            twin.program->Session.FSVersion = version;
        });
    }

    // Long enough for a long press.
    void Pause() {
        Both([](Twin& twin) {
            for (int i = 0; i < 60; ++i) twin.Tick();
        });
    }

    std::mt19937_64 random_;
    std::array<Twin, 2> twins_{Twin(false), Twin(true)};
    std::array<std::array<uint8_t, 4>, 8> states_{};
    const char* act_ = "nothing";
};

}  // namespace

// Arguments: the first seed, and how many.
int main(int argc, char** argv) {
    const auto first = static_cast<uint32_t>(argc > 1 ? std::atoi(argv[1]) : 1);
    const auto count = static_cast<uint32_t>(argc > 2 ? std::atoi(argv[2]) : 25);
    for (uint32_t seed = first; seed < first + count; ++seed) {
        if (Flight(seed).Fly()) continue;
        std::printf("the twins of seed %u differ\n", seed);
        return 1;
    }
    std::printf("%u flights of %d steps, and no difference\n", count, kSteps);
    return 0;
}
