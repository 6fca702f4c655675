#include "toolkit/TabStrip.h"

#include <utility>

#include "toolkit/Form.h"

namespace {

constexpr int32_t kFirstRow = 240;  // twips; no row is lower

// What lies at `from` or below in the parent moves down, and makes the parent higher.
void MakeRoom(Container& parent, int32_t from, int32_t height) {
    const int32_t below = parent.Top + parent.Height;
    for (Control* child : parent.Children()) {
        if (child->Top >= from) child->Top = child->Top + height;
    }
    parent.Height = parent.Height + height;
    if (Container* outer = parent.Parent()) MakeRoom(*outer, below, height);
}

}  // namespace

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
    BeforeClick.Raise();
    selected_ = number;
    NotifyChanged();
    Click.Raise();
}

void TabStrip::SetMoreRows(int32_t height) {
    const int32_t added = height - std::exchange(moreRows_, height);
    if (added == 0) return;
    Height = Height + added;
    MakeRoom(*Parent(), Top + kFirstRow, added);
}
