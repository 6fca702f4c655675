#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "bench/driver/Process.h"
#include "bench/driver/Windows.h"

namespace bench {

// A fresh folder with Orvo.exe and the bench DLLs, the programs around it, and Orvo's windows. All
// programs that it started end with it.
class Cockpit {
  public:
    // `orvo` is the executable to fly with; the bench programs and DLLs are taken from this
    // program's own folder; `folder` is emptied or made. IsReady tells whether all that worked.
    Cockpit(const std::string& orvo, std::string folder);

    bool IsReady() const { return ready_; }
    const std::string& Folder() const { return folder_; }
    // Orvo.ini, for before StartOrvo.
    void WriteIni(const std::string& text) const { WriteFile("Orvo.ini", text); }
    // A file in the folder, byte by byte, such as a profile. Nothing when there is none.
    void WriteFile(const std::string& name, const std::string& text) const;
    std::optional<std::string> ReadFile(const std::string& name) const;

    void StartSimulator();
    // At once, as a crash does.
    void KillSimulator();
    void StartPanels();
    void StartOrvo();

    // A console command and its answer.
    std::string Simulator(const std::string& command);
    std::string Panels(const std::string& command);

    // Orvo itself; only after StartOrvo.
    Process& Orvo() { return *orvo_; }
    // 0 as long as there is none. The box is found by its title.
    HWND MainWindow() const;
    HWND Box(const std::string& title) const;
    // The one that the user can work in.
    HWND FrontWindow() const;
    std::vector<std::string> Status() const;
    // Waits until the status panel, from 0, shows the text.
    bool StatusBecomes(size_t panel, const std::string& text, uint32_t milliseconds) const;
    bool PanelBecomes(const std::string& panel, const std::string& shown, uint32_t milliseconds);

    // The General Options window, by a double click on the icon and Setup; 0 when it doesn't open.
    HWND OpenGeneralOptions() const;

    // The way that the user takes: General tab, Quit, OK. False when a step has no effect in time;
    // the exit code is left to the caller.
    bool QuitByUser();

  private:
    std::string orvoSource_;
    std::string benchFolder_;
    std::string folder_;
    bool ready_ = false;
    std::unique_ptr<Process> simulator_;
    std::unique_ptr<Process> panels_;
    std::unique_ptr<Process> orvo_;
};

}  // namespace bench
