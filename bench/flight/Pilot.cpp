#include "bench/flight/Pilot.h"

#include <algorithm>
#include <cctype>
#include <optional>
#include <sstream>

#include "bench/driver/Until.h"
#include "bench/flight/WindowActs.h"

namespace bench {

namespace {

// The light shows of eight panels come one after the other.
constexpr uint32_t kPatienceMs = 40000;
constexpr uint32_t kWindowTimeMs = 10000;
// A hand takes as long to turn back. Sooner, the panel's reports still count for the old direction.
constexpr DWORD kHandPauseMs = 300;

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
RECT UpperDisplay() { return {Pixels(3060), Pixels(300), Pixels(5640), Pixels(960)}; }

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

std::string TextOfBox(const Cockpit& cockpit) {
    const HWND front = cockpit.FrontWindow();
    char kind[16] = "";
    if (front) GetClassNameA(front, kind, sizeof kind);
    return kind == std::string("#32770") ? BoxText(front) : "no box";
}

std::string EntriesInList(const Cockpit& cockpit) {
    const HWND list = FindShownChild(cockpit.FrontWindow(), "ListBox", std::nullopt);
    if (!list) return "no list";
    const std::string selected = ListSelection(list);
    std::string entries;
    for (const std::string& entry : ListTexts(list)) {
        entries += entries.empty() ? "" : ", ";
        entries += entry == selected ? '[' + entry + ']' : entry;
    }
    return entries;
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
    list.erase(std::min(list.size() - 1, list.find("\n[")) + 1);
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
    if (who == "box") return TextOfBox(cockpit_);
    if (who == "entries") return EntriesInList(cockpit_);
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
