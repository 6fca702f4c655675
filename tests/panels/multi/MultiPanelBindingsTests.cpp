#include "panels/multi/cMultiPanelActionsHolder.h"
#include "tests/panels/BindingsTest.h"

namespace {

constexpr char kSection[] = "MultiPanel";
using Holder = cMultiPanelActionsHolder;
using MultiPanelBindingsTest = BindingsTest<Holder, kSection>;

const Names kPositions = {"ALT", "VS", "IAS", "HDG", "CRS"};
const Names kButtons = {"AP", "HDG", "NAV", "IAS", "ALT", "VS", "APR", "REV"};
const Names kNGX = {"NGXAP", "NGXHDG", "NGXNAV", "NGXIAS", "NGXALT", "NGXVS", "NGXAPR", "NGXREV"};

TEST_F(MultiPanelBindingsTest, EveryHolderComesBackAndItsFileHoldsJustWhatDiffers) {
    ExpectAllComesBack(
        {{{"SelectorAction"}, kPositions, {"None"}},
         {{"RotUpAction", "RotDownAction"}, kPositions, {"Offset"}},
         {{"ButtonAction", "LongButtonAction"}, kButtons, {"Offset"}},
         {{"AutoThrottleAction"}, {"OFF", "ARM"}, {"Offset"}},
         {{"FlapsAction", "TrimAction"}, {"DOWN", "UP"}, {"Offset"}},
         {{"RotaryAcceleration"}, kPositions, {"1"}, {"-32768", "1", "32767"}},
         {kNGX, {"Short"}, {"12", "7", "4", "3", "10", "11", "9", "8"}, {"0", "8", "12", "22"}},
         {kNGX, {"Long"}, {"14", "13", "5", "2", "18", "6", "0", "1"}, {"0", "1", "14", "22"}},
         {{"CourseSel", "TrimAcceleration"}, {""}, {"1"}, {"0", "1", "2"}},
         {{"TrimSensitivity"}, {""}, {"4"}, {"3", "4", "5"}},
         {{"ReverseTrim", "ReverseFlaps"}, {""}, {"0"}, {"0", "1"}}},
        "[MultiPanel2]\r\nReverseFlaps=1\r\n");
}

TEST_F(MultiPanelBindingsTest, KeysAreThoseOfTheirControls) {
    const Holder holder = LoadedNumbered(
        {"SelectorActionCRS", "RotUpActionALT", "RotDownActionALT", "ButtonActionREV",
         "LongButtonActionAP", "AutoThrottleActionARM", "FlapsActionUP", "TrimActionDOWN"},
        "RotaryAccelerationVS=8\r\nNGXHDGShort=9\r\nNGXHDGLong=10\r\n");
    ExpectNumbered({holder.GetSelectorActions(5), holder.GetRotUpActions(1),
                    holder.GetRotDownActions(1), holder.GetButtonsActions(8),
                    holder.GetLongButtonsActions(1), holder.GetAutoThrottleActions(1),
                    holder.GetFlapsActions(1), holder.GetTrimActions(0)});
    EXPECT_EQ(holder.GetRotAcceleration(2), 8);
    EXPECT_EQ(holder.NGXGetShortButtonsActions(2), 9);
    EXPECT_EQ(holder.NGXGetLongButtonsActions(2), 10);
}

TEST_F(MultiPanelBindingsTest, WhatAHandWroteWrongKeepsTheStandardAndGoesAtTheNextSave) {
    ExpectStandardInsteadOf(
        {"CourseSel=3", "CourseSel=-1", "NGXAPShort=23", "NGXREVLong=x", "RotaryAccelerationVS=",
         "TrimAcceleration=32768", "ReverseTrim=256", "ReverseFlaps=-1", "SelectorActionALT=X,1",
         "ButtonActionAP=VButton,64", "FlapsActionUP=Offset\r\nFlapsActionUP=None"},
        "TrimSensitivity=-32768");
}

TEST_F(MultiPanelBindingsTest, OddValuesAndSpellings) {
    Holder holder = LoadedFrom("buttonactionap=None\r\nReverseTrim=7\r\n");
    EXPECT_EQ(holder.ReverseTrim, 7);
    EXPECT_EQ(Alone(holder), "") << "the name of the action counts with its case";
    holder.SetButtonsActions(1, {ActionKind::VKey, 65, 1, 97});
    holder.SetSelectorActions(1, {ActionKind::None, 1, 2, 3});
    for (const int32_t nowhere : {-1, 0, 6}) holder.SetRotUpActions(nowhere, {});
    holder.NGXSetLongButtonsActions(1, 23);
    EXPECT_EQ(Saved(holder), head + "ButtonActionAP=VKey,65,1,97\r\n");
}

TEST_F(MultiPanelBindingsTest, HolderOfAHeldFileKeepsWhatItHadAndSavesNothing) {
    Holder holder = LoadedFrom("CourseSel=2\r\n");
    const std::string jet = "C:\\Orvo\\Jet.ini", text = head + "TrimSensitivity=2\r\n";
    machine.files.Put(jet, text);
    machine.files.Hold(jet);
    profiles.CurrentProfile = "Jet";
    holder.LoadSetup();
    EXPECT_EQ(holder.CourseSel, 2);
    EXPECT_TRUE(profiles.ProfileMissed());
    machine.files.Hold("");
    EXPECT_FALSE(holder.SaveSetup()) << "what it has is another profile's";
    EXPECT_EQ(machine.files.Look(jet), text);
    holder.LoadSetup();
    EXPECT_EQ(holder.CourseSel, 1);
    EXPECT_TRUE(holder.SaveSetup());
    EXPECT_EQ(machine.files.Look(jet), text);
}

}  // namespace
