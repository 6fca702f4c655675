#include "toolkit/UiBackend.h"

#include <algorithm>

#include "toolkit/Form.h"

MsgBoxResult UiBackend::MsgBox(const MsgBoxRequest& request) {
    modal_.push_back(nullptr);
    const MsgBoxResult result = ShowBox(request);
    // A form that was opened over the box may still be there.
    modal_.erase(std::prev(std::find(modal_.rbegin(), modal_.rend(), nullptr).base()));
    FollowBlocked();
    return result;
}

bool UiBackend::IsBlocked(const Form& form) const {
    return !modal_.empty() && modal_.back() != &form;
}

Form* UiBackend::ModalForm() const {
    const auto last = std::find_if(modal_.rbegin(), modal_.rend(), [](Form* form) { return form; });
    return last == modal_.rend() ? nullptr : *last;
}

Form* UiBackend::ShownForm() const {
    if (Form* modal = ModalForm(); modal && modal->Visible) return modal;
    const auto shown =
        std::ranges::find_if(forms_, [](const Form* form) { return form->Visible.Get(); });
    return shown == forms_.end() ? nullptr : *shown;
}

bool UiBackend::IsModal(const Form& form) const {
    return std::ranges::find(modal_, &form) != modal_.end();
}

void UiBackend::Remove(Form& form) {
    std::erase(forms_, &form);
    Leave(form);
}

void UiBackend::Enter(Form& form) {
    modal_.push_back(&form);
    FollowBlocked();
}

void UiBackend::Leave(Form& form) {
    if (std::erase(modal_, &form) != 0) FollowBlocked();
}

void UiBackend::UnloadOver(const Form& form) {
    const bool modal = IsModal(form);
    for (Form* top = OpenModalForm(); top && top != &form; top = OpenModalForm()) {
        if (modal && !IsModal(form)) return;
        top->Unload();
    }
}

Form* UiBackend::OpenModalForm() const {
    const auto last = std::find_if(modal_.rbegin(), modal_.rend(),
                                   [](const Form* form) { return form && !form->IsUnloaded(); });
    return last == modal_.rend() ? nullptr : *last;
}

void UiBackend::FollowBlocked() {
    for (Form* form : forms_) form->NotifyChanged();
}
