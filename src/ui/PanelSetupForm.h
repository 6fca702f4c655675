#pragma once

#include <deque>

#include "config/ProfileStore.h"
#include "simlink/actions/cActionsHolder.h"
#include "toolkit/Picture.h"
#include "toolkit/TabStrip.h"
#include "ui/DialogForm.h"
#include "ui/Ties.h"
#include "ui/ctlEventSelector.h"

// What the setup windows of the panels work with.
struct SetupServices {
    SelectorServices selectors;
    ProfileStore& profiles;
};

// What they have in common. Each edits a holder of its own, of the panel SetupPanelIndex in the
// profile that is current when it opens; OK saves the holder to that profile, whatever has become
// current meanwhile. The running panel is untouched until the window has closed.
class PanelSetupForm : public DialogForm {
  public:
    explicit PanelSetupForm(const SetupServices& services);

    // Opens it, and returns when it is closed. When the profile couldn't be read, a box says so
    // instead.
    void Open();

    Label labProfile;

  protected:
    static constexpr int32_t kMargin = 120;  // twips

    // Ties whose places are those of the panel, or those of the tab that is selected.
    Ties& TiesOfPanel() { return ties_.emplace_back(); }
    Ties& TiesOfTab(TabStrip& tabs);

    // Puts the profile's name and the buttons below all else, which ends at `bottom`.
    void PlaceBottom(int32_t width, int32_t bottom, CommandButton& cmdOk, CommandButton& cmdCancel);
    // With the ties made: loads the holder, and shows it.
    void Begin(cActionsHolder& actions);
    // Whether the holder could be loaded, so that Open opens the window.
    bool IsReady() const { return static_cast<bool>(actions_->ReadResult()); }

    SaveResult Save() override;

  private:
    cActionsHolder* actions_ = nullptr;
    std::deque<Ties> ties_;
};
