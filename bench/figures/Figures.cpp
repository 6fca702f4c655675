// Measures Orvo.exe from outside: Figures ORVO.EXE FOLDER. FOLDER is emptied and used as the
// program's folder.

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "bench/driver/Cockpit.h"
#include "bench/driver/Until.h"
#include "bench/figures/Resources.h"

using namespace bench;

namespace {

constexpr int kStarts = 10;
constexpr int kFirstOpenings = 10;
constexpr int kMoreOpenings = 200;
constexpr uint32_t kPatienceMs = 20000;
constexpr uint32_t kRestMs = 1000;
constexpr uint32_t kDragMs = 12000;

std::string OwnFolder() {
    char path[MAX_PATH] = "";
    GetModuleFileNameA(nullptr, path, MAX_PATH);
    return std::filesystem::path(path).parent_path().string();
}

double Now() {
    LARGE_INTEGER count{}, perSecond{};
    QueryPerformanceCounter(&count);
    QueryPerformanceFrequency(&perSecond);
    return 1000.0 * static_cast<double>(count.QuadPart) / static_cast<double>(perSecond.QuadPart);
}

double Mebi(const Resources& resources) {
    return static_cast<double>(resources.privateBytes) / (1 << 20);
}

void ShowHead(const char* what, const char* first, const char* second) {
    std::printf("\n%-44s %12s %12s\n", what, first, second);
}

void ShowRow(const char* what, double first, double second) {
    std::printf("%-44s %12.10g %12.10g\n", what, std::round(first * 10) / 10,
                std::round(second * 10) / 10);
}

// Gives whether they are the same, and there at all.
bool ShowCounts(const Resources& first, const Resources& second) {
    bool same = true;
    for (const auto& [what, count] : {std::pair{"handles", &Resources::handles},
                                      {"windows", &Resources::windows},
                                      {"GDI objects", &Resources::gdiObjects}}) {
        ShowRow(what, static_cast<double>(first.*count), static_cast<double>(second.*count));
        same = same && first.*count != 0 && first.*count == second.*count;
    }
    return same;
}

BOOL CALLBACK Close(HWND window, LPARAM process) {
    DWORD owner = 0;
    GetWindowThreadProcessId(window, &owner);
    const bool captioned = (GetWindowLongA(window, GWL_STYLE) & WS_CAPTION) == WS_CAPTION;
    if (owner == static_cast<DWORD>(process) && captioned) PostMessageA(window, WM_CLOSE, 0, 0);
    return TRUE;
}

struct Start {
    std::vector<double> milliseconds;
    Resources resources;

