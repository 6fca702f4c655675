#include "ui/profiles/frmProfileName.h"

#include "ui/Layout.h"
#include "ui/profiles/ProfileChecks.h"

frmProfileName::frmProfileName(const ProfileWindowServices& services)
    : DialogForm(services.windows,
                 {&cSetupHolder::ProfileNameFormTop, &cSetupHolder::ProfileNameFormLeft}),
      frameName(this),
      txtProfile(&frameName),
      labNote(&frameName),
      cmdOk(this),
      cmdCancel(this),
      profiles_(services.profiles) {
    Caption = "  ORVO";
    PlaceControls({
        {frameName, 120, 120, 4680, 1140, "Insert profile name"},
        {txtProfile, 180, 330, 4320, 315},
        {labNote, 180, 750, 4320, 240, "Profile name admits only letters and numbers."},
        {cmdOk, 2160, 1380, 1260, 390},
        {cmdCancel, 3540, 1380, 1260, 390},
    });
    SetContentSize(4920, 1890);
    UseButtons(cmdOk, cmdCancel);
}

SaveResult frmProfileName::Save() {
    SaveResult checked = CheckNewName(profiles_, txtProfile.Text());
    if (checked) NewProfileName = txtProfile.Text();
    return checked;
}
