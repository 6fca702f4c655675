#include "ui/frmGeneralSetup.h"

#include <algorithm>
#include <iterator>

#include "base/Number.h"
#include "ui/Layout.h"

namespace {

struct PriorityEntry {
    const char* name;
    int32_t priorityClass;
};

constexpr PriorityEntry kPriorities[] = {
    {"Idle", 0x40},           {"Below Normal", 0x4000}, {"Normal", 0x20},
    {"Above Normal", 0x8000}, {"High", 0x80},           {"Real-time", 0x100},
};

constexpr int32_t kAutomatic = -1;

// By the number of the entry; -1 for a class that isn't in the list.
HolderPlace<int32_t> PriorityPlace(int32_t& priority) {
    return {[&priority] {
                const auto found =
                    std::ranges::find(kPriorities, priority, &PriorityEntry::priorityClass);
                return found == std::end(kPriorities)
                           ? -1
                           : static_cast<int32_t>(found - std::begin(kPriorities));
            },
            [&priority](int32_t index) { priority = kPriorities[index].priorityClass; }};
}

TextPlace MaskPlace(int32_t& mask) {
    return {[&mask] { return mask == kAutomatic ? std::string() : FormatInteger(mask); },
            [&mask](const std::string& text) {
                const auto number = ParseInteger<int32_t>(text);
                if (number) mask = *number;
                return number.has_value();
            },
            [] { return std::string(); }};
}

}  // namespace

frmGeneralSetup::frmGeneralSetup(const WindowServices& services)
    : DialogForm(services,
                 {&cSetupHolder::GeneralSetupFormTop, &cSetupHolder::GeneralSetupFormLeft}),
      tabMain(this),
      picMain{Container(this), Container(this)},
      chkAutoStart(&picMain[0]),
      chkAutoQuit(&picMain[0]),
      frameNewAircraft(&picMain[0]),
      optManprofile{OptionButton(&frameNewAircraft), OptionButton(&frameNewAircraft)},
      frameClickThreshold(&picMain[0]),
      sliderClickThreshold(&frameClickThreshold),
      labShortest(&frameClickThreshold),
      labLongest(&frameClickThreshold),
      labSeconds(&frameClickThreshold),
      frameOrvo(&picMain[1]),
      labOrvoPriority(&frameOrvo),
      cmbOrvoPriority(&frameOrvo),
      labOrvoAffinity(&frameOrvo),
      optOrvoAffinity{OptionButton(&frameOrvo), OptionButton(&frameOrvo)},
      txtOrvoAffinity(&frameOrvo),
      frameDeckhub(&picMain[1]),
      labDeckhubPriority(&frameDeckhub),
      cmbDeckhubPriority(&frameDeckhub),
      labDeckhubAffinity(&frameDeckhub),
      optDeckhubAffinity{OptionButton(&frameDeckhub), OptionButton(&frameDeckhub)},
      txtDeckhubAffinity(&frameDeckhub),
      labAttention{Label(&picMain[1]), Label(&picMain[1]), Label(&picMain[1])},
      cmdOk(this),
      cmdCancel(this),
      pages_(tabMain, {{"General", &picMain[0]}, {"Process Priority", &picMain[1]}}) {
    PlaceAll();
    UseButtons(cmdOk, cmdCancel);
    TieControls();
    ties_.Load();
}

