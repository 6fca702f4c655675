#include "ui/profiles/frmProfilesSetup.h"

#include <algorithm>

#include "platform/Patience.h"
#include "simlink/channel/AircraftMode.h"
#include "ui/DialogForm.h"
#include "ui/Layout.h"
#include "ui/profiles/ProfileChecks.h"
#include "ui/profiles/ProfileMode.h"
#include "ui/profiles/frmAircraftProfile.h"
#include "ui/profiles/frmProfileImport.h"
#include "ui/profiles/frmProfileName.h"

namespace {

constexpr int32_t kPageWidth = 7560, kPageHeight = 4500;
constexpr uint8_t kModes[] = {kStandardMode, kMaddogMode, kNGXMode};

const MsgBoxRequest kDeleteRequest = {"Are you sure you want to delete this profile ?", "  ORVO",
                                      MsgBoxIcon::None, MsgBoxButtons::OkCancel};

void SelectEntry(ListBox& list, const std::string& entry) {
    const auto found = std::ranges::find(list.Items(), entry);
    if (found == list.Items().end()) return;
    list.SetListIndex(static_cast<int32_t>(found - list.Items().begin()));
}

}  // namespace

frmProfilesSetup::frmProfilesSetup(const ProfileWindowServices& services)
    : PlacedForm(services.windows,
                 {&cSetupHolder::ProfilesFormTop, &cSetupHolder::ProfilesFormLeft}),
      tabMain(this),
      frameMain{Frame(this), Frame(this)},
      lstProfiles(&frameMain[0]),
      cmdNew(&frameMain[0]),
      cmdDelete(&frameMain[0]),
      cmdImport(&frameMain[0]),
      frameSpecialMode(&frameMain[0]),
      optSpecialMode{OptionButton(&frameSpecialMode), OptionButton(&frameSpecialMode),
                     OptionButton(&frameSpecialMode)},
      lstAircrafts(&frameMain[1]),
      frameAircraft(&frameMain[1]),
      labProfile(&frameAircraft),
      labNote(&frameMain[1]),
      services_(services),
      profiles_(services.profiles),
      pages_(tabMain, {{"Profiles", &frameMain[0]}, {"Aircrafts", &frameMain[1]}}) {
    Caption = "  ORVO - Profiles Configuration";
    PlaceAll();
    optSpecialMode[0].SetValue(true);
    lstProfiles.Click.Connect([this] { ShowProfile(); });
    for (const uint8_t mode : kModes) {
        optSpecialMode[mode].Click.Connect([this, mode] { SaveMode(mode); });
    }
    cmdNew.Click.Connect([this] { AddProfile(); });
    cmdDelete.Click.Connect([this] { DeleteProfile(); });
    cmdImport.Click.Connect([this] { OpenImport(); });
    lstAircrafts.Click.Connect([this] { ShowAircraft(); });
    lstAircrafts.DblClick.Connect([this] { ChangeAircraft(); });
    FillLists();
    lstProfiles.SetListIndex(0);
}

void frmProfilesSetup::PlaceAll() {
    PlaceControls({
        {tabMain, 120, 120, kPageWidth + 240, kPageHeight + 540},
        {frameMain[0], 240, 540, kPageWidth, kPageHeight, "Profiles List"},
        {lstProfiles, 180, 330, 3480, 3990},
        {cmdNew, 3840, 330, 3540, 390, "Add new Profile"},
        {cmdDelete, 3840, 840, 3540, 390, "Delete Select. Profile"},
        {cmdImport, 3840, 1350, 3540, 390, "Import data from other profiles"},
        {frameSpecialMode, 3840, 2040, 3540, 1440, "Select Special Mode"},
        {optSpecialMode[0], 180, 330, 3180, 270, "None"},
        {optSpecialMode[1], 180, 660, 3180, 270, "Leonardo Maddog 2008/2010"},
        {optSpecialMode[2], 180, 990, 3180, 270, "PMDG NGX"},

        {frameMain[1], 240, 540, kPageWidth, kPageHeight, "Aircrafts List"},
        {lstAircrafts, 180, 330, 7200, 2760},
        {frameAircraft, 180, 3210, 7200, 720, "Profile assigned to this aircraft"},
        {labProfile, 180, 330, 6840, 240},
        {labNote, 180, 4080, 7200, 240, "Double click an aircraft to change its profile"},
    });
    SetContentSize(tabMain.Width + 240, tabMain.Height + 240);
}

