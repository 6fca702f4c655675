#pragma once

#include "toolkit/ComboBox.h"
#include "toolkit/Picture.h"
#include "ui/DialogForm.h"
#include "ui/profiles/ProfileWindowServices.h"

// Asks for the profile of an aircraft, on top of all windows. A name that is new joins the list of
// profiles; to save the list and to bind the aircraft is left to who has asked.
class frmAircraftProfile : public DialogForm {
  public:
    frmAircraftProfile(const ProfileWindowServices& services, const std::string& NewAircraftName);

    std::string ChosenProfile;  // one of the list; empty when the user gives none

    Label labRequest;
    Label Label1;  // the aircraft
    ComboBox cmbProfiles;
    Label labNote;
    CommandButton cmdOk;
    CommandButton cmdCancel;

  private:
    SaveResult Save() override;

    ProfileStore& profiles_;
};
