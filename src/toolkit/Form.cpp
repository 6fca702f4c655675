#include "toolkit/Form.h"

#include "toolkit/UiBackend.h"

Form::Form(UiBackend& ui) : Container(nullptr), ui_(ui) { Visible = false; }

Form::~Form() = default;

void Form::Load() { Realize(ui_); }

void Form::Show() {
    if (!Visible) {
        Visible = true;
    } else if (Peer* peer = GetPeer()) {
        peer->Activate();
    }
}

void Form::Unload() {
    if (unloaded_) return;
    unloaded_ = true;
    QueryUnload.Raise();
    Unloaded.Raise();
    Hide();
}

void Form::Accept(ControlVisitor& visitor) { visitor.Visit(*this); }