// None of the entries is selected after that.
void frmProfilesSetup::FillLists() {
    lstProfiles.SetItems(profiles_.ProfileNames());
    lstAircrafts.SetItems(profiles_.AircraftNames());
    labProfile.Caption = "";
    cmdImport.Enabled = false;
    frameSpecialMode.Enabled = false;
}

void frmProfilesSetup::FollowLists() {
    const std::string profile = lstProfiles.Text();
    const std::string aircraft = lstAircrafts.Text();
    following_ = true;
    FillLists();
    SelectEntry(lstProfiles, profile);
    SelectEntry(lstAircrafts, aircraft);
    following_ = false;
}

void frmProfilesSetup::ShowProfile() {
    cmdDelete.Enabled = lstProfiles.ListIndex() != lstProfiles.ListCount() - 1;
    cmdImport.Enabled = true;
    frameSpecialMode.Enabled = true;
    ShowMode();
}

// Of a file that can't be read no mode is chosen.
void frmProfilesSetup::ShowMode() {
    const auto mode = ProfileMode(profiles_.Files, lstProfiles.Text()).Read();
    selecting_ = true;
    for (const uint8_t each : kModes) optSpecialMode[each].SetValue(mode == each);
    selecting_ = false;
}

void frmProfilesSetup::ShowModeAgain() {
    following_ = true;
    ShowMode();
    following_ = false;
}

// A word that means the mode which is shown is written as we write it, if it can be.
void frmProfilesSetup::SaveMode(uint8_t mode) {
    if (following_) return;
    const SaveResult saved = ProfileMode(profiles_.Files, lstProfiles.Text()).Write(mode);
    if (!selecting_ && !TellUnlessDone(Ui(), saved)) ShowModeAgain();
}

void frmProfilesSetup::ShowAircraft() {
    labProfile.Caption = profiles_.ProfileOfAircraft(lstAircrafts.Text());
}

void frmProfilesSetup::AddProfile() {
    frmProfileName window(services_);
    window.OpenModally();
    if (IsUnloaded()) return;
    profiles_.AddProfile(window.NewProfileName);
    Save([this] { return profiles_.SaveProfileList(); });
    FillLists();
}

void frmProfilesSetup::DeleteProfile() {
    const std::string profile = lstProfiles.Text();
    if (!MayDelete(profile)) return;
    const bool wanted = Ui().MsgBox(kDeleteRequest) == MsgBoxResult::Ok;
    // An aircraft may have come under the box, and have been bound to it.
    if (wanted && MayDelete(profile)) Save([&] { return profiles_.DeleteProfile(profile); });
    FillLists();
}

bool frmProfilesSetup::MayDelete(const std::string& profile) {
    const auto refusal = RefusalToDelete(profiles_, profile);
    if (refusal) Ui().MsgBox(*refusal);
    return !refusal;
}

void frmProfilesSetup::OpenImport() {
    frmProfileImport(services_, lstProfiles.Text()).OpenModally();
    if (!IsUnloaded()) ShowModeAgain();
}

void frmProfilesSetup::ChangeAircraft() {
    const std::string aircraft = lstAircrafts.Text();
    frmAircraftProfile window(services_, aircraft);
    window.OpenModally();
    if (window.ChosenProfile.empty()) return;
    profiles_.RebindAircraft(aircraft, window.ChosenProfile);
    FollowLists();
    Save([this] {
        SaveResult saved = profiles_.SaveProfileList();
        return saved ? profiles_.SaveAircraftList() : saved;
    });
}

void frmProfilesSetup::Save(const std::function<SaveResult()>& save) {
    SaveResult saved;
    static_cast<void>(Patience(services_.windows.clock, kSavePatienceMs).Try([&] {
        saved = save();
        return static_cast<bool>(saved);
    }));
    TellUnlessDone(Ui(), saved);
}
