#include "bench/flight/BIPLeg.h"

namespace bench {

bool BIPLeg::ExpectStart() const {
    return ExpectPanel("tiles 10 red 23 green", "bip1") &&
           ExpectPanel("tiles 0 green 3 green", "bip2");
}

bool BIPLeg::Take(const std::string& news, const std::vector<std::string>& values,
                  const Tiles& changes) {
    log_.Say("-- " + news);
    for (const std::string& value : values) cockpit_.Simulator("set " + value);
    std::string shown;
    for (const auto& [tile, color] : changes) tiles_[tile] = color;
    for (const auto& [tile, color] : tiles_) {
        if (color != std::string("off")) shown += ' ' + std::to_string(tile) + ' ' + color;
    }
    return ExpectPanel(shown.empty() ? "tiles dark" : "tiles" + shown, "bip1");
}

bool BIPLeg::Fly() {
    // The right tank is under its own threshold; heater and lights were left on.
    tiles_ = {{10, "red"}, {14, "green"}, {20, "green"}, {21, "green"}, {23, "green"}};
    const bool well = Take("engine 2 is on fire", {"0x3366 1 2"}, {{0, "red"}, {2, "yellow"}}) &&
                      ExpectPanel("tiles 0 green 3 green 7 yellow", "bip2") &&
                      Take("pressure and temperature leave their thresholds",
                           {"0x08F8 4 500", "0x08BA 2 5999", "0x08B8 2 15211"},
                           {{3, "red"}, {4, "yellow"}, {5, "yellow"}}) &&
                      Take("fuel runs low, in all tanks and in the left one",
                           {"0x1264 4 8999", "0x0B7C 4 838860"}, {{6, "yellow"}, {8, "yellow"}}) &&
                      Take("the right tank is filled", {"0x0B94 4 0x600000", "0x341F 1 1"},
                           {{10, "off"}, {7, "green"}}) &&
                      Take("a door is open", {"0x3367 1 4"}, {{11, "yellow"}}) &&
                      Take("it stalls, and suction falls to 2 inches",
                           {"0x036C 1 1", "0x0B1C 4 0x40000000"}, {{12, "red"}, {13, "yellow"}}) &&
                      Take("parking brake and ident of NAV 1", {"0x0BC8 2 32767", "0x3122 1 0x10"},
                           {{15, "green"}, {22, "green"}}) &&
                      Take("the outer marker", {"0x0BB0 2 1"}, {{16, "green"}, {17, "green"}}) &&
                      Take("the middle marker", {"0x0BB0 2 0", "0x0BAE 2 1"},
                           {{16, "red"}, {17, "off"}, {18, "red"}}) &&
                      Take("the inner marker", {"0x0BAE 2 0", "0x0BAC 2 1"},
                           {{16, "yellow"}, {18, "off"}, {19, "yellow"}});
    if (well) log_.Shot("07-bip-warnings");
    return well && Take("the fire is out, the door shut", {"0x3366 1 0", "0x3367 1 0"},
                        {{0, "off"}, {2, "off"}, {11, "off"}});
}

bool BIPLeg::FlyNGX() {
    tiles_.clear();
    const bool well =
        Take("the add-on's annunciators are dark", {}, {}) &&
        Take("master caution, fire in engine 1, fuel, doors, parking brake",
             {"0x6506 1 1", "0x6504 1 1", "0x650A 1 1", "0x6510 1 1", "0x65A7 1 1"},
             {{0, "yellow"}, {1, "red"}, {3, "yellow"}, {4, "yellow"}, {5, "green"}}) &&
        Take("the disconnect lights, while the autopilot has a mode",
             {"0x6550 1 1", "0x6552 1 1", "0x6554 1 1"},
             {{8, "yellow"}, {9, "red"}, {10, "red"}}) &&
        Take("it has none any more", {"0x6545 4 0"}, {{8, "red"}}) &&
        Take("the gear moves", {"0x6570 1 1", "0x6571 1 1", "0x6572 1 1"},
             {{16, "red"}, {17, "red"}, {18, "red"}}) &&
        Take("nose and left gear are locked", {"0x6574 1 1", "0x6575 1 1"},
             {{16, "green"}, {17, "green"}}) &&
        Take("all are", {"0x6573 1 1"}, {{18, "green"}, {23, "green"}});
    if (well) log_.Shot("08-bip-ngx");
    cockpit_.Simulator("set 0x6469 1 1");
    return well && ExpectPanel("tiles 23 red", "bip2");
}

}  // namespace bench
