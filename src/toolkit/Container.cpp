#include "toolkit/Container.h"

#include "toolkit/UiBackend.h"

void Container::BringToFront(Control& child) {
    Detach(child);
    children_.insert(children_.begin(), &child);
    NotifyChanged();
}

void Container::Realize(UiBackend& ui) {
    Control::Realize(ui);
    for (Control* child : children_) child->Realize(ui);
}

void Container::EnabledChanged() {
    for (Control* child : children_) {
        child->NotifyChanged();
        child->EnabledChanged();
    }
}
