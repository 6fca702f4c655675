#include "ui/PanelSetupForm.h"

#include "platform/Patience.h"
#include "ui/Layout.h"

PanelSetupForm::PanelSetupForm(const SetupServices& services)
    : DialogForm(services.selectors.windows,
                 {&cSetupHolder::SetupFormTop, &cSetupHolder::SetupFormLeft}),
      labProfile(this) {}

void PanelSetupForm::Open() {
    if (TellUnlessDone(Ui(), actions_->ReadResult())) OpenModally();
}

Ties& PanelSetupForm::TiesOfTab(TabStrip& tabs) {
    Ties& ties = ties_.emplace_back();
    ties.FollowTabs(tabs);
    return ties;
}

void PanelSetupForm::PlaceBottom(int32_t width, int32_t bottom, CommandButton& cmdOk,
                                 CommandButton& cmdCancel) {
    constexpr int32_t kButtonWidth = 1260, kButtonHeight = 390;
    const int32_t top = bottom + kMargin;
    const int32_t cancelLeft = width - kMargin - kButtonWidth;
    const int32_t okLeft = cancelLeft - kMargin - kButtonWidth;
    PlaceControls({
        {labProfile, kMargin, top + 75, okLeft - 2 * kMargin, 240},
        {cmdOk, okLeft, top, kButtonWidth, kButtonHeight},
        {cmdCancel, cancelLeft, top, kButtonWidth, kButtonHeight},
    });
    SetContentSize(width, top + kButtonHeight + kMargin);
    UseButtons(cmdOk, cmdCancel);
}

void PanelSetupForm::Begin(cActionsHolder& actions) {
    actions_ = &actions;
    actions.Index = Services().windows.SetupPanelIndex;
    // Another program may hold the file for a moment; if it is for longer, Open tells it.
    static_cast<void>(Patience(Services().clock, kSavePatienceMs).Try([&actions] {
        actions.LoadSetup();
        return actions.ReadResult() || actions.Profile.empty();
    }));
    labProfile.Caption = "Currently in use Profile:  " + actions.Profile;
    for (Ties& ties : ties_) ties.Load();
}

SaveResult PanelSetupForm::Save() {
    for (Ties& ties : ties_) ties.Store();
    return actions_->SaveSetup();
}
