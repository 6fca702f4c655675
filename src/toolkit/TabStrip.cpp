#include "toolkit/TabStrip.h"

#include "toolkit/UiBackend.h"

void TabStrip::AddTab(int32_t position, std::string key, std::string caption) {
    const auto count = static_cast<int32_t>(tabs_.size());
    if (position < 1 || position > count) position = count + 1;
    tabs_.insert(tabs_.begin() + (position - 1), Tab{std::move(key), std::move(caption)});
    if (selected_ == 0) {
        selected_ = 1;
    } else if (position <= selected_) {
        ++selected_;
    }
    NotifyChanged();
}

void TabStrip::Select(int32_t number) {
    if (number < 1 || number > static_cast<int32_t>(tabs_.size())) return;
    selected_ = number;
    NotifyChanged();
    Click.Raise();
}

void TabStrip::Accept(ControlVisitor& visitor) { visitor.Visit(*this); }
