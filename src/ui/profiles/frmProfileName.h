#pragma once

#include "toolkit/Frame.h"
#include "toolkit/Picture.h"
#include "toolkit/TextBox.h"
#include "ui/DialogForm.h"
#include "ui/profiles/ProfileWindowServices.h"

// Asks for the name of a new profile.
class frmProfileName : public DialogForm {
  public:
    explicit frmProfileName(const ProfileWindowServices& services);

    std::string NewProfileName;  // a free one; empty when the user gives none

    Frame frameName;
    TextBox txtProfile;
    Label labNote;
    CommandButton cmdOk;
    CommandButton cmdCancel;

  private:
    SaveResult Save() override;

    const ProfileStore& profiles_;
};
