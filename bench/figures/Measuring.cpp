#include "bench/figures/Measuring.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <limits>
#include <sstream>
#include <utility>

#include "bench/driver/Until.h"

namespace bench {

const double kNone = std::numeric_limits<double>::quiet_NaN();

namespace {

BOOL CALLBACK Close(HWND window, LPARAM process) {
    DWORD owner = 0;
    GetWindowThreadProcessId(window, &owner);
    const bool captioned = (GetWindowLongA(window, GWL_STYLE) & WS_CAPTION) == WS_CAPTION;
    if (owner == static_cast<DWORD>(process) && captioned) PostMessageA(window, WM_CLOSE, 0, 0);
    return TRUE;
}

}  // namespace

double Now() {
    LARGE_INTEGER count{}, perSecond{};
    QueryPerformanceCounter(&count);
    QueryPerformanceFrequency(&perSecond);
    return 1000.0 * static_cast<double>(count.QuadPart) / static_cast<double>(perSecond.QuadPart);
}

std::string OwnFolder() {
    char path[MAX_PATH] = "";
    GetModuleFileNameA(nullptr, path, MAX_PATH);
    return std::filesystem::path(path).parent_path().string();
}

void ShowHead(const char* what, std::initializer_list<const char*> columns) {
    std::printf("\n%-44s", what);
    for (const char* column : columns) std::printf(" %12s", column);
    std::puts("");
}

void ShowRow(const std::string& what, std::initializer_list<double> figures) {
    std::printf("%-44s", what.c_str());
    for (const double figure : figures) {
        if (std::isnan(figure)) {
            std::printf(" %12s", "-");
        } else {
            std::printf(" %12.10g", std::round(figure * 100) / 100);
        }
    }
    std::puts("");
    std::fflush(stdout);
}

bool ShowCounts(const Resources& first, const Resources& second) {
    bool same = true;
    for (const auto& [what, count] : {std::pair{"handles", &Resources::handles},
                                      {"windows", &Resources::windows},
                                      {"GDI objects", &Resources::gdiObjects}}) {
        ShowRow(what, {static_cast<double>(first.*count), static_cast<double>(second.*count)});
        same = same && first.*count != 0 && first.*count == second.*count;
    }
    return same;
}

double Mebi(uint64_t bytes) { return static_cast<double>(bytes) / (1 << 20); }

bool Check(const char* what, bool well) {
    if (!well) std::printf("WRONG: %s\n", what);
    std::fflush(stdout);
    return well;
}

std::vector<double> Numbers(const std::string& answer) {
    std::vector<double> numbers;
    std::istringstream words(answer);
    for (std::string word; words >> word;) {
        char* end = nullptr;
        const double number = std::strtod(word.c_str(), &end);
        if (end != word.c_str()) numbers.push_back(number);
    }
    return numbers;
}

double Quantile(std::vector<double> values, double share) {
    std::erase_if(values, [](double value) { return std::isnan(value); });
    if (values.empty()) return kNone;
    std::ranges::sort(values);
    const auto place = static_cast<size_t>(static_cast<double>(values.size()) * share);
    return values[std::min(place, values.size() - 1)];
}

Ticks TicksOf(const std::vector<double>& times, double milliseconds) {
    std::vector<double> intervals;
    for (size_t i = 1; i < times.size(); ++i) intervals.push_back(times[i] - times[i - 1]);
    return {static_cast<double>(times.size()) * 1000 / milliseconds, Quantile(intervals, 0.5),
            Quantile(intervals, 0.99)};
}

Spent Spend(Cockpit& cockpit, const LinuxProcess& process, uint32_t seconds) {
    cockpit.Simulator("ticks");
    const double began = Now();
    const double before = process.CpuMs();
    ::Sleep(seconds * 1000);
    const double spent = process.CpuMs() - before;
    const double time = Now() - began;
    return {spent * 1000 / time, TicksOf(Numbers(cockpit.Simulator("ticks")), time)};
}

std::optional<LinuxProcess> StartOrvo(Cockpit& cockpit, const std::string& profile,
                                      bool simulator) {
    cockpit.WriteIni("[GeneralSetup]\r\nSplash=0\r\nLoadWithoutPanels=1\r\n");
    cockpit.WriteFile("Default.ini", profile);
    cockpit.StartOrvo();
    const char* status = simulator ? "FSUIPC Status: Connected" : "FSUIPC Status: Disconnected";
    if (!cockpit.StatusBecomes(0, status, kPatienceMs)) return std::nullopt;
    ::Sleep(2000);  // to rest
    return LinuxProcess::Find(cockpit.Folder() + "\\Orvo.exe");
}

double EndOrvo(Cockpit& cockpit) {
    const double began = Now();
    CloseWindowsOf(cockpit.Orvo());
    if (cockpit.Orvo().WaitForEnd(kPatienceMs)) return Now() - began;
    cockpit.Orvo().Kill();
    return kNone;
}

void CloseWindowsOf(const Process& process) {
    EnumWindows(Close, static_cast<LPARAM>(process.Id()));
}

void StartBench(Cockpit& cockpit) {
    cockpit.StartSimulator();
    cockpit.StartPanels();
    for (const char* kind : {"multi", "radio", "switch", "bip"}) {
        cockpit.Panels(std::string("add ") + kind);
    }
    cockpit.Simulator("batches");
}

}  // namespace bench
