#include "ui/KeyCapture.h"

namespace {

constexpr int32_t kTab = 9, kShift = 16, kCtrl = 17, kAlt = 18;
constexpr uint8_t kShiftMark = 1, kCtrlMark = 2, kTabMark = 4;

uint8_t MarkOf(int32_t key) {
    switch (key) {
        case kShift:
            return kShiftMark;
        case kCtrl:
            return kCtrlMark;
        case kTab:
            return kTabMark;
        default:
            return 0;
    }
}

}  // namespace

KeyCapture::Answer KeyCapture::KeyDown(int32_t key) {
    if (key == kAlt) return Answer::AltRefused;
    const uint8_t mark = MarkOf(key);
    marks_ |= mark;
    return mark == 0 ? Answer::Nothing : Answer::MarksChanged;
}

KeyCapture::Answer KeyCapture::KeyUp(int32_t key) {
    if (key == kAlt || MarkOf(key) != 0) return Answer::Nothing;
    result_ = {static_cast<uint8_t>(key), marks_, ascii_};
    return Answer::Captured;
}
