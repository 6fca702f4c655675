#include "bench/flight/ScriptedFlight.h"

#include <sstream>

#include "base/Number.h"
#include "bench/console/Command.h"
#include "bench/driver/Until.h"

namespace {

// Inside the frame of the upper display, in pixels of the panel's picture.
constexpr RECT kUpperDisplay = {204, 20, 376, 64};
constexpr uint32_t kPatienceMs = 10000;
// A hand takes as long to turn back. Sooner, the panel's reports still count for the old direction.
constexpr DWORD kHandPauseMs = 300;
constexpr char kDark[] = "upper dark lower dark lights none";
constexpr char kAltitudeShown[] = "upper \"05000\" lower \"    0\" lights none";

std::string HeadingShown(const std::string& digits) {
    return "upper \"  " + digits + "\" lower \"     \" lights none";
}

int HeadingNumber(int degrees) { return RoundTo<uint16_t>(degrees * 65536.0 / 360); }

// The little-endian numbers among the log's writes to 0x07CC.
std::vector<int> HeadingWrites(const std::string& writes) {
    std::vector<int> numbers;
    std::istringstream words(writes);
    for (std::string word; words >> word;) {
        if (!word.starts_with("07CC:") || word.size() != 9) continue;
        const auto low = ParseNumber("0x" + word.substr(5, 2), 0, 255);
        const auto high = ParseNumber("0x" + word.substr(7, 2), 0, 255);
        if (low && high) numbers.push_back(static_cast<int>(*high << 8 | *low));
    }
    return numbers;
}

}  // namespace

bool ScriptedFlight::Fly() {
    return Start() && FindSimulator() && OpenWindow() && TurnHeading() && LoseSimulator() &&
           FindSimulatorAgain() && Quit();
}

bool ScriptedFlight::Start() {
    log_.Say("-- the simulator, one Multi Panel and Orvo are started");
    cockpit_.StartSimulator();
    cockpit_.StartPanels();
    const std::string added = cockpit_.Panels("add multi");
    if (!log_.Check("a Multi Panel is plugged in", added == "multi1", added)) return false;
    const std::string batches = cockpit_.Simulator("batches");
    if (!log_.Check("the simulator is up", batches == "0", batches)) return false;
    cockpit_.StartOrvo();
    return log_.Check("Orvo has its window, hidden", Until(kPatienceMs, [this] {
                          const HWND window = cockpit_.MainWindow();
                          return window && !IsWindowVisible(window);
                      }));
}

bool ScriptedFlight::FindSimulator() {
    log_.Say("-- Orvo finds the simulator");
    return ExpectStatus(0, "FSUIPC Status: Connected") &&
           ExpectStatus(1, "FSUIPC Version: 3.9990") &&
           ExpectStatus(2, "Flight Simulator Version: FSX") &&
           ExpectStatus(3, "Aircraft in use: Bench Trainer") && ExpectPanel(kAltitudeShown);
}

bool ScriptedFlight::OpenWindow() {
    log_.Say("-- the window is opened from the notification area");
    connectedIcon_ = PictureOfTrayIcon();
    DoubleClickTrayIcon();
    const HWND window = cockpit_.MainWindow();
    if (!log_.Check("a double click on the icon shows the window",
                    Until(kPatienceMs, [&] { return IsWindowVisible(window) != 0; }))) {
        return false;
    }
    log_.Shot("1-general");
    const HWND tabs = FindChild(window, "SysTabControl32", std::nullopt);
    return log_.Check("the second tab is clicked", tabs && ClickTab(tabs, 1));
}

bool ScriptedFlight::TurnHeading() {
    log_.Say("-- the heading is turned");
    cockpit_.Panels("selector multi1 HDG");
    if (!ExpectPanel(HeadingShown("080"))) return false;
    log_.Shot("2-heading-080");
    display080_ = UpperDisplay();

    cockpit_.Simulator("writes");
    cockpit_.Panels("knob multi1 +3 60");
    if (!ExpectPanel(HeadingShown("083")) || !ExpectHeadings({81, 82, 83})) return false;
    log_.Shot("3-heading-083");
    const bool redrawn =
        display080_ != 0 && Until(kPatienceMs, [&] { return UpperDisplay() != display080_; });
    if (!log_.Check("the display on the screen shows another number", redrawn)) return false;

    ::Sleep(kHandPauseMs);
    cockpit_.Panels("knob multi1 -1 60");
    return ExpectPanel(HeadingShown("082")) && ExpectHeadings({82});
}

