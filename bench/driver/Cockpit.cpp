#include "bench/driver/Cockpit.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>
#include <utility>

#include "bench/driver/Until.h"

namespace bench {

namespace {

constexpr char kMainTitle[] = "  ORVO    v0.5.1";
constexpr char kGeneralOptionsTitle[] = "  ORVO - General Options";
constexpr char kQuitTitle[] = " ORVO - Quit request";
constexpr uint32_t kWindowTimeMs = 5000;

std::string OwnFolder() {
    char path[MAX_PATH] = "";
    GetModuleFileNameA(nullptr, path, MAX_PATH);
    return std::filesystem::path(path).parent_path().string();
}

std::string Quoted(const std::string& text) { return '"' + text + '"'; }

}  // namespace

Cockpit::Cockpit(const std::string& orvo, std::string folder)
    : benchFolder_(OwnFolder()), folder_(std::move(folder)) {
    namespace fs = std::filesystem;
    std::error_code error;
    folder_ = fs::absolute(folder_, error).string();
    fs::remove_all(folder_, error);
    fs::create_directories(folder_, error);
    for (const std::string& file :
         {orvo, benchFolder_ + "\\hid.dll", benchFolder_ + "\\setupapi.dll"}) {
        const std::string name = fs::path(file).filename().string();
        if (!CopyFileA(file.c_str(), (folder_ + '\\' + name).c_str(), FALSE)) return;
    }
    orvoSource_ = fs::path(orvo).filename().string();
    ready_ = true;
}

void Cockpit::WriteFile(const std::string& name, const std::string& text) const {
    std::ofstream(folder_ + '\\' + name, std::ios::binary) << text;
}

std::optional<std::string> Cockpit::ReadFile(const std::string& name) const {
    std::ifstream file(folder_ + '\\' + name, std::ios::binary);
    if (!file) return std::nullopt;
    return std::string(std::istreambuf_iterator<char>(file), {});
}

void Cockpit::StartSimulator() {
    simulator_.reset();
    simulator_ = std::make_unique<Process>(Quoted(benchFolder_ + "\\SimBench.exe"), folder_);
}

void Cockpit::KillSimulator() { simulator_.reset(); }

void Cockpit::StartPanels() {
    panels_.reset();
    panels_ = std::make_unique<Process>(
        Quoted(benchFolder_ + "\\PanelBench.exe") + ' ' + Quoted(folder_), folder_);
}

void Cockpit::StartOrvo() {
    orvo_.reset();
    orvo_ = std::make_unique<Process>(Quoted(folder_ + '\\' + orvoSource_), folder_);
}

std::string Cockpit::Simulator(const std::string& command) {
    return simulator_ ? simulator_->Ask(command) : "error: no simulator";
}

std::string Cockpit::Panels(const std::string& command) {
    return panels_ ? panels_->Ask(command) : "error: no panels";
}

HWND Cockpit::MainWindow() const {
    return orvo_ ? FindWindowOf(orvo_->Id(), nullptr, kMainTitle) : nullptr;
}

HWND Cockpit::Box(const std::string& title) const {
    return orvo_ ? FindWindowOf(orvo_->Id(), "#32770", title) : nullptr;
}

HWND Cockpit::FrontWindow() const { return orvo_ ? FrontWindowOf(orvo_->Id()) : nullptr; }

std::vector<std::string> Cockpit::Status() const {
    const HWND bar = FindChild(MainWindow(), "msctls_statusbar32", std::nullopt);
    return bar ? StatusTexts(bar) : std::vector<std::string>();
}

bool Cockpit::StatusBecomes(size_t panel, const std::string& text, uint32_t milliseconds) const {
    return Until(milliseconds, [&] {
        const std::vector<std::string> texts = Status();
        return texts.size() > panel && texts[panel] == text;
    });
}

bool Cockpit::PanelBecomes(const std::string& panel, const std::string& shown,
                           uint32_t milliseconds) {
    return Until(milliseconds, [&] { return Panels("show " + panel) == shown; });
}

HWND Cockpit::OpenGeneralOptions() const {
    HWND setup = nullptr;
    HWND window = nullptr;
    DoubleClickTrayIcon();
    if (!Until(kWindowTimeMs, [&] {
            return FrontWindow() && (setup = FindShownChild(FrontWindow(), "Button", "Setup"));
        })) {
        return nullptr;
    }
    PressButton(setup);
    const bool opened = Until(kWindowTimeMs, [&] {
        return (window = FrontWindow()) && TextOf(window) == kGeneralOptionsTitle;
    });
    return opened ? window : nullptr;
}

bool Cockpit::QuitByUser() {
    const HWND window = MainWindow();
    if (const HWND tabs = FindChild(window, "SysTabControl32", std::nullopt)) ClickTab(tabs, 0);
    HWND button = nullptr;
    if (!Until(kWindowTimeMs, [&] { return (button = FindChild(window, "Button", "Quit")); })) {
        return false;
    }
    PressButton(button);
    HWND box = nullptr;
    if (!Until(kWindowTimeMs, [&] { return (box = Box(kQuitTitle)); })) return false;
    PressBoxButton(box, IDOK);
    return orvo_->WaitForEnd(kWindowTimeMs).has_value();
}

}  // namespace bench
