#include "panels/bip/cBIPPanelActionHolder.h"
#include "tests/panels/BindingsTest.h"

namespace {

constexpr char kSection[] = "BIPPanel";
using BIPPanelBindingsTest = BindingsTest<cBIPPanelActionHolder, kSection>;

TEST_F(BIPPanelBindingsTest, WholeCatalogueComesBack) {
    const char colors[] = "-rrrrrrrryyyyyyyyyyyyyygggyggggggggggggggg--yy-yyyggyyyyggryggggggg---";
    Names values = {"", "VAC_LOW,Red,0", "VAC_LOW,Green,100", "ENG_FIRE,Yellow"}, tiles;
    for (int32_t function = 0; function < 70; ++function) {
        auto holder = LoadedFrom("T1=LOW_PRESSURE,Green,77\r\n");
        holder.SetTileFunction(1, function);
        std::string value(holder.FunctionOf(1).Key.Text());
        if (value.empty()) continue;
        value += Names{"", ",Red", ",Green", ",Yellow"}[std::string("-rgy").find(colors[function])];
        if (holder.hasThresholdSel(1)) value += ',' + std::to_string(holder.GetThreshold(1));
        EXPECT_EQ(Alone(holder), head + "T1=" + value + "\r\n");
        values.push_back(value);
    }
    for (int tile = 0; tile < 24; ++tile) tiles.push_back(std::to_string(tile));
    ExpectAllComesBack({{{"T"}, tiles, {""}, values}}, "[BIPPanel2]\r\nT23=AT_PRST\r\n");
}

// What is in the file, and what of it is loaded and saved; "!" is not loaded, but stays.
TEST_F(BIPPanelBindingsTest, WhatAHandWroteWrongCostsOnlyItsOwnTile) {
    std::istringstream cases(R"(T24=DME,Red! Tx=DME,Red! T+7=DME,Red! T7.5=DME,Red! T=DME,Red!
        Foo=DME,Red! t7=DME,Red> T07=DME,Red>T7=DME,Red T3=NO_SUCH_TILE,Red> T3=dme,Red> T3=,Red>
        T3=VAC_LOW>T3=VAC_LOW,Yellow,60 T3=LOW_PRESSURE,Blue,150>T3=LOW_PRESSURE,Red,0
        T3=VAC_LOW,reD>T3=VAC_LOW,Red,60 T3=VAC_LOW,GREEN,+5>T3=VAC_LOW,Green,0
        T3=VAC_LOW,yellow,5.0>T3=VAC_LOW,Yellow,0 T3=VAC_LOW,Green,007,8>T3=VAC_LOW,Green,7
        T3=GEAR_DOWN,Red,50>T3=GEAR_DOWN,Red T3=FMC_PRST,Red>T3=FMC_PRST)");
    const std::string first = head + "T1=AT_PRST\r\n";
    for (std::string each; cases >> each;) {
        const size_t mark = each.find_first_of("!>") + 1;
        const std::string written = each.substr(0, mark - 1) + "\r\n";
        const std::string read = mark < each.size() ? each.substr(mark) + "\r\n" : "";
        auto holder = LoadedFrom("T1=AT_PRST\r\n" + written);
        EXPECT_EQ(Alone(holder), first + read) << each;
        EXPECT_EQ(Saved(holder), first + (each.back() == '!' ? written : read));
    }
    auto blanks = LoadedFrom("T0=LOW_PRESSURE, Yellow, 40\r\nT1= VAC_LOW\t,Red ,5 \r\n");
    EXPECT_EQ(Saved(blanks), head + "T0=LOW_PRESSURE,Yellow,40\r\nT1=VAC_LOW,Red,5\r\n");
    auto twice = LoadedFrom("t07=NO_SUCH\r\nT07=NAV\r\n");
    twice.ClearTile(7);
    EXPECT_EQ(Saved(twice), head) << "it doesn't come back";
    auto holder = LoadedFrom("T3=VAC_LOW,Red,5\r\n");
    holder.SetColor(3, 0);
    EXPECT_EQ(Alone(holder), head + "T3=VAC_LOW,5\r\n") << "a colour without a word";
}

}  // namespace
