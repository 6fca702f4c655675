#include "bench/kills/SavingActs.h"

#include <algorithm>

#include "bench/driver/Until.h"
#include "bench/flight/WindowActs.h"

namespace bench {

namespace {

constexpr uint32_t kSoonMs = 10000;
constexpr char kKnownAircraft[] = "Bench Trainer";
constexpr int kAircraft = 40;

const std::vector<std::vector<SavingAct>> kActs = {
    {{"general options",
      "click threshold",
      {"press Setup", "= ORVO - General Options", "slider $"},
      "press OK",
      "Orvo.ini",
      "[GeneralSetup] ClickThreshold",
      {"600", "700"}}},
    {{"profile lists",
      "new profile",
      {"press Manage Profiles", "= ORVO - Profiles Configuration", "press Add new Profile",
       "type $"},
      "press OK",
      "Orvo.ini",
      "[Profiles] $",
      {"Spare", "Other"}},
     {"profile lists",
      "profile deleted",
      {"press Manage Profiles", "= ORVO - Profiles Configuration", "entry $",
       "press Delete Select. Profile", "= ORVO"},
      "press OK",
      "Orvo.ini",
      "[Profiles] $",
      {"Spare", "Other"}}},
    {{"new aircraft", "bound", {}, nullptr, "Orvo.ini", "[Aircrafts] $", {"New $"}}},
    {{"bindings",
      "Multi Panel",
      {"tab Multi Panel 1", "press Setup", "= ORVO - Multi Panel Configuration", "tab Rotary Knob",
       "tab CRS", "slider $"},
      "press OK",
      "Default.ini",
      "[MultiPanel1] RotaryAccelerationCRS",
      {"5", "6"}},
     {"bindings",
      "Radio Panel",
      {"tab Radio Panel 1", "press Setup", "= ORVO - Radio Panel Configuration", "tab NAV2",
       "tab Outer Knob", "slider $"},
      "press OK",
      "Default.ini",
      "[RadioPanel1] RotAccelerationNAV2",
      {"3", "4"}},
     {"bindings",
      "Switch Panel",
      {"tab Switch Panel 1", "press Setup", "= ORVO - Switch Panel Configuration", "tab Switches",
       "tab De-Ice", "Event when switched ON: list 2 $"},
      "press OK",
      "Default.ini",
      "[SwitchPanel1] SwitchDEICEOn",
      {"6", "7"}},
     {"bindings",
      "BIP Panel",
      {"tab BIP Panel 1", "press Setup", "= ORVO - BIP Panel Configuration", "tile 23", "slider $"},
      "press OK",
      "Default.ini",
      "[BIPPanel1] T23",
      {"20", "21"}}},
    {{"import",
      "two sections",
      {"press Manage Profiles", "= ORVO - Profiles Configuration", "entry Target",
       "press Import data from other profiles", "= ORVO", "entry $", "press Next",
       "press MultiPanel1", "press RadioPanel1", "press Next"},
      "press Ok",
      "Target.ini",
      nullptr,
      {"SourceA", "SourceB"}}},
};

// Entries of bindings, of which `number` makes others.
std::string Sections(int number) {
    std::string text;
    const auto add = [&](const std::string& key, int button) {
        text += key + "=VButton,64," + std::to_string((button + number) % 32 + 1) + "\r\n";
    };
    text += "[MultiPanel1]\r\n";
    int button = 0;
    for (const char* name : {"AP", "HDG", "NAV", "IAS", "ALT", "VS", "APR", "REV"}) {
        add(std::string("ButtonAction") + name, ++button);
        add(std::string("LongButtonAction") + name, ++button);
    }
    text += "RotaryAccelerationCRS=5\r\n[RadioPanel1]\r\n";
    for (const char* name : {"COM1", "COM2", "NAV1", "NAV2"}) {
        add(std::string("InnRotUp") + name, ++button);
        add(std::string("OutRotDown") + name, ++button);
    }
    return text + "RotAccelerationNAV2=3\r\n";
}

// The value that the act writes for a word.
std::string ValueOf(const std::string& entry, const std::string& word) {
    // The list counts from 0.
    if (entry.ends_with("SwitchDEICEOn"))
        return "VButton,64," + std::to_string(std::stoi(word) + 1);
    if (entry.ends_with("T23")) return "LEFT_FUEL_LOW,Green," + word;
    if (entry.starts_with("[Aircrafts]")) return "Default";
    if (entry.starts_with("[Profiles]")) return "";
    return word;
}

bool IsOfImport(const std::string& key) {
    return key.starts_with("[MultiPanel1]") || key.starts_with("[RadioPanel1]");
}

}  // namespace

const std::vector<std::vector<SavingAct>>& SavingActs() { return kActs; }

void WriteFirstFiles(const Cockpit& cockpit) {
    std::string lists =
        "[GeneralSetup]\r\nLoadWithoutPanels=1\r\nClickThreshold=700\r\nSplash=0\r\n; mine\r\n";
    lists += "[Profiles]\r\nSourceA=\r\nSourceB=\r\nTarget=\r\nSpare=\r\n[Aircrafts]\r\n";
    lists += std::string(kKnownAircraft) + "=Default\r\n";
    for (int i = 1; i <= kAircraft; ++i) {
        lists += "Airliner " + std::to_string(i) + (i % 2 ? "=Default\r\n" : "=Target\r\n");
    }
    cockpit.WriteIni(lists);
    const std::string more =
        "[SwitchPanel1]\r\nSwitchDEICEOn=VButton,64,1\r\n"
        "[BIPPanel1]\r\nT0=GEAR_DOWN,Green\r\nT23=LEFT_FUEL_LOW,Green,20\r\n[Mine]\r\nKey=1\r\n";
    cockpit.WriteFile("Default.ini", Sections(0) + more);
    cockpit.WriteFile("SourceA.ini", Sections(1));
    cockpit.WriteFile("SourceB.ini", Sections(2));
    cockpit.WriteFile("Target.ini", Sections(1) + more);
    cockpit.WriteFile("Spare.ini", Sections(3));
}

bool Saving::HasFileMissing() const {
    return before_.files.at("Orvo.ini").contains("[Profiles] " + word_) &&
           !before_.files.contains(word_ + ".ini");
}

bool Saving::IsDeletion() const { return std::string(act_.name) == "profile deleted"; }

Saving::Saving(Cockpit& cockpit, const SavingAct& act, int round) : cockpit_(cockpit), act_(act) {
    before_ = IniFolder::Read(cockpit_.Folder());
    ChooseWord(round);
    if (IsDeletion() && HasFileMissing()) {
        // It would come from a setup window, or from an import.
        cockpit_.WriteFile(word_ + ".ini", Sections(3));
        before_ = IniFolder::Read(cockpit_.Folder());
    }
    wanted_ = With(word_);
}

void Saving::ChooseWord(int round) {
    for (const char* word : act_.words) {
        word_ = word;
        if (const size_t place = word_.find('$'); place != std::string::npos) {
            word_.replace(place, 1, std::to_string(round));
        }
        if (With(word_).files != before_.files) return;
    }
}

std::string Saving::Filled(std::string text) const {
    if (const size_t place = text.find('$'); place != std::string::npos) {
        text.replace(place, 1, word_);
    }
    return text;
}

IniFolder Saving::With(const std::string& word) const {
    IniFolder after = before_;
    IniFolder::Entries& entries = after.files[act_.file];
    if (!act_.entry) {
        std::erase_if(entries, [](const auto& each) { return IsOfImport(each.first); });
        for (const auto& [key, value] : before_.files.at(word + ".ini")) {
            if (IsOfImport(key)) entries[key] = value;
        }
    } else if (IsDeletion()) {
        if (entries.erase(Filled(act_.entry)) != 0) after.files.erase(word + ".ini");
    } else {
        entries[Filled(act_.entry)] = ValueOf(act_.entry, word);
    }
    return after;
}

std::string Saving::Prepare() {
    cockpit_.Simulator(NeedsSimulator() ? "show" : "hide");
    cockpit_.Simulator(std::string("title \"") + kKnownAircraft + '"');
    cockpit_.StartOrvo();
    std::string wrong = OpenMainWindow();
    if (NeedsSimulator() && wrong.empty() &&
        !cockpit_.StatusBecomes(3, std::string("Aircraft in use: ") + kKnownAircraft, kSoonMs)) {
        wrong = "Orvo doesn't find the simulator";
    }
    for (size_t i = 0; i < act_.way.size() && wrong.empty(); ++i) {
        wrong = WalkTo(Filled(act_.way[i]));
    }
    return wrong;
}

// A start without a word of complaint, and with all profiles.
std::string Saving::OpenMainWindow() const {
    // The task bar still has the icons of those that were killed; a click takes one away.
    const bool open = Until(kSoonMs, [this] {
        const HWND front = cockpit_.FrontWindow();
        if (!front) DoubleClickTrayIcon();
        return front != nullptr;
    });
    const HWND front = cockpit_.FrontWindow();
    if (!open) return "Orvo shows no window";
    if (front != cockpit_.MainWindow()) return "Orvo shows '" + TextOf(front) + "'";
    const auto shown = ComboTexts(FindShownChild(front, "ComboBox", std::nullopt));
    size_t inFile = 1;  // Default isn't
    for (const auto& [key, value] : before_.files.at("Orvo.ini")) {
        if (!key.starts_with("[Profiles] ")) continue;
        ++inFile;
        if (std::ranges::find(shown, key.substr(key.find(' ') + 1)) == shown.end()) {
            return "Orvo doesn't list the profile of '" + key + '\'';
        }
    }
    return shown.size() == inFile ? "" : "Orvo lists profiles that are not there";
}

std::string Saving::WalkTo(const std::string& step) const {
    if (step.starts_with("= ")) {
        const std::string title = step.substr(2);
        const bool there = Until(kSoonMs, [&] {
            const std::string text = TextOf(cockpit_.FrontWindow());
            return text.substr(std::min(text.size(), text.find_first_not_of(' '))) == title;
        });
        return there ? "" : "no window '" + title + '\'';
    }
    return WorkWindow(cockpit_, step) ? "" : "no effect: " + step;
}

std::string Saving::Trigger() {
    if (act_.trigger) {
        return WorkWindow(cockpit_, act_.trigger) ? "" : std::string("no effect: ") + act_.trigger;
    }
    const std::string answer = cockpit_.Simulator("title \"" + word_ + '"');
    return answer == "ok" ? "" : "the simulator says '" + answer + '\'';
}

}  // namespace bench
