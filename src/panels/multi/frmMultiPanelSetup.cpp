#include "panels/multi/frmMultiPanelSetup.h"

#include "ui/Layout.h"

namespace {

using Holder = cMultiPanelActionsHolder;

constexpr int32_t kWidth = 9720;
constexpr SliderFrame::End kMin = {1, "Min"}, kMax = {100, "Max"};

// Within a page: an inner strip with two selectors above each other, what stands beside them, and
// the note below.
constexpr int32_t kPageWidth = 9360, kPageHeight = 5100;
constexpr int32_t kStripWidth = 9120, kStripHeight = 4260;
constexpr int32_t kLeft = 300, kUpper = 600, kLower = 2460;
constexpr int32_t kBeside = 6405;
constexpr int32_t kNote = 4500;
// The same without a strip.
constexpr int32_t kAlone = 180, kFirst = 180, kSecond = 2040;
constexpr int32_t kFrameWidth = SelectorFrame::kWidth, kFrameHeight = SelectorFrame::kHeight;
constexpr int32_t kSideWidth = SliderFrame::kWidth, kSliderHeight = SliderFrame::kHeight;

void AddTabs(TabStrip& tabs, std::initializer_list<const char*> captions) {
    for (const char* caption : captions) tabs.AddTab(0, caption, caption);
}

}  // namespace

frmMultiPanelSetup::frmMultiPanelSetup(const SetupServices& services)
    : PanelSetupForm(services),
      MPActions(services.profiles),
      tabMain(this),
      picMain{Container(this), Container(this), Container(this), Container(this),
              Container(this), Container(this), Container(this)},
      tabSelector(&picMain[0]),
      esSelector(&picMain[0], services.selectors),
      labSelector(&picMain[0]),
      tabRotary(&picMain[1]),
      frameRotUp(&picMain[1], services.selectors),
      frameRotDown(&picMain[1], services.selectors),
      frameRotAcceleration(&picMain[1], kMin, kMax),
      frameCourse(&picMain[1]),
      optCourse{OptionButton(&frameCourse), OptionButton(&frameCourse), OptionButton(&frameCourse)},
      labCourse(&frameCourse),
      tabButtons(&picMain[2]),
      frameButtons(&picMain[2], services.selectors),
      frameLongButtons(&picMain[2], services.selectors),
      labButtons(&picMain[2]),
      frameATArm(&picMain[3], services.selectors),
      frameATOff(&picMain[3], services.selectors),
      frameFlapsUp(&picMain[4], services.selectors),
      frameFlapsDown(&picMain[4], services.selectors),
      chkRevFlaps(&picMain[4]),
      labRevFlaps(&picMain[4]),
      frameTrimUp(&picMain[5], services.selectors),
      frameTrimDown(&picMain[5], services.selectors),
      frameTrimAcceleration(&picMain[5], kMin, kMax),
      frameTrimSensitivity(&picMain[5], {1, "High"}, {4, "Low"}),
      chkRevTrim(&picMain[5]),
      labRevTrim(&picMain[5]),
      labSelectMode(&picMain[6]),
      optSpecialMode{OptionButton(&picMain[6]), OptionButton(&picMain[6])},
      labSpecialModes(&picMain[6]),
      frameMaddog(&picMain[6]),
      labMaddog(&frameMaddog),
      frameNGX(&picMain[6]),
      cmdOk(this),
      cmdCancel(this),
      pages_(tabMain, {{"Mode Selector", &picMain[0]},
                       {"Rotary Knob", &picMain[1]},
                       {"Buttons", &picMain[2]},
                       {"Auto Throttle", &picMain[3]},
                       {"Flaps", &picMain[4]},
                       {"Trim", &picMain[5]},
                       {"Special Modes", &picMain[6]}}) {
    Caption = "  ORVO - Multi Panel Configuration";
    for (TabStrip* tabs : {&tabSelector, &tabRotary}) {
        AddTabs(*tabs, {"ALT", "VS", "IAS", "HDG", "CRS"});
    }
    AddTabs(tabButtons, {"AP", "HDG", "NAV", "IAS", "ALT", "VS", "APR", "REV"});
    PlaceAll();
    PlaceSpecialModes();
    PlaceBottom(kWidth, tabMain.Top + tabMain.Height, cmdOk, cmdCancel);
    TieTabs();
    TieOthers();
    Begin(MPActions);
}

