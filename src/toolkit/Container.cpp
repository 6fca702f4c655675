#include "toolkit/Container.h"

#include "toolkit/UiBackend.h"

void Container::BringToFront(Control& child) {
    Detach(child);
    Attach(child);
    NotifyChanged();
}

void Container::Accept(ControlVisitor& visitor) { visitor.Visit(*this); }

void Container::Realize(UiBackend& ui) {
    Control::Realize(ui);
    for (Control* child : children_) child->Realize(ui);
}
