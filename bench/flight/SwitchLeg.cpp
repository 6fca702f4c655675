#include "bench/flight/SwitchLeg.h"

#include <array>
#include <utility>
#include <vector>

namespace bench {

namespace {

using Engines = std::array<const char*, 4>;
constexpr Engines kStarters = {"0892", "092A", "09C2", "0A5A"};
constexpr Engines kAlternators = {"3B78", "3AB8", "39F8", "3938"};
constexpr Engines kDeIce = {"08B2", "094A", "09E2", "0A7A"};
constexpr Engines kCowls = {"37F0", "3730", "3670", "35B0"};
constexpr char kCowlClosed[] = "0000000000000000";
constexpr char kCowlOpen[] = "000000000000F03F";  // 1 as a double

// The same written to all engines.
std::string Each(const Engines& engines, const std::string& bytes) {
    std::string writes;
    for (const char* engine : engines) {
        writes.append(writes.empty() ? "" : " ").append(engine).append(":").append(bytes);
    }
    return writes;
}

// All that the panels write, and the virtual buttons.
std::vector<std::string> Watched() {
    std::vector<std::string> offsets = {"3102", "3103", "3125", "029C", "0D0C", "0BE8", "3340"};
    for (const Engines& engines : {kStarters, kAlternators, kDeIce, kCowls}) {
        offsets.insert(offsets.end(), engines.begin(), engines.end());
    }
    return offsets;
}

}  // namespace

std::string SwitchLeg::Bindings() {
    std::string text =
        "[SwitchPanel1]\r\nSwitchPITOTOff=VButton,64,5\r\n"
        "[SwitchPanel2]\r\nSingleStarterSelector=1\r\n";
    for (const char* name : {"BAT", "ALT", "AVIONICS", "FUELPUMP", "DEICE", "PITOT", "COWL",
                             "PANEL", "BEACON", "NAV", "STROBE", "TAXI", "LANDING"}) {
        text.append("Switch").append(name).append("Off=None\r\n");
    }
    return text;
}

bool SwitchLeg::ExpectLights(const std::string& color) const {
    return ExpectPanel(GearShows(color), "switch1") && ExpectPanel(GearShows(color), "switch2");
}

bool SwitchLeg::Throw(const std::string& act, const std::string& writes,
                      const std::string& panel) const {
    Do(act, panel);
    return ExpectWrites(Watched(), writes);
}

bool SwitchLeg::ExpectOthers(bool dark) const {
    if (dark) {
        return ExpectPanel(kMultiDark) && ExpectPanel(RadioShows({}, {}), "radio1") &&
               ExpectPanel("tiles dark", "bip1") && ExpectPanel("tiles dark", "bip2");
    }
    const RadioRow com = {"118.55", "118.10"};
    return ExpectPanel(PanelShows("089", "", "HDG")) &&
           ExpectPanel(RadioShows(com, com), "radio1") &&
           ExpectPanel("tiles 10 red 23 green", "bip1") &&
           ExpectPanel("tiles 0 green 3 green", "bip2");
}

bool SwitchLeg::TakeOver() const {
    log_.Say("-- the first switch that is thrown brings the simulator into line with all of them");
    cockpit_.Simulator("writes");
    return Throw("bat on", Each(kStarters, "0000") + " 3102:01 " + Each(kAlternators, "00000000") +
                               " 3103:00 3125:00 " + Each(kDeIce, "0000") + " 3340:10000000 " +
                               Each(kCowls, kCowlOpen) + " 0BE8:FF3F0000 3340:00000000") &&
           ExpectOthers(true) && ExpectLights("green") && Throw("avionics on", "3103:01") &&
           ExpectOthers(false);
}

bool SwitchLeg::LosePower() const {
    log_.Say("-- battery off and on");
    return Throw("bat off", "3102:00") && ExpectLights("off") && ExpectOthers(true) &&
           Throw("bat on", "3102:01") && ExpectLights("green") && ExpectOthers(false);
}

bool SwitchLeg::ThrowAll() const {
    log_.Say("-- the other switches are thrown, and some of them back");
    const std::pair<const char*, std::string> switches[] = {
        {"alt on", Each(kAlternators, "01000000")},
        {"fuelpump on", "3125:0F"},
        {"deice on", Each(kDeIce, "0100")},
        {"pitot on", "029C:01"},
        {"cowl on", Each(kCowls, kCowlClosed)},
        {"panel on", "0D0C:2000"},
        {"beacon on", "0D0C:2200"},
        {"nav on", "0D0C:2300"},
        {"strobe on", "0D0C:3300"},
        {"taxi on", "0D0C:3B00"},
        {"landing on", "0D0C:3F00"},
        {"fuelpump off", "3125:00"},
        {"deice off", Each(kDeIce, "0000")},
        {"pitot off", "3340:10000000 3340:00000000"},
        {"cowl off", Each(kCowls, kCowlOpen)},
        {"taxi off", "0D0C:3700"},
        {"landing off", "0D0C:3300"},
    };
    for (const auto& [act, writes] : switches) {
        if (!Throw(act, writes)) return false;
    }
    return true;
}

bool SwitchLeg::Start() const {
    log_.Say("-- one selector starts all engines, the other the one of the first Radio Panel");
    Do("upper COM2", "radio1");
    const bool well = Throw("selector R", "092A:0100 0BE8:FF3F0000", "switch2") &&
                      Throw("selector R", Each(kStarters, "0100")) &&
                      Throw("selector L", Each(kStarters, "0200")) &&
                      Throw("selector BOTH", Each(kStarters, "0300")) &&
                      Throw("selector START", Each(kStarters, "0400")) &&
                      Throw("selector BOTH", Each(kStarters, "0300")) &&
                      Throw("selector OFF", "092A:0000", "switch2");
    Do("upper COM1", "radio1");
    return well;
}

bool SwitchLeg::MoveGear() const {
    log_.Say("-- the second panel's lever raises the gear, the first one's lowers it again");
    const bool moves = Throw("gear up", "0BE8:00000000", "switch2") && ExpectLights("red") &&
                       ExpectPanel("tiles 0 red 1 yellow", "bip2");
    if (moves) log_.Shot("06-switch-gear-moves");
    if (!moves || !ExpectLights("off") || !ExpectPanel("tiles 2 green", "bip2")) return false;
    Do("gear between", "switch1");
    return Throw("gear down", "0BE8:FF3F0000") && ExpectLights("red") && ExpectLights("green") &&
           ExpectPanel("tiles 0 green 3 green", "bip2");
}

bool SwitchLeg::FlyNGX() const {
    log_.Say("-- lights and gear lever of the add-on are clicked");
    cockpit_.Simulator("set 0x6500 1 2");
    for (const char* act : {"strobe off", "nav off", "taxi on", "landing on"}) Do(act, "switch1");
    if (!ExpectControls("69755:536870912 69749:536870912 69742:536870912")) return false;
    cockpit_.Simulator("set 0x6500 1 0");
    Do("strobe on", "switch1");
    if (!ExpectControls("69755:-2147483648 69755:-2147483648")) return false;
    Do("gear up", "switch1");
    Do("gear down", "switch2");
    return ExpectControls("70087:-2147483648 70087:536870912 70087:536870912");
}

}  // namespace bench
