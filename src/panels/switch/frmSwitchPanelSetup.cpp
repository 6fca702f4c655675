#include "panels/switch/frmSwitchPanelSetup.h"

#include "ui/Layout.h"

namespace {

constexpr int32_t kWidth = 9720;
constexpr int32_t kPageWidth = 9360, kPageHeight = 4500;
constexpr int32_t kFrameWidth = SelectorFrame::kWidth, kFrameHeight = SelectorFrame::kHeight;
constexpr int32_t kTextWidth = kPageWidth - 360;

// By number, from 1.
constexpr const char* kSwitches[] = {
    "Selector OFF", "Selector R", "Selector L",      "Selector Both/All", "Selector Start",
    "Master BAT",   "Master ALT", "Avionics Master", "Fuel Pump",         "De-Ice",
    "Pitot Heat",   "Cowl",       "Panel L.",        "Beacon L.",         "Nav L.",
    "Strobe L",     "Taxi L.",    "Landing L.",      "Gear Up",           "Gear Down"};
static_assert(std::size(kSwitches) == SwitchNumber::kGearDown);

}  // namespace

frmSwitchPanelSetup::frmSwitchPanelSetup(const SetupServices& services, bool hasRadioPanel)
    : PanelSetupForm(services),
      SPActions(services.profiles),
      tabMenu(this),
      picMain{Container(this), Container(this), Container(this)},
      tabMain(&picMain[0]),
      frameOFF(&picMain[0], services.selectors),
      frameON(&picMain[0], services.selectors),
      frameRetGear(&picMain[1]),
      chkRetGear(&frameRetGear),
      labRetGear{Label(&picMain[1]), Label(&picMain[1])},
      frameEngines(&picMain[2]),
      chkStarterSelector(&frameEngines),
      chkFuelPump(&frameEngines),
      chkAltSwitch(&frameEngines),
      chkCowlFlaps(&frameEngines),
      chkDeIce(&frameEngines),
      labEngines{Label(&picMain[2]), Label(&picMain[2]), Label(&picMain[2]), Label(&picMain[2]),
                 Label(&picMain[2]), Label(&picMain[2]), Label(&picMain[2])},
      cmdOk(this),
      cmdCancel(this),
      pages_(tabMenu, {{"Switches", &picMain[0]},
                       {"Gear Warning", &picMain[1]},
                       {"Engine Selection Mode", &picMain[2]}}) {
    Caption = "  ORVO - Switch Panel Configuration";
    for (const char* name : kSwitches) tabMain.AddTab(0, name, name);
    PlaceAll();
    PlaceNotes();
    PlaceBottom(kWidth, tabMenu.Top + tabMenu.Height, cmdOk, cmdCancel);
    TieControls(hasRadioPanel);
    Begin(SPActions);
}

void frmSwitchPanelSetup::PlaceAll() {
    PlaceControls({
        {tabMenu, kMargin, kMargin, kWidth - 2 * kMargin, kPageHeight + 420},

        {tabMain, 120, 120, kPageWidth - 240, 4260},
        {frameOFF, 300, 600, kFrameWidth, kFrameHeight, "Event when switched OFF"},
        {frameON, 300, 2460, kFrameWidth, kFrameHeight, "Event when switched ON"},

        {frameRetGear, 180, 180, kTextWidth, 780, "Only for Flight Simulator 2004"},
        {chkRetGear, 180, 345, kTextWidth - 360, 270, "Aircraft has retractable gear"},

        {frameEngines, 180, 180, kTextWidth, 1980, "Apply single engine selection to"},
        {chkStarterSelector, 180, 345, kTextWidth - 360, 270, "Starter Selector"},
        {chkFuelPump, 180, 645, kTextWidth - 360, 270, "Fuel Pump Switch"},
        {chkAltSwitch, 180, 945, kTextWidth - 360, 270, "Alternator Switch"},
        {chkCowlFlaps, 180, 1245, kTextWidth - 360, 270, "Cowl flaps"},
        {chkDeIce, 180, 1545, kTextWidth - 360, 270, "De-Ice"},
    });
    for (Container& page : picMain) page.Move(180, 480, kPageWidth, kPageHeight);
}

void frmSwitchPanelSetup::PlaceNotes() {
    constexpr int32_t kLine = 240;
    PlaceControls({
        {labRetGear[0], 180, 1110, kTextWidth, 2 * kLine,
         "Using Flight Simulator 2004 you have to specify manually if Orvo has to manage the Gear "
         "Warning Lights"},
        {labRetGear[1], 180, 1680, kTextWidth, 2 * kLine,
         "Using Flight Simulator X Orvo is capable to detect automatically if a certain aircraft "
         "has retractable gears."},

        {labEngines[0], 180, 2310, kTextWidth, kLine,
         "To select the desired engine use first Radio Panel upper selector:"},
        {labEngines[1], 360, 2565, kTextWidth, kLine, "COM1 = Engine 1"},
        {labEngines[2], 360, 2805, kTextWidth, kLine, "COM2 = Engine 2"},
        {labEngines[3], 360, 3045, kTextWidth, kLine, "NAV1 = Engine 3"},
        {labEngines[4], 360, 3285, kTextWidth, kLine, "NAV2 = Engine 4"},
        {labEngines[5], 180, 3585, kTextWidth, kLine,
         "If you don't own a Radio Panel all functions will be applied to all engines."},
        {labEngines[6], 180, 3885, kTextWidth, kLine,
         "Functions not selected will be managed for all engines at the same time."},
    });
}

void frmSwitchPanelSetup::TieControls(bool hasRadioPanel) {
    Ties& events = TiesOfTab(tabMain);
    for (const int32_t state : {0, 1}) {
        events.Add(
            *esSwitch[state],
            {[this, state] { return SPActions.GetSwitchActions(tabMain.SelectedItem(), state); },
             [this, state](const ActionRecord& record) {
                 SPActions.SetSwitchActions(tabMain.SelectedItem(), state, record);
             }});
    }
    Ties& options = TiesOfPanel();
    options.Add(chkRetGear, FieldPlace<bool>(SPActions.RetractableGear), Ties::When::AtOnce);
    const struct {
        CheckBox& box;
        bool& option;
    } engines[] = {
        {chkStarterSelector, SPActions.SingleStarterSelector},
        {chkFuelPump, SPActions.SingleFuelPump},
        {chkAltSwitch, SPActions.SingleAltSwitch},
        {chkCowlFlaps, SPActions.SingleCowlFlaps},
        {chkDeIce, SPActions.SingleDeIce},
    };
    for (const auto& [box, option] : engines) {
        box.Enabled = hasRadioPanel;
        if (hasRadioPanel) options.Add(box, FieldPlace<bool>(option), Ties::When::AtOnce);
    }
}

// The window's place gets to the file with a later save.
SaveResult frmSwitchPanelSetup::Save() {
    const SaveResult saved = PanelSetupForm::Save();
    return saved ? Services().generalSetup.SaveSetup() : saved;
}

void frmSwitchPanelSetup::Revert() { static_cast<void>(Services().generalSetup.LoadSetup()); }
