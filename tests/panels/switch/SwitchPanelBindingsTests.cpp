#include "panels/switch/cSwitchPanelActionsHolder.h"
#include "tests/panels/BindingsTest.h"

namespace {

constexpr char kSection[] = "SwitchPanel";
using SwitchPanelBindingsTest = BindingsTest<cSwitchPanelActionsHolder, kSection>;

Names SwitchKeys() {
    Names keys;
    for (const char* state : {"On", "Off"})
        for (const std::string name :
             {"SELOFF",   "SELR",     "SELL",  "SELALL",  "SELSTART", "BAT",     "ALT",
              "AVIONICS", "FUELPUMP", "DEICE", "PITOT",   "COWL",     "PANEL",   "BEACON",
              "NAV",      "STROBE",   "TAXI",  "LANDING", "GEARUP",   "GEARDOWN"})
            keys.push_back("Switch" + name + state);
    return keys;
}

TEST_F(SwitchPanelBindingsTest, EveryHolderComesBackAndItsFileHoldsJustWhatDiffers) {
    const Names single = {"StarterSelector", "FuelPump", "AltSwitch", "CowlFlaps", "DeIce"};
    ExpectAllComesBack({{{""}, SwitchKeys(), {"Offset"}},
                        {{"RetractableGear"}, {""}, {"1"}, {"0", "1"}},
                        {{"Single"}, single, {"0"}, {"0", "1"}}},
                       "[SwitchPanel2]\r\nSwitchGEARUPOff=None\r\nSingleDeIce=1\r\n");
}

TEST_F(SwitchPanelBindingsTest, KeysAreThoseOfTheirSwitchesAndOnlyTheseAreSet) {
    auto holder = LoadedNumbered(SwitchKeys(), "");
    std::vector<ActionRecord> actions;
    for (int n = 0; n < 40; ++n) actions.push_back(holder.GetSwitchActions(n % 20 + 1, n < 20));
    ExpectNumbered(actions);
    const std::string before = Alone(holder);
    for (const auto& [number, state] : {std::pair(0, 1), {21, 0}, {-1, 1}, {6, 2}, {6, -1}})
        holder.SetSwitchActions(number, state, {ActionKind::VKey, 65, 1, 97});
    EXPECT_EQ(Alone(holder), before);
}

TEST_F(SwitchPanelBindingsTest, OptionsAreAnyNumberAndWhatMakesNoSenseKeepsTheStandard) {
    for (const std::string value : {"0", "00", "+0", "-0", "\" 0 \""})
        EXPECT_FALSE(LoadedFrom("RetractableGear=" + value).RetractableGear) << value;
    for (const std::string value : {"1", "2", "-1", "\"\t256 \"", "4294967296"})
        EXPECT_TRUE(LoadedFrom("SingleDeIce=" + value).SingleDeIce) << value;
    ExpectStandardInsteadOf(
        {"SwitchBATOn=Nothing", "SwitchBATOn=", "SwitchBATOff=VButton,64", "SwitchNAVOn=VKey,65,3",
         "SwitchGEARUPOn=VButton,256,1", "SwitchSELROff=VKey,65,-1,97", "switchNAVOn=None",
         "retractablegear=0", "RetractableGear=0.0", "SingleFuelPump=yes", "SingleDeIce=1x"},
        "SingleAltSwitch=1");
}

}  // namespace
