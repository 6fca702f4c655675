#pragma once

#include <optional>

#include "config/ProfileImport.h"
#include "toolkit/CheckBox.h"
#include "toolkit/Frame.h"
#include "toolkit/ListBox.h"
#include "toolkit/Picture.h"
#include "ui/PlacedForm.h"
#include "ui/profiles/ProfileWindowServices.h"

// A wizard that copies sections of another profile's file into that of the target: which profile,
// which sections, and a confirmation. Until that nothing is changed.
class frmProfileImport : public PlacedForm {
  public:
    frmProfileImport(const ProfileWindowServices& services, const std::string& target);

    static constexpr size_t kMostSections = 10;  // of a file that has more, the first

    int Step = 0;  // the page, 0 to 2

    Container frameWizard[3];

    Frame frameSource;
    ListBox lstProfiles;
    Frame frameTarget;
    Label lblTargetProfile;

    Frame frameSections;
    CheckBox chkSection[kMostSections];

    Label labConfirm;
    Frame frameConfirm;
    Label lblSourceProfile;

    CommandButton cmdOk;
    CommandButton cmdCancel;

  private:
    void PlaceAll();
    void GoOn();
    void ShowPage(int page);
    void ChooseSource();
    void ChooseSections();
    void Import();
    std::vector<std::string> Ticked() const;

    const ProfileFiles& files_;
    std::vector<std::string> sections_;  // those of the check boxes
    std::optional<ProfileImport> import_;
};