uint64_t ScriptedFlight::UpperDisplay() {
    // The page's picture stands at the main window's page area, the display in it.
    const HWND setup = FindChild(cockpit_.MainWindow(), "Button", "Setup");
    const HWND picture = GetParent(setup);
    uint64_t last = 0;
    uint64_t shown = 0;
    Until(kPatienceMs, [&] {
        last = shown;
        shown = PictureOf(picture, kUpperDisplay);
        return shown != 0 && shown == last;
    });
    return shown;
}

bool ScriptedFlight::LoseSimulator() {
    log_.Say("-- the simulator is killed");
    cockpit_.KillSimulator();
    if (!ExpectStatus(0, "FSUIPC Status: Disconnected") || !ExpectStatus(1, "FSUIPC Version:") ||
        !ExpectStatus(2, "Flight Simulator Version:") || !ExpectStatus(3, "Aircraft in use:") ||
        !ExpectPanel(kDark)) {
        return false;
    }
    log_.Shot("4-disconnected");
    return log_.Check("the icon has changed",
                      Until(kPatienceMs, [this] { return PictureOfTrayIcon() != connectedIcon_; }));
}

bool ScriptedFlight::FindSimulatorAgain() {
    log_.Say("-- the simulator is started again");
    cockpit_.StartSimulator();
    if (!ExpectStatus(0, "FSUIPC Status: Connected") ||
        !ExpectStatus(3, "Aircraft in use: Bench Trainer") || !ExpectPanel(HeadingShown("080"))) {
        return false;
    }
    log_.Shot("5-connected-again");
    if (!log_.Check("the display on the screen shows the first number again",
                    Until(kPatienceMs, [this] { return UpperDisplay() == display080_; }))) {
        return false;
    }
    return log_.Check("the icon is back",
                      Until(kPatienceMs, [this] { return PictureOfTrayIcon() == connectedIcon_; }));
}

bool ScriptedFlight::Quit() {
    log_.Say("-- the user quits");
    if (!log_.Check("Quit and OK end the program", cockpit_.QuitByUser())) return false;
    const auto code = cockpit_.Orvo().WaitForEnd(0);
    return log_.Check("it has ended in order", code == 0u,
                      code ? "exit code " + std::to_string(*code) : "it runs on") &&
           ExpectPanel(kDark);
}

bool ScriptedFlight::ExpectStatus(size_t panel, const std::string& text) {
    const bool well = cockpit_.StatusBecomes(panel, text, kPatienceMs);
    std::string found = "there is no status bar";
    if (const auto texts = cockpit_.Status(); texts.size() > panel) found = texts[panel];
    return log_.Check("status bar: " + text, well, found);
}

bool ScriptedFlight::ExpectPanel(const std::string& shown) {
    const bool well = cockpit_.PanelBecomes("multi1", shown, kPatienceMs);
    return log_.Check("panel: " + shown, well, well ? "" : cockpit_.Panels("show multi1"));
}

// What reached the simulator since it was asked last, to the write.
bool ScriptedFlight::ExpectHeadings(const std::vector<int>& degrees) {
    std::vector<int> expected;
    std::string step = "simulator: heading";
    for (const int each : degrees) {
        expected.push_back(HeadingNumber(each));
        step += ' ' + std::to_string(each);
    }
    const std::string writes = cockpit_.Simulator("writes");
    const std::string heading = cockpit_.Simulator("get 0x07CC 2");
    return log_.Check(
        step + " (" + writes + ")",
        HeadingWrites(writes) == expected && heading == std::to_string(expected.back()),
        "0x07CC holds " + heading);
}
