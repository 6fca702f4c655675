#include "bench/flight/ScriptedFlight.h"

#include "bench/driver/Until.h"
#include "bench/flight/BIPLeg.h"
#include "bench/flight/RadioLeg.h"
#include "bench/flight/StandardLeg.h"
#include "bench/flight/SwitchLeg.h"

namespace bench {

namespace {

// Inside the frame of the upper display, in pixels of the panel's picture.
constexpr RECT kUpperDisplay = {204, 20, 376, 64};
constexpr uint32_t kLightShowsMs = 40000;  // one after the other
constexpr int kGeneralTab = 0;
constexpr int kRadioTab = 1;
constexpr int kMultiTab = 3;
constexpr int kSwitchTab = 5;
constexpr int kBIPTab = 7;

}  // namespace

bool ScriptedFlight::Fly() {
    return Start() && FindSimulator() && OpenWindow() && FlyStandard() && FlyRadios() &&
           FlySwitches() && FlyTiles() && FlyAddOns() && LoseSimulator() && FindSimulatorAgain() &&
           Quit();
}

bool ScriptedFlight::Start() {
    log_.Say("-- the simulator, two panels of each of the four kinds and Orvo are started");
    AddOnLegs(cockpit_, log_).WriteProfiles();
    cockpit_.StartSimulator();
    cockpit_.StartPanels();
    for (const std::string name :
         {"radio1", "radio2", "multi1", "multi2", "switch1", "switch2", "bip1", "bip2"}) {
        const std::string added = cockpit_.Panels("add " + name.substr(0, name.size() - 1));
        if (!log_.Check(name + " is plugged in", added == name, added)) return false;
    }
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
    return ExpectStatus(0, "FSUIPC Status: Connected", kLightShowsMs) &&
           ExpectStatus(1, "FSUIPC Version: 3.9990") &&
           ExpectStatus(2, "Flight Simulator Version: FSX") &&
           ExpectStatus(3, "Aircraft in use: Bench Trainer") &&
           ExpectPanel(PanelShows("05000", "0")) &&
           ExpectPanel(PanelShows("05000", "0"), "multi2") &&
           RadioLeg(cockpit_, log_).ExpectStart() &&
           SwitchLeg(cockpit_, log_).ExpectLights("green") && BIPLeg(cockpit_, log_).ExpectStart();
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
    if (!ExpectProfile("Default")) return false;
    log_.Shot("01-general");
    return SelectTab(kMultiTab);
}

bool ScriptedFlight::SelectTab(int tab) const {
    const HWND tabs = FindChild(cockpit_.MainWindow(), "SysTabControl32", std::nullopt);
    const HWND before = PageButton();
    const bool well = tabs && ClickTab(tabs, tab) && Until(kPatienceMs, [&] {
                          const HWND button = PageButton();
                          return button && button != before;
                      });
    return log_.Check("a click on tab " + std::to_string(tab + 1) + " opens its page", well);
}

HWND ScriptedFlight::PageButton() const {
    const HWND window = cockpit_.MainWindow();
    const HWND setup = FindShownChild(window, "Button", "Setup");
    return setup ? setup : FindShownChild(window, "Button", "Quit");
}

bool ScriptedFlight::ExpectDark() const {
    return ExpectPanel(RadioShows({}, {}), "radio1") && ExpectPanel(RadioShows({}, {}), "radio2") &&
           ExpectPanel(kMultiDark) && ExpectPanel(kMultiDark, "multi2") &&
           SwitchLeg(cockpit_, log_).ExpectLights("off");
}

bool ScriptedFlight::FlyStandard() {
    Do("selector HDG");
    if (!ExpectPanel(PanelShows("080", ""))) return false;
    log_.Shot("02-heading-080");
    display080_ = UpperDisplay();
    if (!StandardLeg(cockpit_, log_).Fly()) return false;
    log_.Shot("03-standard");
    const bool redrawn =
        display080_ != 0 && Until(kPatienceMs, [&] { return UpperDisplay() != display080_; });
    return log_.Check("the display on the screen shows another number", redrawn);
}

bool ScriptedFlight::FlyRadios() { return SelectTab(kRadioTab) && RadioLeg(cockpit_, log_).Fly(); }

bool ScriptedFlight::FlySwitches() {
    return SelectTab(kSwitchTab) && SwitchLeg(cockpit_, log_).Fly();
}

bool ScriptedFlight::FlyTiles() { return SelectTab(kBIPTab) && BIPLeg(cockpit_, log_).Fly(); }

bool ScriptedFlight::FlyAddOns() {
    const std::string tiles = cockpit_.Panels("show bip1");
    if (!AddOnLegs(cockpit_, log_).Fly() || !ExpectPanel(tiles, "bip1") || !SelectTab(kMultiTab)) {
        return false;
    }
    log_.Shot("09-back-to-default");
    return true;
}

uint64_t ScriptedFlight::UpperDisplay() const {
    // The page's picture stands at the main window's page area, the display in it.
    const HWND picture = GetParent(PageButton());
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
    log_.Say("-- the simulator is killed; the BIP Panels alone keep what they show");
    const std::string tiles = cockpit_.Panels("show bip1");
    cockpit_.KillSimulator();
    if (!ExpectStatus(0, "FSUIPC Status: Disconnected") || !ExpectStatus(1, "FSUIPC Version:") ||
        !ExpectStatus(2, "Flight Simulator Version:") || !ExpectStatus(3, "Aircraft in use:") ||
        !ExpectDark() || !ExpectPanel(tiles, "bip1")) {
        return false;
    }
    log_.Shot("10-disconnected");
    return log_.Check("the icon has changed",
                      Until(kPatienceMs, [this] { return PictureOfTrayIcon() != connectedIcon_; }));
}

bool ScriptedFlight::FindSimulatorAgain() {
    log_.Say("-- the simulator is started again");
    cockpit_.StartSimulator();
    if (!ExpectStatus(0, "FSUIPC Status: Connected") ||
        !ExpectStatus(3, "Aircraft in use: Bench Trainer") || !ExpectPanel(PanelShows("080", "")) ||
        !RadioLeg(cockpit_, log_).ExpectStart() || !BIPLeg(cockpit_, log_).ExpectStart()) {
        return false;
    }
    log_.Shot("11-connected-again");
    if (!log_.Check("the display on the screen shows the first number again",
                    Until(kPatienceMs, [this] { return UpperDisplay() == display080_; }))) {
        return false;
    }
    log_.Say("-- the gear lights come back with their next change");
    const SwitchLeg switches(cockpit_, log_);
    if (!switches.ExpectLights("off")) return false;
    Do("gear up", "switch2");
    return switches.ExpectLights("red") &&
           log_.Check("the icon is back",
                      Until(kPatienceMs, [this] { return PictureOfTrayIcon() == connectedIcon_; }));
}

bool ScriptedFlight::Quit() {
    log_.Say("-- the user quits");
    if (!SelectTab(kGeneralTab)) return false;
    log_.Shot("12-general");
    if (!log_.Check("Quit and OK end the program", cockpit_.QuitByUser())) return false;
    const auto code = cockpit_.Orvo().WaitForEnd(0);
    return log_.Check("it has ended in order", code == 0u,
                      code ? "exit code " + std::to_string(*code) : "it runs on") &&
           ExpectDark() && ExpectPanel("tiles dark", "bip1") && ExpectPanel("tiles dark", "bip2");
}

}  // namespace bench
