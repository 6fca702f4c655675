#pragma once

#include <cstdint>
#include <utility>

// Which windows are open, for all of them to see.
struct WindowState {
    bool ModalWindowOpen = false;  // a configuration window; it blocks the icon's double click
    bool BIPSetupOpen = false;     // the BIP Panels' setup window, which has the tiles meanwhile
    int16_t SetupPanelIndex = 0;   // number of the panel whose setup window is or was open
};

// Says for its lifetime that a configuration window is open. One may be opened over another.
class ModalWindow {
  public:
    explicit ModalWindow(WindowState& windows)
        : windows_(windows), before_(std::exchange(windows.ModalWindowOpen, true)) {}
    ModalWindow(const ModalWindow&) = delete;
    ModalWindow& operator=(const ModalWindow&) = delete;
    ~ModalWindow() { windows_.ModalWindowOpen = before_; }

  private:
    WindowState& windows_;
    const bool before_;
};
