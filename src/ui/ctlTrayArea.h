#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "base/Event.h"
#include "platform/TrayPort.h"

// The program's icon in the notification area.
class ctlTrayArea {
  public:
    explicit ctlTrayArea(TrayPort& port);
    ctlTrayArea(const ctlTrayArea&) = delete;
    ctlTrayArea& operator=(const ctlTrayArea&) = delete;
    ~ctlTrayArea() { SetVisible(false); }

    // None takes the icon away.
    void SetIcon(TrayIcon icon);
    // Trimmed, and cut to 63 characters.
    void SetToolTip(std::string_view text);
    void SetVisible(bool visible);

    TrayIcon Icon() const { return record_.icon; }
    const std::string& ToolTip() const { return record_.tip; }
    bool Visible() const { return visible_; }

    Event<> MouseMove;
    Event<int32_t> MouseDown;  // button 1 left, 2 right
    Event<int32_t> MouseUp;
    Event<> DblClick;  // of either button

  private:
    void Notify(uint32_t message, uint32_t flags);
    void Dispatch(int32_t mouseMessage);

    TrayPort& port_;
    TrayRecord record_;
    bool visible_ = false;
    ScopedConnection activity_;
};
