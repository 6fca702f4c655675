#pragma once

#include "panels/multi/NGXFunctionsFrame.h"
#include "panels/multi/cMultiPanelActionsHolder.h"
#include "toolkit/CheckBox.h"
#include "toolkit/OptionButton.h"
#include "toolkit/TabStrip.h"
#include "ui/PanelSetupForm.h"
#include "ui/SelectorFrame.h"
#include "ui/SliderFrame.h"
#include "ui/TabPages.h"

// The setup window of a Multi Panel.
class frmMultiPanelSetup : public PanelSetupForm {
  public:
    explicit frmMultiPanelSetup(const SetupServices& services);

    Event<> Saved;  // the profile has what the window shows

    cMultiPanelActionsHolder MPActions;

    TabStrip tabMain;
    Container picMain[7];  // the pages, by tab

    TabStrip tabSelector;
    ctlEventSelector esSelector;
    Label labSelector;

    TabStrip tabRotary;
    SelectorFrame frameRotUp, frameRotDown;
    ctlEventSelector& esRotUp = frameRotUp.selector;
    ctlEventSelector& esRotDown = frameRotDown.selector;
    SliderFrame frameRotAcceleration;
    Slider& sliderRotAcceleration = frameRotAcceleration.slider;
    Frame frameCourse;
    OptionButton optCourse[3];
    Label labCourse;

    TabStrip tabButtons;
    SelectorFrame frameButtons, frameLongButtons;
    ctlEventSelector& esButtons = frameButtons.selector;
    ctlEventSelector& esLongButtons = frameLongButtons.selector;
    Label labButtons;

    SelectorFrame frameATArm, frameATOff;
    ctlEventSelector& esATArm = frameATArm.selector;
    ctlEventSelector& esATOff = frameATOff.selector;

    SelectorFrame frameFlapsUp, frameFlapsDown;
    ctlEventSelector& esFlapsUp = frameFlapsUp.selector;
    ctlEventSelector& esFlapsDown = frameFlapsDown.selector;
    CheckBox chkRevFlaps;
    Label labRevFlaps;

    SelectorFrame frameTrimUp, frameTrimDown;
    ctlEventSelector& esTrimUp = frameTrimUp.selector;
    ctlEventSelector& esTrimDown = frameTrimDown.selector;
    SliderFrame frameTrimAcceleration, frameTrimSensitivity;
    Slider& sliderTrimAcceleration = frameTrimAcceleration.slider;
    Slider& sliderTrimSensitivity = frameTrimSensitivity.slider;
    CheckBox chkRevTrim;
    Label labRevTrim;

    Label labSelectMode;
    OptionButton optSpecialMode[2];  // of modes 1 and 2, as are the frames
    Label labSpecialModes;
    Frame frameMaddog;
    Label labMaddog;
    NGXFunctionsFrame frameNGX;
    Frame* const frameSM[2] = {&frameMaddog, &frameNGX};

    CommandButton cmdOk;
    CommandButton cmdCancel;

  private:
    void PlaceAll();
    void PlaceSpecialModes();
    void TieTabs();
    void TieOthers();
    SaveResult Save() override;

    TabPages pages_;
};
