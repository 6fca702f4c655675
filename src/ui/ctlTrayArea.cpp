#include "ui/ctlTrayArea.h"

#include <random>

#include "base/Text.h"

namespace {

constexpr uint32_t kAdd = 0, kModify = 1, kDelete = 2;
constexpr uint32_t kFlagMessage = 1, kFlagIcon = 2, kFlagTip = 4;
constexpr uint32_t kMouseMoveMessage = 512;
constexpr size_t kLongestTip = 63;

uint32_t NewId() {
    std::random_device source;
    return std::uniform_int_distribution<uint32_t>(1, 65535)(source);
}

}  // namespace

ctlTrayArea::ctlTrayArea(TrayPort& port)
    : port_(port),
      activity_(port.MouseActivity.Connect([this](int32_t message) { Dispatch(message); })) {
    record_.callbackMessage = kMouseMoveMessage;
}

void ctlTrayArea::SetIcon(TrayIcon icon) {
    record_.icon = icon;
    if (icon == TrayIcon::None) {
        SetVisible(false);
    } else if (visible_) {
        Notify(kModify, kFlagIcon);
    }
}

void ctlTrayArea::SetToolTip(std::string_view text) {
    record_.tip = Trim(text).substr(0, kLongestTip);
    Notify(kModify, kFlagTip);
}

void ctlTrayArea::SetVisible(bool visible) {
    if (visible == visible_) return;
    visible_ = visible;
    if (!visible) {
        Notify(kDelete, 0);
        return;
    }
    record_.id = NewId();
    Notify(kAdd, kFlagMessage | (record_.icon != TrayIcon::None ? kFlagIcon : 0) |
                     (record_.tip.empty() ? 0 : kFlagTip));
}

void ctlTrayArea::Notify(uint32_t message, uint32_t flags) {
    record_.flags = flags;
    port_.NotifyIcon(message, record_);
}

void ctlTrayArea::Dispatch(int32_t mouseMessage) {
    switch (mouseMessage) {
        case 512:
            MouseMove.Raise();
            break;
        case 513:
            MouseDown.Raise(1);
            break;
        case 514:
            MouseUp.Raise(1);
            break;
        case 516:
            MouseDown.Raise(2);
            break;
        case 517:
            MouseUp.Raise(2);
            break;
        case 515:
        case 518:
            DblClick.Raise();
            break;
        default:
            break;
    }
}
