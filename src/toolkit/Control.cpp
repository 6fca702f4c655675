#include "toolkit/Control.h"

#include <utility>

#include "toolkit/Container.h"
#include "toolkit/UiBackend.h"

Control::Control(Container* parent) : parent_(parent) {
    if (parent_) parent_->Attach(*this);
}

Control::~Control() {
    if (parent_) parent_->Detach(*this);
}

void Control::Move(int32_t left, int32_t top, int32_t width, int32_t height) {
    Left = left;
    Top = top;
    Width = width;
    Height = height;
}

bool Control::IsEnabled() const { return Enabled && (!parent_ || parent_->IsEnabled()); }

bool Control::IsShown() const { return Visible && (!parent_ || parent_->IsShown()); }

bool Control::TakesActs() const { return Enabled && Visible && (!parent_ || parent_->TakesActs()); }

void Control::Realize(UiBackend& ui) {
    if (!peer_) peer_ = ui.MakePeer(*this);
}

void Control::NotifyChanged() {
    if (Width != lastWidth_ || Height != lastHeight_) {
        lastWidth_ = Width;
        lastHeight_ = Height;
        Resized();
    }
    if (peer_) peer_->Follow();
    if (std::exchange(lastEnabled_, Enabled.Get()) != Enabled) EnabledChanged();
}
