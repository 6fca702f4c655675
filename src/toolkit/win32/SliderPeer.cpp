#include "toolkit/win32/SliderPeer.h"

#include "toolkit/win32/CommonControls.h"

SliderPeer::SliderPeer(Slider& slider, const PeerServices& services)
    : WindowPeer(slider, services), slider_(slider) {
    Create(TRACKBAR_CLASSW, WS_TABSTOP | TBS_HORZ | TBS_AUTOTICKS, 0);
    Follow();
}

int32_t SliderPeer::Ask(UINT message) const {
    return static_cast<int32_t>(SendMessageW(Window(), message, 0, 0));
}

void SliderPeer::OnScroll() {
    slider_.Drag(Ask(TBM_GETPOS));
    Follow();
}

void SliderPeer::FollowMore() {
    FollowScale();
    SendMessageW(Window(), TBM_SETLINESIZE, 0, slider_.SmallChange);
    SendMessageW(Window(), TBM_SETPAGESIZE, 0, slider_.LargeChange);
    if (Ask(TBM_GETPOS) != slider_.Value()) {
        SendMessageW(Window(), TBM_SETPOS, TRUE, slider_.Value());
    }
}

// The ticks are made by the range, so they come after it.
void SliderPeer::FollowScale() {
    if (Ask(TBM_GETRANGEMIN) == slider_.Min() && Ask(TBM_GETRANGEMAX) == slider_.Max() &&
        ticks_ == slider_.TickFrequency) {
        return;
    }
    ticks_ = slider_.TickFrequency;
    SendMessageW(Window(), TBM_SETRANGEMIN, FALSE, slider_.Min());
    SendMessageW(Window(), TBM_SETRANGEMAX, FALSE, slider_.Max());
    SendMessageW(Window(), TBM_SETTICFREQ, static_cast<WPARAM>(ticks_), 0);
    InvalidateRect(Window(), nullptr, TRUE);
}