void frmGeneralSetup::PlaceAll() {
    Caption = "  ORVO - General Options";
    SetContentSize(7800, 4875);
    PlaceControls({
        {tabMain, 120, 120, 7560, 4020},
        {picMain[0], 180, 480, 7440, 3600},
        {chkAutoStart, 180, 180, 7080, 270, "Start ORVO when Windows starts"},
        {chkAutoQuit, 180, 510, 7080, 270, "Quit ORVO when Flight Simulator stops"},
        {frameNewAircraft, 180, 930, 7080, 1110, "When a new aircraft is detected..."},
        {optManprofile[0], 180, 330, 6720, 270, "... ask for a profile to bind"},
        {optManprofile[1], 180, 660, 6720, 270, "... bind default profile"},
        {frameClickThreshold, 180, 2220, 7080, 1080, "Short/Long click threshold"},
        {labShortest, 180, 420, 360, 240, "0.1"},
        {sliderClickThreshold, 600, 345, 5160, 540},
        {labLongest, 5820, 420, 360, 240, "2.0"},
        {labSeconds, 6240, 420, 660, 240, "Sec."},

        {picMain[1], 180, 480, 7440, 3600},
        {frameOrvo, 180, 180, 3450, 2430, "Orvo.exe"},
        {labOrvoPriority, 180, 330, 3090, 240, "Process Priority"},
        {cmbOrvoPriority, 180, 585, 3090, 300},
        {labOrvoAffinity, 180, 1095, 3090, 240, "Process Affinity Mask"},
        {optOrvoAffinity[0], 180, 1350, 3090, 270, "Automatic"},
        {optOrvoAffinity[1], 180, 1650, 3090, 270, "Manual"},
        {txtOrvoAffinity, 180, 1950, 3090, 300},
        {frameDeckhub, 3810, 180, 3450, 2430, "Deckhub.exe"},
        {labDeckhubPriority, 180, 330, 3090, 240, "Process Priority"},
        {cmbDeckhubPriority, 180, 585, 3090, 300},
        {labDeckhubAffinity, 180, 1095, 3090, 240, "Process Affinity Mask"},
        {optDeckhubAffinity[0], 180, 1350, 3090, 270, "Automatic"},
        {optDeckhubAffinity[1], 180, 1650, 3090, 270, "Manual"},
        {txtDeckhubAffinity, 180, 1950, 3090, 300},
        {labAttention[0], 180, 2730, 7080, 240, ">>> ATTENTION <<<"},
        {labAttention[1], 180, 2985, 7080, 240,
         "Change this parameters only if you EXACTLY know what you are doing"},
        {labAttention[2], 180, 3240, 7080, 240,
         "Changes to process priority or affinity mask require a Orvo restart to take effect"},

        {cmdOk, 5040, 4320, 1260, 390},
        {cmdCancel, 6420, 4320, 1260, 390},
    });
    for (Label& label : labAttention) label.Align = Alignment::Center;
    labAttention[0].Face = FontFace::Bold;
    labShortest.Align = Alignment::Right;
    sliderClickThreshold.SetRange(100, 2000);
    sliderClickThreshold.SmallChange = 100;
    sliderClickThreshold.LargeChange = 200;
    sliderClickThreshold.TickFrequency = 100;
}

void frmGeneralSetup::TieControls() {
    cSetupHolder& setup = Services().generalSetup;
    ties_.Add(chkAutoStart, FieldPlace<bool>(setup.AutoStart), Ties::When::AtOnce);
    ties_.Add(chkAutoQuit, FieldPlace<bool>(setup.AutoQuit), Ties::When::AtOnce);
    ties_.Add({&optManprofile[0], &optManprofile[1]},
              {[&setup] { return setup.ManualProfile ? 0 : 1; },
               [&setup](int32_t option) { setup.ManualProfile = option == 0; }},
              Ties::When::AtOnce);
    ties_.Add(sliderClickThreshold, FieldPlace<int32_t>(setup.ClickThreshold), Ties::When::AtOnce);
    TieProcess(cmbOrvoPriority, setup.OrvoPriority, optOrvoAffinity, txtOrvoAffinity,
               setup.OrvoAffinity);
    TieProcess(cmbDeckhubPriority, setup.DeckhubPriority, optDeckhubAffinity, txtDeckhubAffinity,
               setup.DeckhubAffinity);
}

void frmGeneralSetup::TieProcess(ComboBox& priorities, int32_t& priority,
                                 OptionButton (&options)[2], TextBox& mask, int32_t& affinity) {
    for (const PriorityEntry& entry : kPriorities) priorities.AddItem(entry.name);
    ties_.Add(priorities, PriorityPlace(priority), Ties::When::AtOnce);
    options[0].Click.Connect([&mask] {
        mask.SetText("");
        mask.Enabled = false;
    });
    options[1].Click.Connect([&mask] { mask.Enabled = true; });
    ties_.Add({&options[0], &options[1]},
              {[&affinity] { return affinity == kAutomatic ? 0 : 1; },
               [&affinity](int32_t option) {
                   if (option == 0) affinity = kAutomatic;
               }},
              Ties::When::AtOnce);
    ties_.Add(mask, MaskPlace(affinity));
}

SaveResult frmGeneralSetup::Save() {
    StorePlace();
    return Services().generalSetup.SaveSetup();
}

// While the file can't be read they become what they were when it was last read or saved.
void frmGeneralSetup::Revert() { static_cast<void>(Services().generalSetup.LoadSetup()); }
