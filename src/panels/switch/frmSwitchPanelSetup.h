#pragma once

#include "panels/switch/cSwitchPanelActionsHolder.h"
#include "toolkit/CheckBox.h"
#include "toolkit/TabStrip.h"
#include "ui/PanelSetupForm.h"
#include "ui/SelectorFrame.h"
#include "ui/TabPages.h"

// The setup window of a Switch Panel. OK saves the general options as well, and Cancel loads them.
class frmSwitchPanelSetup : public PanelSetupForm {
  public:
    // A single engine is selected with a Radio Panel: without one there is nothing to choose.
    frmSwitchPanelSetup(const SetupServices& services, bool hasRadioPanel);

    cSwitchPanelActionsHolder SPActions;

    TabStrip tabMenu;
    Container picMain[3];  // the pages, by tab

    TabStrip tabMain;  // a tab for each SwitchNumber
    SelectorFrame frameOFF;
    SelectorFrame frameON;
    ctlEventSelector* const esSwitch[2] = {&frameOFF.selector, &frameON.selector};

    Frame frameRetGear;
    CheckBox chkRetGear;
    Label labRetGear[2];

    Frame frameEngines;
    CheckBox chkStarterSelector;
    CheckBox chkFuelPump;
    CheckBox chkAltSwitch;
    CheckBox chkCowlFlaps;
    CheckBox chkDeIce;
    Label labEngines[7];

    CommandButton cmdOk;
    CommandButton cmdCancel;

  private:
    void PlaceAll();
    void PlaceNotes();
    void TieControls(bool hasRadioPanel);
    SaveResult Save() override;
    void Revert() override;

    TabPages pages_;
};
