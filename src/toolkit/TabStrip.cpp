#include "toolkit/TabStrip.h"

#include <utility>

#include "toolkit/Form.h"

namespace {

constexpr int32_t kFirstRow = 240;  // twips; no row is lower

bool Encloses(const Control& outer, const Control& inner, int32_t innerHeight) {
    return outer.Left <= inner.Left && outer.Left + outer.Width >= inner.Left + inner.Width &&
           outer.Top <= inner.Top && outer.Top + outer.Height >= inner.Top + innerHeight;
}

// `grown` is higher by `height`, or lower: what lies at `from` or below moves with that, and what
// encloses it grows with it, a strip on which it lies and the parent.
void MakeRoom(const Control& grown, int32_t from, int32_t height) {
    Container* const parent = grown.Parent();
    if (!parent) return;
    const int32_t below = parent->Top + parent->Height;
    for (Control* child : parent->Children()) {
        if (child == &grown) continue;
        if (child->Top >= from) {
            child->Top = child->Top + height;
        } else if (Encloses(*child, grown, grown.Height - height)) {
            child->Height = child->Height + height;
        }
    }
    parent->Height = parent->Height + height;
    MakeRoom(*parent, below, height);
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
    MakeRoom(*this, Top + kFirstRow, added);
}
