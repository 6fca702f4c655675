#include "bench/flight/Pilot.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>
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
constexpr char kTabStrip[] = "SysTabControl32";

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

int Pixels(int twips) {
    const HDC screen = GetDC(nullptr);
    const int dpi = GetDeviceCaps(screen, LOGPIXELSY);
    ReleaseDC(nullptr, screen);
    return MulDiv(twips, dpi, 1440);
}

// Inside the frame of the Multi Panel's upper display, in pixels of its picture.
RECT UpperDisplay() { return {Pixels(3060), Pixels(300), Pixels(5640), Pixels(960)}; }

// A strip that is seen and has the tab, and the tab's number in it.
struct Tab {
    HWND strip = nullptr;
    int number = 0;
};

Tab FindTab(HWND window, const std::string& caption) {
    for (const HWND strip : ShownChildren(window, kTabStrip)) {
        const auto captions = TabTexts(strip);
        const auto tab = std::ranges::find(captions, caption);
        if (tab != captions.end()) return {strip, static_cast<int>(tab - captions.begin())};
    }
    return {};
}

bool OpenTab(const Cockpit& cockpit, const std::string& caption) {
    const Tab tab = FindTab(cockpit.MainWindow(), caption);
    const HWND before = PageButton(cockpit);
    return tab.strip && ClickTab(tab.strip, tab.number) && Until(kWindowTimeMs, [&] {
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

// What a button starts may go on; the mark of a box or an option is there.
bool Press(HWND button) {
    switch (GetWindowLongA(button, GWL_STYLE) & BS_TYPEMASK) {
        case BS_CHECKBOX:
        case BS_AUTOCHECKBOX:
            return Tick(button);
        case BS_RADIOBUTTON:
        case BS_AUTORADIOBUTTON:
            return ChooseOption(button);
        default:
            PressButton(button);
            return true;
    }
}

bool ChooseInList(HWND list, const std::string& entry) {
    const auto entries = ComboTexts(list);
    const auto found = std::ranges::find(entries, entry);
    return found != entries.end() && ChooseInCombo(list, static_cast<int>(found - entries.begin()));
}

void ClickTile(HWND picture, int tile) {
    constexpr int kColumns = 8;
    ClickAt(picture, Pixels(780 + tile % kColumns * 1335), Pixels(600 + tile / kColumns * 720));
}

// It may be that the window is still to come, or what is to be worked in it.
bool WorkWindow(const Cockpit& cockpit, const std::string& act) {
    const size_t colon = act.find(": ");
    const std::string frame = colon == std::string::npos ? "" : act.substr(0, colon);
    const std::string order = frame.empty() ? act : act.substr(colon + 2);
    const std::string verb = order.substr(0, order.find(' '));
    const std::string argument = order.substr(std::min(order.size(), verb.size() + 1));
    const int number = std::atoi(argument.c_str());
    const auto place = [&] {
        const HWND window = cockpit.FrontWindow();
        return frame.empty() ? window : FindShownChild(window, "Button", frame);
    };
    HWND control = nullptr;
    const auto comes = [&](const char* kind, const std::optional<std::string>& text = {}) {
        return Until(kWindowTimeMs, [&] {
            const HWND parent = place();
            return parent && (control = FindShownChild(parent, kind, text)) != nullptr;
        });
    };
    if (verb == "tab") {
        Tab tab;
        return Until(kWindowTimeMs,
                     [&] { return (tab = FindTab(place(), argument)).strip != nullptr; }) &&
               ClickTab(tab.strip, tab.number);
    }
    if (verb == "list") {
        return Until(kWindowTimeMs, [&] {
            const auto lists = ShownChildren(place(), "ComboBox");
            return number > 0 && lists.size() >= static_cast<size_t>(number) &&
                   ChooseInList(lists[number - 1], argument.substr(argument.find(' ') + 1));
        });
    }
    if (verb == "slider") return comes(kSlider) && MoveSlider(control, number);
    if (verb == "press") return comes("Button", argument) && Press(control);
    if (verb == "type" && comes("Edit")) {
        TypeInto(control, argument);
        return Until(kWindowTimeMs, [&] { return TextOf(control) == argument; });
    }
    if (verb != "tile" || !comes("OrvoPicture")) return false;
    ClickTile(control, number);
    return true;
}

// "01-bip" and "Misc" give "01-bip-misc".
std::string PictureName(std::string name, const std::string& caption) {
    name += '-';
    for (const unsigned char character : caption) {
        name += static_cast<char>(std::isalnum(character) ? std::tolower(character) : '-');
    }
    return name;
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
    if (who == "window" && act.starts_with("tour ")) return told(Tour(act.substr(5)));
    if (who == "window") return told(WorkWindow(cockpit_, act));
    if (act == "double click") return told(DoubleClickTrayIcon());
    if (act == "remember") return told((pictures_[who] = TakePicture(cockpit_, who)) != 0);
    if (who == "screen") {
        Shoot(act);
        return told(true);
    }
    const size_t name = std::min(act.size(), act.find(' '));
    const std::string answer = cockpit_.Panels(act.substr(0, name) + ' ' + who + act.substr(name));
    ::Sleep(kHandPauseMs);
    return answer;
}

void Pilot::Shoot(const std::string& name) const {
    AtRest([this] { return PictureOf(cockpit_.FrontWindow()); });
    log_.Shot(name);
}

bool Pilot::Tour(const std::string& tour) const {
    const size_t blank = std::min(tour.size(), tour.find(' '));
    const std::string first = tour.substr(std::min(tour.size(), blank + 1));
    if (!WorkWindow(cockpit_, "tab " + first)) return false;
    const Tab tab = FindTab(cockpit_.FrontWindow(), first);
    const auto captions = TabTexts(tab.strip);
    for (size_t i = static_cast<size_t>(tab.number); i < captions.size(); ++i) {
        if (!ClickTab(tab.strip, static_cast<int>(i))) return false;
        Shoot(PictureName(tour.substr(0, blank), captions[i]));
    }
    return true;
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