void frmMultiPanelSetup::PlaceAll() {
    PlaceControls({
        {tabMain, kMargin, kMargin, kWidth - 2 * kMargin, kPageHeight + 420},

        {tabSelector, 120, 120, kStripWidth, kStripHeight},
        {esSelector, kLeft, kUpper, 0, 0},
        {labSelector, 120, kNote, kStripWidth, 480,
         "Here you can setup the events to send to FS when the mode selector is switched. By "
         "default no event is sent to FS, but you can change this behaviour to suite your needs."},

        {tabRotary, 120, 120, kStripWidth, kStripHeight},
        {frameRotUp, kLeft, kUpper, kFrameWidth, kFrameHeight, "Clockwise"},
        {frameRotDown, kLeft, kLower, kFrameWidth, kFrameHeight, "Counter Clockwise"},
        {frameRotAcceleration, kBeside, kUpper, kSideWidth, kSliderHeight, "Acceleration"},
        {frameCourse, kBeside, 2100, kSideWidth, 2100, "Course"},
        {optCourse[0], 180, 330, kSideWidth - 360, 270, "Selectable"},
        {optCourse[1], 180, 630, kSideWidth - 360, 270, "Crs 1"},
        {optCourse[2], 180, 930, kSideWidth - 360, 270, "Crs2"},
        {labCourse, 180, 1290, kSideWidth - 360, 690,
         "Please refer to manual to learn how course selection works."},

        {tabButtons, 120, 120, kStripWidth, kStripHeight},
        {frameButtons, kLeft, kUpper, kFrameWidth, kFrameHeight, "Short Click"},
        {frameLongButtons, kLeft, kLower, kFrameWidth, kFrameHeight, "Long Click"},
        {labButtons, 120, kNote, kStripWidth, 480,
         "Buttons don't depend on Mode Selector position. Buttons Led behaviour is not "
         "customizable, it will be in a future release"},

        {frameATArm, kAlone, kFirst, kFrameWidth, kFrameHeight, "ARM"},
        {frameATOff, kAlone, kSecond, kFrameWidth, kFrameHeight, "OFF"},

        {frameFlapsUp, kAlone, kFirst, kFrameWidth, kFrameHeight, "UP"},
        {frameFlapsDown, kAlone, kSecond, kFrameWidth, kFrameHeight, "DOWN"},
        {chkRevFlaps, kBeside, kFirst + 90, kSideWidth, 270, "Reverse Flaps"},
        {labRevFlaps, kBeside, kFirst + 420, kSideWidth, 480,
         "Flaps reverse is active only in FSUIPC offset mode"},

        {frameTrimUp, kAlone, kFirst, kFrameWidth, kFrameHeight, "UP"},
        {frameTrimDown, kAlone, kSecond, kFrameWidth, kFrameHeight, "DOWN"},
        {frameTrimAcceleration, kBeside, kFirst, kSideWidth, kSliderHeight, "Acceleration"},
        {frameTrimSensitivity, kBeside, 1590, kSideWidth, kSliderHeight, "Sensitivity"},
        {chkRevTrim, kBeside, 3060, kSideWidth, 270, "Reverse Trim"},
        {labRevTrim, kBeside, 3390, kSideWidth, 480,
         "Trim reverse is active only in FSUIPC offset mode"},
    });
    for (Container& page : picMain) page.Move(180, 480, kPageWidth, kPageHeight);
    for (SliderFrame* frame : {&frameRotAcceleration, &frameTrimAcceleration}) {
        frame->slider.TickFrequency = 10;
    }
    sliderTrimSensitivity.LargeChange = 1;
}

