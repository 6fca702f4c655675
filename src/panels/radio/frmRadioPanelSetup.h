#pragma once

#include "panels/radio/cRadioPanelActionsHolder.h"
#include "toolkit/OptionButton.h"
#include "toolkit/TabStrip.h"
#include "toolkit/TextBox.h"
#include "ui/PanelSetupForm.h"
#include "ui/SelectorFrame.h"
#include "ui/SliderFrame.h"
#include "ui/TabPages.h"

// The setup window of a Radio Panel. What stands at ADF, DME and XPDR beside the tabs is the whole
// panel's.
class frmRadioPanelSetup : public PanelSetupForm {
  public:
    explicit frmRadioPanelSetup(const SetupServices& services);

    cRadioPanelActionsHolder RPActions;

    TabStrip tabSelector;
    TabStrip tabControls;
    Container picMain[4];  // the pages of tabControls

    // By ring: 0 inner, 1 outer.
    SelectorFrame frameClockWise[2];
    SelectorFrame frameCounterClock[2];
    ctlEventSelector* const esClockWise[2] = {&frameClockWise[0].selector,
                                              &frameClockWise[1].selector};
    ctlEventSelector* const esCounterClock[2] = {&frameCounterClock[0].selector,
                                                 &frameCounterClock[1].selector};
    SelectorFrame frameSwitchButton, frameSwitchLongButton;
    ctlEventSelector& esSwitchButton = frameSwitchButton.selector;
    ctlEventSelector& esSwitchLongButton = frameSwitchLongButton.selector;
    ctlEventSelector esSelector;

    SliderFrame frameAcceleration;
    Slider& sliderRotAcceleration = frameAcceleration.slider;

    Container picAddon[3];  // the pages of the last three tabs, ADF to XPDR
    OptionButton optADFMode[6];
    Label labADFInnStep;
    TextBox txtADFInnStep;
    Label labADFInnUnit;
    Label labADFOutStep;
    TextBox txtADFOutStep;
    Label labADFOutUnit;
    Frame frameDME;
    OptionButton optDME[4];
    Frame frameAltimeter;
    OptionButton optAltimeter[3];

    CommandButton cmdOk;
    CommandButton cmdCancel;

  private:
    void PlaceTabs();
    void PlaceAddons();
    void TieTabs();
    void TieOthers();

    TabPages positions_;
    TabPages controls_;
};
