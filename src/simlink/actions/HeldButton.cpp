#include "simlink/actions/HeldButton.h"

#include <utility>

void HeldButton::MoveTo(const ActionRecord& reached, const ActionRecord& left) {
    if (reached.FSEvent != ActionKind::VButton) {
        LetGo();
        return;
    }
    const auto before = std::exchange(held_, reached);
    output_.SetVirtualButton(reached, true, false);
    if (left.FSEvent == ActionKind::VButton) Release(left);
    if (before && !before->SameButton(reached) && !before->SameButton(left)) Release(*before);
}

void HeldButton::LetGo(const ActionRecord& off) {
    const auto before = std::exchange(held_, std::nullopt);
    if (off.FSEvent == ActionKind::VButton) Release(off);
    if (before && !before->SameButton(off)) Release(*before);
}
