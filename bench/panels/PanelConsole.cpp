#include "bench/panels/PanelConsole.h"

#include <algorithm>
#include <cstdlib>
#include <span>

#include "base/Number.h"

namespace bench {

namespace {

constexpr int64_t kLongestPauseMs = 60000;
constexpr int64_t kDefaultHoldMs = 50;
constexpr int64_t kDefaultSpacingMs = 20;
constexpr int kPulsesPerStep = 2;
constexpr int64_t kMostPerSecond = 10000;
constexpr int64_t kLongestFloodS = 3600;

std::optional<uint32_t> Milliseconds(std::string_view text, int64_t fallback) {
    if (text.empty()) return static_cast<uint32_t>(fallback);
    const auto value = ParseNumber(text, 0, kLongestPauseMs);
    if (!value) return std::nullopt;
    return static_cast<uint32_t>(*value);
}

std::string Hex(const std::string& report) {
    return HexText(std::span(reinterpret_cast<const uint8_t*>(report.data()), report.size()));
}

}  // namespace

std::string PanelConsole::Answer(const Command& command) {
    if (command.name == "add") return Add(command);
    if (command.name == "list") return List();
    if (command.name == "flooding") return Flooding();
    const auto found = panels_.find(command.Argument(0));
    if (found == panels_.end()) {
        return "error: '" + command.name + "' needs a panel that is there, such as multi1";
    }
    VirtualPanel& panel = *found->second;
    if (command.name == "show") return panel.Show();
    if (command.name == "raw") return Raw(panel, command);
    if (command.name == "reports") return Reports(panel, false);
    if (command.name == "times") return Reports(panel, true);
    if (command.name == "slow") return Slow(panel, command);
    if (command.name == "flood") return Flood(found->second, command);
    if (command.name == "flooded") return Flooded(found->first);
    if (command.name == "hang") {
        bus_.SetAnswerTime(panel, PanelBus::kNever);
        return "ok";
    }
    if (command.name == "unplug") {
        floods_.erase(found->first);
        bus_.Unplug(panel);
        panels_.erase(found);
        return "ok";
    }
    return Move(panel, command);
}

std::string PanelConsole::Add(const Command& command) {
    const PanelKind* kind = FindPanelKind(command.Argument(0));
    if (!kind) return "error: add multi|radio|switch|bip [NUMBER]";
    int64_t number = 1;
    if (command.arguments.size() > 1) {
        const auto given = ParseNumber(command.Argument(1), 1, 9);
        if (!given) return "error: a panel's number is 1 to 9";
        number = *given;
    } else {
        while (number < 9 && panels_.contains(std::string(kind->name) + std::to_string(number))) {
            ++number;
        }
    }
    auto panel = std::make_shared<VirtualPanel>(*kind, static_cast<int>(number));
    const std::string name = panel->Name();
    if (panels_.contains(name)) return "error: " + name + " is there already";
    if (!bus_.PlugIn(panel)) return "error: " + name + " can't be plugged in";
    panels_.emplace(name, std::move(panel));
    return name;
}

std::string PanelConsole::List() {
    std::string text;
    for (const auto& [name, panel] : panels_) {
        if (!text.empty()) text += ' ';
        text += name + ':' + std::to_string(bus_.Readers(*panel));
    }
    return text.empty() ? "none" : text;
}

std::string PanelConsole::Reports(VirtualPanel& panel, bool withTimes) {
    std::string text;
    for (const VirtualPanel::Feature& feature : panel.TakeFeatures()) {
        if (!text.empty()) text += ' ';
        const std::chrono::duration<double, std::milli> time = feature.time.time_since_epoch();
        if (withTimes) text += FormatPlain(time.count(), 3) + ':';
        text += Hex(feature.report);
    }
    return text.empty() ? "none" : text;
}

std::string PanelConsole::Slow(VirtualPanel& panel, const Command& command) {
    const auto time = ParseNumber(command.Argument(1), 0, kLongestPauseMs);
    if (!time) return "error: slow PANEL MILLISECONDS";
    bus_.SetAnswerTime(panel, std::chrono::milliseconds(*time));
    return "ok";
}

std::string PanelConsole::Flood(const std::shared_ptr<VirtualPanel>& panel,
                                const Command& command) {
    const auto rate = ParseNumber(command.Argument(1), 1, kMostPerSecond);
    const auto seconds = ParseNumber(command.Argument(2), 1, kLongestFloodS);
    const std::string_view what = command.Argument(3);
    const PanelControl* control = FindPanelControl(panel->Kind().name, what, std::nullopt);
    if (!rate || !seconds || (!control && what != "random")) {
        return "error: flood PANEL RATE SECONDS random|CONTROL";
    }
    floods_.erase(panel->Name());
    floods_.try_emplace(panel->Name(), bus_, panel,
                        PanelFlood::Settings{static_cast<uint32_t>(*rate),
                                             static_cast<uint32_t>(*seconds), control});
    return "ok";
}

std::string PanelConsole::Flooding() {
    std::string text;
    for (const auto& [name, flood] : floods_) {
        if (!flood.IsRunning()) continue;
        if (!text.empty()) text += ' ';
        text += name;
    }
    return text.empty() ? "none" : text;
}

std::string PanelConsole::Flooded(const std::string& name) {
    const auto found = floods_.find(name);
    if (found == floods_.end()) return "none";
    const PanelFlood::Count count = found->second.Counted();
    return std::to_string(count.sent) + " sent, " + std::to_string(count.refused) + " refused";
}

std::string PanelConsole::Raw(VirtualPanel& panel, const Command& command) {
    VirtualPanel::Report report{};
    if (command.arguments.size() != report.size() + 1) return "error: raw PANEL B0 B1 B2 B3";
    for (size_t i = 0; i < report.size(); ++i) {
        const auto byte = ParseNumber(command.Argument(i + 1), 0, 255);
        if (!byte) return "error: a byte is 0 to 255";
        report[i] = static_cast<uint8_t>(*byte);
    }
    const uint32_t state =
        static_cast<uint32_t>(report[1] << 16) | static_cast<uint32_t>(report[2] << 8) | report[3];
    panel.Change(state, 0xFFFFFF);
    bus_.Send(panel, report);
    return "ok";
}

std::string PanelConsole::Move(VirtualPanel& panel, const Command& command) {
    const std::string_view kind = panel.Kind().name;
    const PanelControl* any = FindPanelControl(kind, command.name, std::nullopt);
    if (!any) return "error: unknown command '" + command.name + "' for " + panel.Name();
    if (any->act == PanelAct::Turn) return Turn(panel, command);
    const PanelControl* control = FindPanelControl(kind, command.name, command.Argument(1));
    if (!control) {
        return "error: " + panel.Name() + " has no " + command.name + " '" +
               std::string(command.Argument(1)) + "'";
    }
    const auto hold = Milliseconds(command.Argument(2), kDefaultHoldMs);
    if (!hold) return "error: a time is 0 to 60000 ms";
    Send(panel, control->bits, control->mask);
    if (control->act == PanelAct::Press) {
        bus_.Pause(*hold);
        Send(panel, 0, control->mask);
    }
    return "ok";
}

std::string PanelConsole::Turn(VirtualPanel& panel, const Command& command) {
    const auto steps = ParseNumber(
        command.Argument(1).starts_with('+') ? command.Argument(1).substr(1) : command.Argument(1),
        -100, 100);
    const auto spacing = Milliseconds(command.Argument(2), kDefaultSpacingMs);
    if (!steps || *steps == 0 || !spacing) {
        return "error: " + command.name + " PANEL +STEPS|-STEPS [MILLISECONDS]";
    }
    const PanelControl* control =
        FindPanelControl(panel.Kind().name, command.name, *steps > 0 ? "+" : "-");
    for (int64_t pulse = std::abs(*steps) * kPulsesPerStep; pulse > 0; --pulse) {
        Send(panel, control->bits, control->mask);
        Send(panel, 0, control->mask);
        if (pulse > 1) bus_.Pause(*spacing);
    }
    return "ok";
}

void PanelConsole::Send(VirtualPanel& panel, uint32_t bits, uint32_t mask) {
    bus_.Send(panel, panel.Change(bits, mask));
}

}  // namespace bench
