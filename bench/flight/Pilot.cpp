#include "bench/flight/Pilot.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <optional>
#include <sstream>

#include "bench/driver/Until.h"

namespace bench {

namespace {

// The light shows of eight panels come one after the other.
constexpr uint32_t kPatienceMs = 40000;
constexpr uint32_t kWindowTimeMs = 10000;
// A hand takes as long to turn back. Sooner, the panel's reports still count for the old direction.
constexpr DWORD kHandPauseMs = 300;
constexpr char kSlider[] = "msctls_trackbar32";
constexpr const char* kTabs[] = {"General", "Radio", "", "Multi", "", "Switch", "", "BIP"};

constexpr struct {
    const char* who;
    const char* act;
    void (Cockpit::*run)();
} kPrograms[] = {
    {"simulator", "start", &Cockpit::StartSimulator},
    {"simulator", "kill", &Cockpit::KillSimulator},
    {"panels", "start", &Cockpit::StartPanels},
    {"orvo", "start", &Cockpit::StartOrvo},
};

// Each page has one of its own. The general one has both, with "Setup" inside a frame of its own.
HWND PageButton(const Cockpit& cockpit) {
    const HWND window = cockpit.MainWindow();
    const HWND quit = FindShownChild(window, "Button", "Quit");
    return quit ? quit : FindShownChild(window, "Button", "Setup");
}

// Inside the frame of the Multi Panel's upper display, in pixels of its picture.
RECT UpperDisplay() {
    constexpr int kUsualDpi = 96;
    const HDC screen = GetDC(nullptr);
    const int dpi = GetDeviceCaps(screen, LOGPIXELSY);
    ReleaseDC(nullptr, screen);
    const auto scaled = [dpi](int pixels) { return MulDiv(pixels, dpi, kUsualDpi); };
    return {scaled(204), scaled(20), scaled(376), scaled(64)};
}

bool OpenTab(const Cockpit& cockpit, const std::string& name) {
    const auto tab = std::ranges::find(kTabs, name) - std::begin(kTabs);
    const HWND tabs = FindChild(cockpit.MainWindow(), "SysTabControl32", std::nullopt);
    const HWND before = PageButton(cockpit);
    return tabs && ClickTab(tabs, static_cast<int>(tab)) && Until(kWindowTimeMs, [&] {
               const HWND button = PageButton(cockpit);
               return button && button != before;
           });
}

// What `look` gives once that has come to rest. Windows are painted late, and piece by piece.
uint64_t AtRest(const std::function<uint64_t()>& look) {
    constexpr int kLooks = 8;
    uint64_t picture = 0;
    int same = 0;
    Until(kWindowTimeMs, [&] {
        const uint64_t now = look();
        same = now != 0 && now == picture ? same + 1 : 0;
        picture = now;
        return same == kLooks;
    });
    return picture;
}

// The display is that in the picture of the open page.
uint64_t TakePicture(const Cockpit& cockpit, const std::string& who) {
    return AtRest([&] {
        return who == "icon" ? PictureOfTrayIcon()
                             : PictureOf(GetParent(PageButton(cockpit)), UpperDisplay());
    });
}

std::string OrvoState(Cockpit& cockpit) {
    if (const HWND window = cockpit.MainWindow()) {
        return IsWindowVisible(window) ? "window open" : "window hidden";
    }
    const auto code = cockpit.Orvo().WaitForEnd(0);
    return code ? "ended with " + std::to_string(*code) : "no window";
}

std::string WindowTitle(const Cockpit& cockpit) {
    const std::string title = TextOf(cockpit.FrontWindow());
    return title.substr(std::min(title.size(), title.find_first_not_of(' ')));
}

// It may be that the window is still to come.
bool WorkWindow(const Cockpit& cockpit, const std::string& act) {
    const std::string verb = act.substr(0, act.find(' '));
    const std::string argument = act.substr(std::min(act.size(), verb.size() + 1));
    HWND control = nullptr;
    const auto comes = [&](const char* kind, const std::optional<std::string>& text = {}) {
        return Until(kWindowTimeMs, [&] {
            return (control = FindShownChild(cockpit.FrontWindow(), kind, text)) != nullptr;
        });
    };
    if (verb == "press" && comes("Button", argument)) {
        PressButton(control);
        return true;
    }
    const int number = std::atoi(argument.c_str());
    if (verb == "slider") return comes(kSlider) && MoveSlider(control, number);
    return verb == "tab" && comes("SysTabControl32") && ClickTab(control, number - 1);
}

std::string AircraftList(const Cockpit& cockpit) {
    std::string list = cockpit.ReadFile("Orvo.ini").value_or("");
    list.erase(0, list.find("[Aircrafts]"));
    list.erase(std::min(list.size(), list.find("\n[") + 1));
    std::erase(list, '\r');
    std::ranges::replace(list, '\n', ' ');
    return list;
}

}  // namespace

bool Pilot::Fly(const std::vector<Step>& steps) {
    return std::ranges::all_of(steps, [this](const Step& step) {
        if (step.who == "--") {
            log_.Say("-- " + step.act);
            return true;
        }
        std::istringstream names(step.who);
        bool well = true;
        for (std::string who; well && names >> who;) well = Take(who, step);
        return well;
    });
}

bool Pilot::Take(const std::string& who, const Step& step) {
    const bool controls = step.simulator.starts_with("controls");
    std::string got;
    const auto take = [&] {
        const std::string news = cockpit_.Simulator(controls ? "controls" : "writes");
        if (news != "none") got += ' ' + news;
        return controls ? "controls" + got : got.substr(std::min<size_t>(1, got.size()));
    };
    if (!step.simulator.empty()) take();
    got.clear();  // what came before the act doesn't count

    std::istringstream acts(step.act);
    std::string name = who;
    for (std::string act; std::getline(acts >> std::ws, act, ';');) {
        name += (name == who ? ", " : "; ") + act;
        const std::string answer = Do(who, act);
        if (answer.starts_with("error")) return log_.Check(name, false, answer);
    }
    if ((step.shows + step.simulator).empty()) return log_.Check(name, true);
    return Becomes(name + ": ", step.shows, [&] { return See(who); }) &&
           Becomes(name + ", simulator: ", step.simulator, take);
}

bool Pilot::Becomes(const std::string& what, const std::string& wanted,
                    const std::function<std::string()>& look) const {
    if (wanted.empty()) return true;
    std::string seen;
    const bool well = Until(kPatienceMs, [&] { return (seen = look()) == wanted; });
    return log_.Check(what + wanted, well, seen.empty() ? "nothing" : seen);
}

std::string Pilot::Do(const std::string& who, const std::string& act) {
    const auto told = [](bool well) { return well ? "ok" : "error: it has no effect"; };
    for (const auto& program : kPrograms) {
        if (who != program.who || act != program.act) continue;
        (cockpit_.*program.run)();
        return told(true);
    }
    if (who == "simulator") return cockpit_.Simulator(act);
    if (who == "panels") return cockpit_.Panels(act);
    if (who == "orvo") return told(act == "quit" && cockpit_.QuitByUser());
    if (who == "tab") return told(OpenTab(cockpit_, act));
    if (who == "window") return told(WorkWindow(cockpit_, act));
    if (act == "double click") return told(DoubleClickTrayIcon());
    if (act == "remember") return told((pictures_[who] = TakePicture(cockpit_, who)) != 0);
    if (who == "screen") {
        AtRest([this] { return PictureOf(cockpit_.FrontWindow()); });
        log_.Shot(act);
        return told(true);
    }
    const size_t name = std::min(act.size(), act.find(' '));
    const std::string answer = cockpit_.Panels(act.substr(0, name) + ' ' + who + act.substr(name));
    ::Sleep(kHandPauseMs);
    return answer;
}

std::string Pilot::See(const std::string& who) {
    if (who == "orvo") return OrvoState(cockpit_);
    if (who == "window") return WindowTitle(cockpit_);
    if (who == "aircraft") return AircraftList(cockpit_);
    if (who == "profile") {
        const HWND combo = FindChild(cockpit_.MainWindow(), "ComboBox", std::nullopt);
        return combo ? ComboSelection(combo) : "there is no list";
    }
    if (who == "status") {
        std::string bar;
        for (const std::string& text : cockpit_.Status()) bar += (bar.empty() ? "" : " | ") + text;
        return bar;
    }
    if (!pictures_.contains(who)) return cockpit_.Panels("show " + who);
    const uint64_t picture = TakePicture(cockpit_, who);
    return picture == 0 ? "not there" : picture == pictures_[who] ? "as remembered" : "changed";
}

}  // namespace bench
