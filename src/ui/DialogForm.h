#pragma once

#include "config/SaveResult.h"
#include "ui/PlacedForm.h"

// Tells the user in a box that a save, or what it needs, was refused, and why. Gives whether it has
// worked.
bool TellUnlessDone(UiBackend& ui, const SaveResult& result);

// A form with OK and Cancel. OK saves and closes; a save that is refused is told, and the window
// stays as it is, with all that was typed.
class DialogForm : public PlacedForm {
  public:
    using PlacedForm::PlacedForm;

  protected:
    // The buttons are the window's last controls, so that the keyboard reaches them last. Enter and
    // Esc press them.
    void UseButtons(CommandButton& cmdOk, CommandButton& cmdCancel);

    virtual SaveResult Save() = 0;
    // Cancel: what was changed outside of the window goes back.
    virtual void Revert() {}
};
