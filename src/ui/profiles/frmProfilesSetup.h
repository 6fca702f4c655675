#pragma once

#include <functional>

#include "toolkit/Frame.h"
#include "toolkit/ListBox.h"
#include "toolkit/OptionButton.h"
#include "toolkit/Picture.h"
#include "toolkit/TabStrip.h"
#include "ui/PlacedForm.h"
#include "ui/TabPages.h"
#include "ui/profiles/ProfileWindowServices.h"

// The window of the profiles and of the aircraft that are bound to them. What the user does in it
// is in the files at once; it counts for the panels when the window has closed.
class frmProfilesSetup : public PlacedForm {
  public:
    explicit frmProfilesSetup(const ProfileWindowServices& services);

    // An aircraft was bound while the window is open: the lists show it, and the selections stay.
    void FollowLists();

    TabStrip tabMain;
    Frame frameMain[2];  // the pages, by tab

    ListBox lstProfiles;
    CommandButton cmdNew;
    CommandButton cmdDelete;
    CommandButton cmdImport;
    Frame frameSpecialMode;
    OptionButton optSpecialMode[3];  // by the mode

    ListBox lstAircrafts;
    Frame frameAircraft;
    Label labProfile;
    Label labNote;

  private:
    void PlaceAll();
    void FillLists();
    void ShowProfile();
    void ShowMode();
    void ShowModeAgain();
    void SaveMode(uint8_t mode);
    void ShowAircraft();
    void AddProfile();
    void DeleteProfile();
    // Tells why not.
    bool MayDelete(const std::string& profile);
    void OpenImport();
    void ChangeAircraft();
    // Waits a moment for a held file, and tells when the save is refused all the same.
    void Save(const std::function<SaveResult()>& save);

    const ProfileWindowServices services_;
    ProfileStore& profiles_;
    bool selecting_ = false;  // the user, a profile: its mode is shown
    bool following_ = false;  // what has changed elsewhere is shown: that writes nothing
    TabPages pages_;
};