    double Median() {
        std::ranges::sort(milliseconds);
        return milliseconds.empty() ? 0 : milliseconds[milliseconds.size() / 2];
    }
};

// One start, from the call to the icon that is seen, and the end. False when there is none.
bool MeasureStart(const std::string& program, const std::string& folder, Start& start) {
    const uint64_t without = PictureOfTrayIcon();
    const double began = Now();
    const Process process('"' + program + '"', folder);
    while (PictureOfTrayIcon() == without) {
        if (Now() - began > kPatienceMs) return false;
        ::Sleep(1);
    }
    start.milliseconds.push_back(Now() - began);
    ::Sleep(kRestMs);
    start.resources = ResourcesOf(process.Id());
    EnumWindows(Close, static_cast<LPARAM>(process.Id()));
    return process.WaitForEnd(kPatienceMs).has_value() &&
           Until(kPatienceMs, [&] { return PictureOfTrayIcon() == without; });
}

bool ShowStarts(Cockpit& cockpit) {
    cockpit.WriteIni("[GeneralSetup]\r\nLoadWithoutPanels=1\r\n");
    Start empty, orvo, warming;
    const std::string emptyWindow = OwnFolder() + "\\EmptyWindow.exe";
    const std::string program = cockpit.Folder() + "\\Orvo.exe";
    // The first of all starts the task bar as well.
    if (!MeasureStart(emptyWindow, cockpit.Folder(), warming)) return false;
    if (!MeasureStart(program, cockpit.Folder(), warming)) return false;
    for (int i = 0; i < kStarts; ++i) {
        if (!MeasureStart(emptyWindow, cockpit.Folder(), empty)) return false;
        if (!MeasureStart(program, cockpit.Folder(), orvo)) return false;
    }
    ShowHead("", "Orvo.exe", "EmptyWindow");
    ShowRow("start to icon, ms, median of 10", orvo.Median(), empty.Median());
    ShowRow("private bytes, MiB", Mebi(orvo.resources), Mebi(empty.resources));
    ShowCounts(orvo.resources, empty.resources);
    return true;
}

bool OpenAndClose(Cockpit& cockpit, int times) {
    for (int i = 0; i < times; ++i) {
        const HWND window = cockpit.OpenGeneralOptions();
        if (!window) return false;
        ClickTab(FindShownChild(window, "SysTabControl32", std::nullopt), 1);
        PressButton(FindShownChild(window, "Button", "Cancel"));
        if (!Until(kPatienceMs, [&] { return cockpit.FrontWindow() == cockpit.MainWindow(); })) {
            return false;
        }
    }
    ::Sleep(kRestMs);
    return true;
}

bool ShowResources(Cockpit& cockpit) {
    if (!OpenAndClose(cockpit, kFirstOpenings)) return false;
    const Resources before = ResourcesOf(cockpit.Orvo().Id());
    if (!OpenAndClose(cockpit, kMoreOpenings)) return false;
    const Resources after = ResourcesOf(cockpit.Orvo().Id());
    ShowHead("General Options opened and closed", "10 times", "210 times");
    ShowRow("private bytes, MiB", Mebi(before), Mebi(after));
    return ShowCounts(before, after);
}

// Of the time in which `during` goes on, if it is given.
bool ShowPace(Cockpit& cockpit, const char* what, const std::function<bool()>& during = {}) {
    cockpit.Simulator("pace 1");
    if (during && !during()) return false;
    std::string pace;
    double median = 0;
    double percentile99 = 0;
    Until(kPatienceMs, [&] { return (pace = cockpit.Simulator("pace 1000")) != "none"; });
    if (std::sscanf(pace.c_str(), "median %lf ms, 99th percentile %lf", &median, &percentile99) !=
        2) {
        return false;
    }
    ShowRow(what, median, percentile99);
    return true;
}

bool ShowPaces(Cockpit& cockpit) {
    ShowHead("1,000 ticks as the simulator sees them, ms", "median", "99 %");
    const HWND main = cockpit.MainWindow();
    const auto isInFront = [&](HWND window) {
        return Until(kPatienceMs, [&] { return cockpit.FrontWindow() == window; });
    };
    ShowWindow(main, SW_HIDE);
    if (!ShowPace(cockpit, "no window")) return false;
    const HWND options = cockpit.OpenGeneralOptions();
    if (!options || !ShowPace(cockpit, "General Options open")) return false;
    PressButton(FindShownChild(options, "Button", "Cancel"));
    if (!isInFront(main) || !ShowPace(cockpit, "main window dragged",
                                      [main] { return DragWindow(main, 60, 40, kDragMs); })) {
        return false;
    }
    HWND box = nullptr;
    PressButton(FindShownChild(main, "Button", "Quit"));
    if (!Until(kPatienceMs, [&] { return (box = cockpit.Box(" ORVO - Quit request")); }) ||
        !ShowPace(cockpit, "message box open")) {
        return false;
    }
    PressBoxButton(box, IDOK);
    return cockpit.Orvo().WaitForEnd(kPatienceMs).has_value();
}

bool StartConnected(Cockpit& cockpit) {
    cockpit.StartSimulator();
    cockpit.StartPanels();
    cockpit.Panels("add multi");
    cockpit.StartOrvo();
    return cockpit.StatusBecomes(0, "FSUIPC Status: Connected", kPatienceMs);
}

bool Check(const char* what, bool well) {
    if (!well) std::printf("WRONG: %s\n", what);
    std::fflush(stdout);
    return well;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 3) {
        std::puts("Figures ORVO.EXE FOLDER");
        return 2;
    }
    SetProcessDPIAware();
    Cockpit cockpit(argv[1], argv[2]);
    const bool well = Check("the cockpit is set up", cockpit.IsReady()) &&
                      Check("programs start, show their icon and end", ShowStarts(cockpit)) &&
                      Check("Orvo connects", StartConnected(cockpit)) &&
                      Check("the window gives back all that it takes", ShowResources(cockpit)) &&
                      Check("ticks are seen in each state", ShowPaces(cockpit));
    return well ? 0 : 1;
}
