#include "bench/flight/FlightChecks.h"

#include <algorithm>
#include <sstream>

#include "bench/driver/Until.h"

namespace bench {

namespace {

constexpr size_t kPlaces = 5;
// A hand takes as long to turn back. Sooner, the panel's reports still count for the old direction.
constexpr DWORD kHandPauseMs = 300;

// A point has no place of its own.
std::string Row(const std::string& text) {
    const size_t places = text.size() - static_cast<size_t>(std::ranges::count(text, '.'));
    return '"' + std::string(kPlaces - std::min(kPlaces, places), ' ') + text + '"';
}

std::string Row(const RadioRow& row) {
    const auto told = [](const std::string& text) { return text.empty() ? "dark" : Row(text); };
    return told(row.active) + ' ' + told(row.standby);
}

}  // namespace

std::string PanelShows(const std::string& upper, const std::string& lower,
                       const std::string& lights) {
    return "upper " + Row(upper) + " lower " + Row(lower) + " lights " + lights;
}

std::string GearShows(const std::string& color) {
    return "gear nose " + color + " left " + color + " right " + color;
}

std::string RadioShows(const RadioRow& upper, const RadioRow& lower) {
    return "upper " + Row(upper) + " lower " + Row(lower);
}

void FlightChecks::Do(const std::string& act, const std::string& panel) const {
    const size_t name = act.find(' ');
    cockpit_.Panels(act.substr(0, name) + ' ' + panel + act.substr(name));
    ::Sleep(kHandPauseMs);
}

bool FlightChecks::ExpectPanel(const std::string& shown, const std::string& panel) const {
    const bool well = cockpit_.PanelBecomes(panel, shown, kPatienceMs);
    return log_.Check(panel + ": " + shown, well, well ? "" : cockpit_.Panels("show " + panel));
}

bool FlightChecks::ExpectStatus(size_t panel, const std::string& text,
                                uint32_t milliseconds) const {
    const bool well = cockpit_.StatusBecomes(panel, text, milliseconds);
    std::string found = "there is no status bar";
    if (const auto texts = cockpit_.Status(); texts.size() > panel) found = texts[panel];
    return log_.Check("status bar: " + text, well, found);
}

bool FlightChecks::ExpectProfile(const std::string& name) const {
    const HWND combo = FindChild(cockpit_.MainWindow(), "ComboBox", std::nullopt);
    const bool well = combo && Until(kPatienceMs, [&] { return ComboSelection(combo) == name; });
    return log_.Check("profile in use: " + name, well, combo ? ComboSelection(combo) : "no list");
}

std::string FlightChecks::WritesOf(const std::vector<std::string>& offsets) const {
    std::string writes;
    std::istringstream words(cockpit_.Simulator("writes"));
    for (std::string word; words >> word;) {
        if (std::ranges::find(offsets, word.substr(0, 4)) == offsets.end()) continue;
        writes += (writes.empty() ? "" : " ") + word;
    }
    return writes;
}

bool FlightChecks::ExpectWrites(const std::vector<std::string>& offsets,
                                const std::string& writes) const {
    std::string found;
    const bool well = Until(kPatienceMs, [&] {
        const std::string more = WritesOf(offsets);
        if (!more.empty()) found += (found.empty() ? "" : " ") + more;
        return found.size() >= writes.size();
    });
    return log_.Check("simulator: " + writes, well && found == writes, found);
}

bool FlightChecks::ExpectControls(const std::string& controls) const {
    std::string found;
    const bool well = Until(kPatienceMs, [&] {
        const std::string more = cockpit_.Simulator("controls");
        if (more != "none") found += (found.empty() ? "" : " ") + more;
        return found.size() >= controls.size();
    });
    return log_.Check("simulator: controls " + controls, well && found == controls, found);
}

bool FlightChecks::ChangeAircraft(const std::string& title, const std::string& profile) const {
    cockpit_.Simulator("title \"" + title + '"');
    return ExpectStatus(3, "Aircraft in use: " + title) && ExpectProfile(profile);
}

}  // namespace bench
