#include "ui/profiles/frmProfileImport.h"

#include <algorithm>

#include "base/Text.h"
#include "ui/DialogForm.h"
#include "ui/Layout.h"

namespace {

constexpr int32_t kPageWidth = 5640, kPageHeight = 3840;
constexpr int32_t kTextWidth = kPageWidth - 360;

MsgBoxRequest Told(const char* text, MsgBoxIcon icon) {
    return {text, "Orvo", icon, MsgBoxButtons::Ok};
}

// As the caption of a box, in which a single "&" marks a key.
std::string AsCaption(const std::string& name) {
    std::string caption;
    for (const char c : name) caption.append(c == '&' ? 2 : 1, c);
    return caption;
}

}  // namespace

frmProfileImport::frmProfileImport(const ProfileWindowServices& services, const std::string& target)
    : PlacedForm(services.windows,
                 {&cSetupHolder::ProfileImportFormTop, &cSetupHolder::ProfileImportFormLeft}),
      frameWizard{Container(this), Container(this), Container(this)},
      frameSource(&frameWizard[0]),
      lstProfiles(&frameSource),
      frameTarget(&frameWizard[0]),
      lblTargetProfile(&frameTarget),
      frameSections(&frameWizard[1]),
      chkSection{CheckBox(&frameSections), CheckBox(&frameSections), CheckBox(&frameSections),
                 CheckBox(&frameSections), CheckBox(&frameSections), CheckBox(&frameSections),
                 CheckBox(&frameSections), CheckBox(&frameSections), CheckBox(&frameSections),
                 CheckBox(&frameSections)},
      labConfirm(&frameWizard[2]),
      frameConfirm(&frameWizard[2]),
      lblSourceProfile(&frameConfirm),
      cmdOk(this),
      cmdCancel(this),
      files_(services.profiles.Files) {
    Caption = "  ORVO";
    PlaceAll();
    lblTargetProfile.Caption = target;
    for (const std::string& name : services.profiles.ProfileNames()) {
        if (!EqualNoCase(name, target)) lstProfiles.AddItem(name);
    }
    lstProfiles.Click.Connect([this] { cmdOk.Enabled = true; });
    cmdOk.Click.Connect([this] { GoOn(); });
    cmdCancel.Click.Connect([this] { Unload(); });
    ShowPage(0);
}

void frmProfileImport::PlaceAll() {
    PlaceControls({
        {frameSource, 0, 0, kPageWidth, 2940, "Select the source profile"},
        {lstProfiles, 180, 330, kTextWidth, 2430},
        {frameTarget, 0, 3060, kPageWidth, 780, "Target Profile"},
        {lblTargetProfile, 180, 345, kTextWidth, 240},
        {frameSections, 0, 0, kPageWidth, kPageHeight, "Select the sections to import"},
        {labConfirm, 180, 600, kTextWidth, 240, "Confirm the import of selected sections?"},
        {frameConfirm, 0, 1200, kPageWidth, 780, "Source Profile"},
        {lblSourceProfile, 180, 345, kTextWidth, 240},
        {cmdOk, 3120, 4080, 1260, 390, "Next"},
        {cmdCancel, 4500, 4080, 1260, 390, "Cancel"},
    });
    for (Container& page : frameWizard) page.Move(120, 120, kPageWidth, kPageHeight);
    int32_t top = 360;
    for (CheckBox& box : chkSection) {
        box.Move(180, top, kTextWidth, 270);
        box.Visible = false;
        top += 330;
    }
    SetContentSize(5880, 4590);
    DefaultButton = &cmdOk;
    CancelButton = &cmdCancel;
    cmdOk.Enabled = false;
}

void frmProfileImport::GoOn() {
    if (Step == 0) {
        ChooseSource();
    } else if (Step == 1) {
        ChooseSections();
    } else {
        Import();
    }
}

void frmProfileImport::ShowPage(int page) {
    Step = page;
    for (int i = 0; i < 3; ++i) frameWizard[i].Visible = i == page;
}

void frmProfileImport::ChooseSource() {
    const std::string source = lstProfiles.Text();
    import_.emplace(files_, source, lblTargetProfile.Caption);
    const auto sections = import_->Sections();
    if (!sections) {
        TellUnlessDone(Ui(), files_.Unread(source));
        return;
    }
    if (sections->empty()) {
        Ui().MsgBox(Told("The selected profile has not sections to import", MsgBoxIcon::Critical));
        return;
    }
    lblSourceProfile.Caption = source;
    sections_.assign(sections->begin(), sections->begin() + static_cast<std::ptrdiff_t>(std::min(
                                                                kMostSections, sections->size())));
    for (size_t i = 0; i < sections_.size(); ++i) {
        chkSection[i].Caption = AsCaption(sections_[i]);
        chkSection[i].Visible = true;
    }
    ShowPage(1);
}

void frmProfileImport::ChooseSections() {
    if (Ticked().empty()) {
        Ui().MsgBox(
            Told("You have selected no sections. Please select at least one section "
                 "before proceeding",
                 MsgBoxIcon::Critical));
        return;
    }
    cmdOk.Caption = "Ok";
    ShowPage(2);
}

void frmProfileImport::Import() {
    if (!TellUnlessDone(Ui(), import_->Copy(Ticked()))) return;
    Ui().MsgBox(Told("Import successfully completed !", MsgBoxIcon::Information));
    Unload();
}

std::vector<std::string> frmProfileImport::Ticked() const {
    std::vector<std::string> ticked;
    for (size_t i = 0; i < sections_.size(); ++i) {
        if (chkSection[i].Value()) ticked.push_back(sections_[i]);
    }
    return ticked;
}
