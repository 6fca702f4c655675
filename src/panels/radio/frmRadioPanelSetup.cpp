#include "panels/radio/frmRadioPanelSetup.h"

#include "base/Number.h"
#include "ui/Layout.h"

namespace {

using Holder = cRadioPanelActionsHolder;

constexpr int32_t kWidth = 9720;
constexpr int32_t kPagesTop = 1020, kPageHeight = 3900;
constexpr int32_t kFrameWidth = SelectorFrame::kWidth, kFrameHeight = SelectorFrame::kHeight;
constexpr int32_t kUpper = 120, kLower = 1980;
constexpr int32_t kBeside = 6720, kSideWidth = SliderFrame::kWidth;

// Kilohertz, within what a profile may hold.
TextPlace StepPlace(float& step) {
    const auto parsed = [](const std::string& text) {
        return ParseFloat(text, Holder::kLeastADFStep, Holder::kLargestADFStep);
    };
    return {[&step] { return FormatFloat(step); },
            [&step, parsed](const std::string& text) {
                const auto number = parsed(text);
                if (number) step = *number;
                return number.has_value();
            },
            [&step] { return FormatFloat(step); },
            // "0." on the way to "0.5"
            [parsed](const std::string& text) {
                return !text.empty() && !parsed(text) && parsed(text + '1').has_value();
            }};
}

}  // namespace

frmRadioPanelSetup::frmRadioPanelSetup(const SetupServices& services)
    : PanelSetupForm(services),
      RPActions(services.profiles),
      tabSelector(this),
      tabControls(this),
      picMain{Container(this), Container(this), Container(this), Container(this)},
      frameClockWise{SelectorFrame(&picMain[0], services.selectors),
                     SelectorFrame(&picMain[1], services.selectors)},
      frameCounterClock{SelectorFrame(&picMain[0], services.selectors),
                        SelectorFrame(&picMain[1], services.selectors)},
      frameSwitchButton(&picMain[2], services.selectors),
      frameSwitchLongButton(&picMain[2], services.selectors),
      esSelector(&picMain[3], services.selectors),
      frameAcceleration(this, {1, "Min"}, {100, "Max"}),
      picAddon{Container(this), Container(this), Container(this)},
      optADFMode{OptionButton(&picAddon[0]), OptionButton(&picAddon[0]),
                 OptionButton(&picAddon[0]), OptionButton(&picAddon[0]),
                 OptionButton(&picAddon[0]), OptionButton(&picAddon[0])},
      labADFInnStep(&picAddon[0]),
      txtADFInnStep(&picAddon[0]),
      labADFInnUnit(&picAddon[0]),
      labADFOutStep(&picAddon[0]),
      txtADFOutStep(&picAddon[0]),
      labADFOutUnit(&picAddon[0]),
      frameDME(&picAddon[1]),
      optDME{OptionButton(&frameDME), OptionButton(&frameDME), OptionButton(&frameDME),
             OptionButton(&frameDME)},
      frameAltimeter(&picAddon[2]),
      optAltimeter{OptionButton(&frameAltimeter), OptionButton(&frameAltimeter),
                   OptionButton(&frameAltimeter)},
      cmdOk(this),
      cmdCancel(this),
      positions_(tabSelector, {{"COM1"},
                               {"COM2"},
                               {"NAV1"},
                               {"NAV2"},
                               {"ADF", &picAddon[0]},
                               {"DME", &picAddon[1]},
                               {"XPDR", &picAddon[2]}}),
      controls_(tabControls, {{"Inner Knob", &picMain[0]},
                              {"Outer Knob", &picMain[1]},
                              {"Act/Stby Button", &picMain[2]},
                              {"Selector Change", &picMain[3]}}) {
    Caption = "  ORVO - Radio Panel Configuration";
    PlaceTabs();
    PlaceAddons();
    PlaceBottom(kWidth, tabSelector.Top + tabSelector.Height, cmdOk, cmdCancel);
    TieTabs();
    TieOthers();
    Begin(RPActions);
}

void frmRadioPanelSetup::PlaceTabs() {
    PlaceControls({
        {tabSelector, kMargin, kMargin, kWidth - 2 * kMargin, 5040},
        {tabControls, 240, 600, kFrameWidth + 360, kPageHeight + 420},
        {frameClockWise[0], 120, kUpper, kFrameWidth, kFrameHeight, "Clockwise"},
        {frameCounterClock[0], 120, kLower, kFrameWidth, kFrameHeight, "Counter Clockwise"},
        {frameClockWise[1], 120, kUpper, kFrameWidth, kFrameHeight, "Clockwise"},
        {frameCounterClock[1], 120, kLower, kFrameWidth, kFrameHeight, "Counter Clockwise"},
        {frameSwitchButton, 120, kUpper, kFrameWidth, kFrameHeight, "Short Click"},
        {frameSwitchLongButton, 120, kLower, kFrameWidth, kFrameHeight, "Long Click"},
        {esSelector, 300, 240, 0, 0},
        {frameAcceleration, kBeside, 600, kSideWidth, SliderFrame::kHeight, "Acceleration"},
    });
    for (Container& page : picMain) page.Move(300, kPagesTop, kFrameWidth + 240, kPageHeight);
    sliderRotAcceleration.TickFrequency = 10;
}

