#include "toolkit/OptionButton.h"

#include "toolkit/Container.h"

void OptionButton::Set(bool value) {
    if (value == value_) return;
    value_ = value;
    NotifyChanged();
}

void OptionButton::SetValue(bool value) {
    const bool chosen = value && !value_;
    if (chosen && Parent()) {
        for (Control* sibling : Parent()->Children()) {
            auto* option = dynamic_cast<OptionButton*>(sibling);
            if (option && option != this) option->Set(false);
        }
    }
    Set(value);
    if (chosen) Click.Raise();
}
