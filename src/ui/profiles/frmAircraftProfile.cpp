#include "ui/profiles/frmAircraftProfile.h"

#include "ui/Layout.h"
#include "ui/profiles/ProfileChecks.h"

frmAircraftProfile::frmAircraftProfile(const ProfileWindowServices& services,
                                       const std::string& NewAircraftName)
    : DialogForm(services.windows,
                 {&cSetupHolder::AircraftFormTop, &cSetupHolder::AircraftFormLeft}),
      labRequest(this),
      Label1(this),
      cmbProfiles(this, ComboBox::Kind::Editable),
      labNote(this),
      cmdOk(this),
      cmdCancel(this),
      profiles_(services.profiles) {
    Caption = "  ORVO - Select Aircraft Profile";
    StaysOnTop = true;
    PlaceControls({
        {labRequest, 240, 180, 5880, 240, "Please, select a profile for this aircraft."},
        {Label1, 240, 540, 5880, 450},
        {cmbProfiles, 240, 1110, 5880, 315},
        {labNote, 240, 1560, 5880, 690,
         "You can choose an existing profile or type in a new profile name. Profile name admits "
         "only letters and numbers."},
        {cmdOk, 3480, 2370, 1260, 390},
        {cmdCancel, 4860, 2370, 1260, 390},
    });
    SetContentSize(6360, 2880);
    UseButtons(cmdOk, cmdCancel);
    Label1.Face = FontFace::Bold;
    Label1.Caption = NewAircraftName;
    FirstFocus = &cmbProfiles;
    cmbProfiles.SetItems(profiles_.ProfileNames());
    cmbProfiles.SetListIndex(cmbProfiles.ListCount() - 1);
}

SaveResult frmAircraftProfile::Save() {
    const std::string& name = cmbProfiles.Text();
    SaveResult checked = CheckAircraftsProfile(profiles_, name);
    if (!checked) return checked;
    profiles_.AddProfile(name);
    ChosenProfile = name;
    return checked;
}