void frmMultiPanelSetup::PlaceSpecialModes() {
    constexpr int32_t kTextWidth = kPageWidth - 360;
    PlaceControls({
        {labSelectMode, 180, 120, kTextWidth, 240, "Select Special Modes options"},
        {optSpecialMode[0], 180, 390, 4200, 270, "Leonardo Maddog 2008/2010"},
        {optSpecialMode[1], 4560, 390, 4200, 270, "PMDG NGX"},
        {labSpecialModes, 180, 750, kTextWidth, 450,
         "Special modes are particular operation mode specific to certain aircrafts. If you set a "
         "Special Mode any other setup, excluding acceleration, are overridden and a custom logic "
         "is applied."},
        {frameMaddog, 180, 1320, kTextWidth, 3420, "Leonado Maddog special mode options"},
        {labMaddog, 180, 390, kTextWidth - 360, 240,
         "At the moment there are no config options for this special mode."},
        {frameNGX, 180, 1320, kTextWidth, 3420},
    });
    for (size_t i = 0; i < std::size(frameSM); ++i) {
        optSpecialMode[i].Click.Connect([this, i] {
            frameSM[i]->Visible = true;
            frameSM[1 - i]->Visible = false;
        });
    }
    optSpecialMode[0].SetValue(true);
}

void frmMultiPanelSetup::TieTabs() {
    const auto action = [this](TabStrip& tabs, auto get, auto set) {
        return NumberedPlace<ActionRecord>(MPActions, get, set,
                                           [&tabs] { return tabs.SelectedItem(); });
    };
    TiesOfTab(tabSelector)
        .Add(esSelector,
             action(tabSelector, &Holder::GetSelectorActions, &Holder::SetSelectorActions));

    Ties& rotary = TiesOfTab(tabRotary);
    rotary.Add(esRotUp, action(tabRotary, &Holder::GetRotUpActions, &Holder::SetRotUpActions));
    rotary.Add(esRotDown,
               action(tabRotary, &Holder::GetRotDownActions, &Holder::SetRotDownActions));
    rotary.Add(sliderRotAcceleration, NumberedPlace<int32_t>(MPActions, &Holder::GetRotAcceleration,
                                                             &Holder::SetRotAcceleration, [this] {
                                                                 return tabRotary.SelectedItem();
                                                             }));

    Ties& buttons = TiesOfTab(tabButtons);
    buttons.Add(esButtons,
                action(tabButtons, &Holder::GetButtonsActions, &Holder::SetButtonsActions));
    buttons.Add(esLongButtons,
                action(tabButtons, &Holder::GetLongButtonsActions, &Holder::SetLongButtonsActions));
}

void frmMultiPanelSetup::TieOthers() {
    Ties& ties = TiesOfPanel();
    const auto tie = [&](ctlEventSelector& selector, auto get, auto set, int32_t number) {
        ties.Add(selector,
                 NumberedPlace<ActionRecord>(MPActions, get, set, [number] { return number; }));
    };
    tie(esATOff, &Holder::GetAutoThrottleActions, &Holder::SetAutoThrottleActions, 0);
    tie(esATArm, &Holder::GetAutoThrottleActions, &Holder::SetAutoThrottleActions, 1);
    tie(esFlapsDown, &Holder::GetFlapsActions, &Holder::SetFlapsActions, 0);
    tie(esFlapsUp, &Holder::GetFlapsActions, &Holder::SetFlapsActions, 1);
    tie(esTrimDown, &Holder::GetTrimActions, &Holder::SetTrimActions, 0);
    tie(esTrimUp, &Holder::GetTrimActions, &Holder::SetTrimActions, 1);
    ties.Add({&optCourse[0], &optCourse[1], &optCourse[2]},
             FieldPlace<int32_t>(MPActions.CourseSel), Ties::When::AtOnce);
    ties.Add(sliderTrimAcceleration, FieldPlace<int32_t>(MPActions.TrimAcceleration));
    ties.Add(sliderTrimSensitivity, FieldPlace<int32_t>(MPActions.TrimSensitivity));
    ties.Add(chkRevTrim, FieldPlace<bool>(MPActions.ReverseTrim));
    ties.Add(chkRevFlaps, FieldPlace<bool>(MPActions.ReverseFlaps));
    frameNGX.Tie(ties, MPActions);
}

SaveResult frmMultiPanelSetup::Save() {
    SaveResult saved = PanelSetupForm::Save();
    if (saved) Saved.Raise();
    return saved;
}