void frmRadioPanelSetup::PlaceAddons() {
    constexpr int32_t kTextWidth = 1320, kBoxLeft = kTextWidth + 60, kBoxWidth = 720;
    constexpr int32_t kUnitLeft = kBoxLeft + kBoxWidth + 60, kUnitWidth = kSideWidth - kUnitLeft;
    constexpr int32_t kOptionWidth = kSideWidth - 240;
    for (Container& page : picAddon) page.Move(kBeside, 2040, kSideWidth, 2940);
    PlaceControls({
        {optADFMode[0], 0, 0, kSideWidth, 270, "DME1 - ADF1"},
        {optADFMode[1], 0, 300, kSideWidth, 270, "DME2 - ADF2"},
        {optADFMode[2], 0, 600, kSideWidth, 270, "ADF1 - ADF2"},
        {optADFMode[3], 0, 900, kSideWidth, 270, "ADF1 Active/Standby"},
        {optADFMode[4], 0, 1200, kSideWidth, 270, "ADF2 Active/Standby"},
        {optADFMode[5], 0, 1500, kSideWidth, 270, "ADF1 if upper ADF2 if lower"},
        {labADFInnStep, 0, 1965, kTextWidth, 240, "Inner Kn.Step"},
        {txtADFInnStep, kBoxLeft, 1920, kBoxWidth, 300},
        {labADFInnUnit, kUnitLeft, 1965, kUnitWidth, 240, "Khz"},
        {labADFOutStep, 0, 2385, kTextWidth, 240, "Outer Kn.Step"},
        {txtADFOutStep, kBoxLeft, 2340, kBoxWidth, 300},
        {labADFOutUnit, kUnitLeft, 2385, kUnitWidth, 240, "Khz"},

        {frameDME, 0, 0, kSideWidth, 1620, "DME Setting"},
        {optDME[0], 120, 330, kOptionWidth, 270, "Toggle with ACT/STBY"},
        {optDME[1], 120, 630, kOptionWidth, 270, "DME1 Dist-DME2 Dist."},
        {optDME[2], 120, 930, kOptionWidth, 270, "DME1 Dist-DME1 Speed/Time"},
        {optDME[3], 120, 1230, kOptionWidth, 270, "DME2 Dist-DME2 Speed/Time"},

        {frameAltimeter, 0, 0, kSideWidth, 1320, "Altimeter setting unit"},
        {optAltimeter[0], 120, 330, kOptionWidth, 270, "Toggle using ACT/STBY"},
        {optAltimeter[1], 120, 630, kOptionWidth, 270, "Fixed hPa"},
        {optAltimeter[2], 120, 930, kOptionWidth, 270, "Fixed inHg"},
    });
}

void frmRadioPanelSetup::TieTabs() {
    Ties& ties = TiesOfTab(tabSelector);
    const auto position = [this] { return tabSelector.SelectedItem(); };
    const auto tie = [&](ctlEventSelector& selector, auto get, auto set) {
        ties.Add(selector, NumberedPlace<ActionRecord>(RPActions, get, set, position));
    };
    const auto tieKnob = [&](ctlEventSelector& selector, int32_t ring, int32_t direction) {
        ties.Add(selector, {[this, position, ring, direction] {
                                return RPActions.GetRotActions(ring, direction, position());
                            },
                            [this, position, ring, direction](const ActionRecord& record) {
                                RPActions.SetRotActions(ring, direction, position(), record);
                            }});
    };
    for (const int32_t ring : {0, 1}) {
        tieKnob(*esClockWise[ring], ring, 1);
        tieKnob(*esCounterClock[ring], ring, 0);
    }
    tie(esSwitchButton, &Holder::GetButtonsActions, &Holder::SetButtonsActions);
    tie(esSwitchLongButton, &Holder::GetLongButtonsActions, &Holder::SetLongButtonsActions);
    tie(esSelector, &Holder::GetSelectorActions, &Holder::SetSelectorActions);
    ties.Add(sliderRotAcceleration, NumberedPlace<int32_t>(RPActions, &Holder::GetAcceleration,
                                                           &Holder::SetAcceleration, position));
}

void frmRadioPanelSetup::TieOthers() {
    Ties& ties = TiesOfPanel();
    ties.Add({&optAltimeter[0], &optAltimeter[1], &optAltimeter[2]},
             FieldPlace<int32_t>(RPActions.AltimeterUnit), Ties::When::AtOnce);
    ties.Add({&optDME[0], &optDME[1], &optDME[2], &optDME[3]},
             FieldPlace<int32_t>(RPActions.DMEMode), Ties::When::AtOnce);
    ties.Add({&optADFMode[0], &optADFMode[1], &optADFMode[2], &optADFMode[3], &optADFMode[4],
              &optADFMode[5]},
             FieldPlace<int32_t>(RPActions.ADFMode), Ties::When::AtOnce);
    ties.Add(txtADFInnStep, StepPlace(RPActions.ADFInnerKnobStep));
    ties.Add(txtADFOutStep, StepPlace(RPActions.ADFOuterKnobStep));
}
