#include "toolkit/Form.h"

#include "toolkit/UiBackend.h"

Form::Form(UiBackend& ui) : Container(nullptr), ui_(ui) {
    Visible = false;
    ui_.Add(*this);
}

Form::~Form() { ui_.Remove(*this); }

void Form::SetContentSize(int32_t width, int32_t height) {
    const UiBackend::FrameSize frame = ui_.FormFrame();
    Width = width + frame.width;
    Height = height + frame.height;
}

void Form::Load() { Realize(ui_); }

void Form::Show() {
    if (unloaded_) return;
    if (!Visible) {
        Visible = true;
    } else if (Peer* peer = GetPeer()) {
        peer->Activate();
    }
}

void Form::ShowModal(MessageLoop& loop) {
    if (unloaded_) return;
    owner_ = ui_.ShownForm();
    Load();
    ui_.Enter(*this);
    Show();
    ui_.BeginModal(*this);
    loop.RunUntil([this] { return unloaded_; });
    // The loop may have been quit.
    Unload();
}

void Form::Unload() {
    if (unloaded_) return;
    ui_.UnloadOver(*this);
    if (unloaded_) return;
    unloaded_ = true;
    QueryUnload.Raise();
    Unloaded.Raise();
    // First, so that the system finds its owner enabled when it looks for the next window in front.
    ui_.Leave(*this);
    Hide();
}

void Form::EndSession() {
    while (Form* modal = ui_.OpenModalForm()) modal->Unload();
    Unload();
    SessionEnding.Raise();
}

bool Form::TakesActs() const { return Enabled && !unloaded_ && !ui_.IsBlocked(*this); }
