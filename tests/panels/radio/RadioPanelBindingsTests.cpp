#include "panels/radio/cRadioPanelActionsHolder.h"
#include "tests/panels/BindingsTest.h"

namespace {

constexpr char kSection[] = "RadioPanel";
using Holder = cRadioPanelActionsHolder;
using RadioPanelBindingsTest = BindingsTest<Holder, kSection>;

const Names kPositions = {"COM1", "COM2", "NAV1", "NAV2", "ADF", "DME", "XPDR"};

TEST_F(RadioPanelBindingsTest, EveryHolderComesBackAndItsFileHoldsJustWhatDiffers) {
    std::vector<KeyGroup> groups = {{{"SelectorAction"}, kPositions, {"None"}},
                                    {{"ButtonAction", "LongButtonAction"}, kPositions, {"Offset"}}};
    for (const std::string& name : kPositions)
        groups.push_back(
            {{"InnRotUp", "InnRotDown", "OutRotUp", "OutRotDown"}, {name}, {"Offset"}});
    groups.push_back({{"RotAcceleration"}, kPositions, {"1"}, {"-1", "0", "1", "100"}});
    groups.push_back({{"AltimeterUnit", "DMEMode", "ADFMode"}, {""}, {"0"}, {"0", "1", "5"}});
    groups.push_back({{"ADF"}, {"InnStep", "OutStep"}, {"0.1", "1"}, {"0.1", "1", "0.01", "1000"}});
    ExpectAllComesBack(groups, "[RadioPanel2]\r\nADFOutStep=0.5\r\n");
}

TEST_F(RadioPanelBindingsTest, KeysAreThoseOfTheirControls) {
    const Holder holder =
        LoadedNumbered({"SelectorActionXPDR", "ButtonActionCOM1", "LongButtonActionADF",
                        "InnRotUpNAV1", "InnRotDownNAV1", "OutRotUpDME", "OutRotDownCOM2"},
                       "RotAccelerationNAV2=9\r\nDMEMode=3\r\nADFMode=5\r\nADFInnStep= 0,05 \r\n");
    ExpectNumbered({holder.GetSelectorActions(7), holder.GetButtonsActions(1),
                    holder.GetLongButtonsActions(5), holder.GetRotActions(0, 1, 3),
                    holder.GetRotActions(0, 0, 3), holder.GetRotActions(1, 1, 6),
                    holder.GetRotActions(1, 0, 2)});
    EXPECT_EQ(holder.GetAcceleration(4), 9);
    EXPECT_EQ(holder.AltimeterUnit * 100 + holder.DMEMode * 10 + holder.ADFMode, 35);
    EXPECT_EQ(holder.ADFInnerKnobStep, 0.05F);
}

TEST_F(RadioPanelBindingsTest, WhatAHandWroteWrongKeepsTheStandardAndGoesAtTheNextSave) {
    ExpectStandardInsteadOf(
        {"AltimeterUnit=256", "DMEMode=-1", "DMEMode=x", "RotAccelerationADF=32768",
         "InnRotUpDME=VKey,65", "buttonactioncom1=None", "ADFInnStep=0", "ADFInnStep=0.009",
         "ADFOutStep=1000.1", "ADFOutStep=-1", "ADFOutStep=nan", "ADFInnStep=1e1"},
        "ADFMode=7");
}

TEST_F(RadioPanelBindingsTest, OnlyItsOwnControlsAreSet) {
    Holder holder = LoadedFrom("");
    for (const auto& [ring, way] : {std::pair(2, 0), {0, 2}, {-1, 0}, {0, -1}})
        holder.SetRotActions(ring, way, 1, {});
    holder.SetRotActions(1, 1, 7, {ActionKind::VKey, 65, 1, 97});
    holder.SetAcceleration(4, 100);
    EXPECT_EQ(Alone(holder), head + "OutRotUpXPDR=VKey,65,1,97\r\nRotAccelerationNAV2=100\r\n");
}

}  // namespace
