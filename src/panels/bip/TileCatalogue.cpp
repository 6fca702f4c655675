#include "panels/bip/TileCatalogue.h"

namespace {

using namespace LampColor;
using namespace TileGroup;
using O = TileOffset;

constexpr int32_t kNone = -1;

struct TileRules {
    TileRule standard;
    TileRule ngx;
};

struct TileRow {
    size_t index;
    std::string_view name;
    int32_t group;
    Color color;        // kOff: the function has no colour to choose
    int32_t threshold;  // kNone: it has no threshold
    TileRules rules;
    std::string_view description;
};

constexpr O kGearLegs[] = {O::GearNose, O::GearRight, O::GearLeft};
constexpr O kNGXGear[] = {O::NGXMainGearTransit1, O::NGXMainGearTransit2, O::NGXMainGearTransit3,
                          O::NGXMainGearLocked1,  O::NGXMainGearLocked2,  O::NGXMainGearLocked3};
constexpr O kMarkers[] = {O::InnerMarker, O::MiddleMarker, O::OuterMarker};
constexpr O kNGXFires[] = {O::NGXFireEng1, O::NGXFireEng2};
constexpr O kRotor[] = {O::RotorRpm};

constexpr TileRule Test(TileTest test, O value = O::None, O other = O::None) {
    return {test, value, other};
}
constexpr TileRule Leave() { return Test(TileTest::Leave); }
constexpr TileRule NotZero(O value, O other = O::None) {
    return Test(TileTest::NotZero, value, other);
}
constexpr TileRule Bits(O value, int32_t bits) { return {TileTest::Bits, value, O::None, bits}; }
constexpr TileRule Is(O value, int32_t number) { return {TileTest::Is, value, O::None, number}; }
constexpr TileRule Below(O value, int32_t number, int32_t divisor = 1) {
    return {TileTest::Below, value, O::None, number, divisor};
}
constexpr TileRule Above(O value, int32_t number) {
    return {TileTest::Above, value, O::None, number};
}
constexpr TileRule ShareBelow(O value, O whole) { return Test(TileTest::ShareBelow, value, whole); }
constexpr TileRule Also(TileRule rule, std::span<const O> offsets) {
    rule.alsoRead = offsets;
    return rule;
}
constexpr TileRules Modes(const TileRule& standard, const TileRule& ngx) { return {standard, ngx}; }
constexpr TileRules Both(const TileRule& rule) { return {rule, rule}; }
constexpr TileRules Gear(TileTest test) {
    return Modes(Also(Test(test), kGearLegs), Also(Test(test), kNGXGear));
}

// In the scales of the simulator: fuel pressure 30 to the percent of 20 psi, oil pressure 300 to
// the percent of 100 psi, oil temperature 234 to the percent of 200 degrees, suction a twentieth of
// an inch, tanks 833180 in cOFFSET's weights of type 5.
constexpr TileRow kRows[] = {
    {1, "ENG.FIRE", kEngines, kRed, kNone,
     Modes(NotZero(O::EngineFire), NotZero(O::NGXFireEng1, O::NGXFireEng2)),
     "One or more engines are on fire. Standard and NGX modes supported."},
    {2, "ENG 1.FIRE", kEngines, kRed, kNone,
     Modes(Bits(O::EngineFire, 0x01), Also(NotZero(O::NGXFireEng1), kNGXFires)),
     "Engine 1 is on fire. Standard and NGX mode supported."},
    {3, "ENG 2.FIRE", kEngines, kRed, kNone,
     Modes(Bits(O::EngineFire, 0x02), Also(NotZero(O::NGXFireEng2), kNGXFires)),
     "Engine 2 is on fire. Standard and NGX mode supported."},
    {4, "ENG 3.FIRE", kEngines, kRed, kNone, Both(Bits(O::EngineFire, 0x04)),
     "Engine 3 is on fire. Only standard mode supported."},
    {5, "ENG 4.FIRE", kEngines, kRed, kNone, Both(Bits(O::EngineFire, 0x08)),
     "Engine 4 is on fire. Only standard mode supported."},
    {6, "LEFT ENG.FIRE", kEngines, kRed, kNone,
     Modes(Bits(O::EngineFire, 0x01), NotZero(O::NGXFireEng1)),
     "Left Engine is on fire.  Same as ENG 1 FIRE. Standard and NGX mode supported."},
    {7, "RIGHT ENG.FIRE", kEngines, kRed, kNone,
     Modes(Bits(O::EngineFire, 0x02), NotZero(O::NGXFireEng2)),
     "Right Engine is on fire. Same as ENG 2 FIRE. Standard and NGX mode supported."},
    {8, "LOW.PRESSURE", kEngines, kRed, 19,
     Modes(Below(O::Eng1FuelPressure, 30), Is(O::NGXFctlLowPressure, 1)),
     "Fuel pressure is below the threshold. Threshold scale: 0%=0 psi, 100%=20 psi. Not available "
     "on every aircraft. Standard and NGX mode supported. Threshold has no effect in NGX mode."},
    {9, "OIL.PRESSURE", kEngines, kYellow, 20,
     Modes(Below(O::Eng1OilPressure, 300), Is(O::NGXApuLowOilPressure, 1)),
     "Engine oil pressure is below the threshold. Threshold scale: 0%=0 psi, 100%=100 psi. "
     "Standard and NGX mode supported. In NGX mode it's referred to APU oil pressure. Threshold "
     "has no effect in NGX mode."},
    {10, "ENG 1.OIL.PRESSURE", kEngines, kYellow, 20,
     Modes(Below(O::Eng1OilPressure, 300), Is(O::NGXFctlFcLowPressure1, 1)),
     "Engine 1 oil pressure is below the threshold. Threshold scale: 0%=0 psi, 100%=100 psi. "
     "Standard and NGX mode supported. Threshold has no effect in NGX mode."},
    {11, "ENG 2.OIL.PRESSURE", kEngines, kYellow, 20,
     Modes(Below(O::Eng2OilPressure, 300), Is(O::NGXFctlFcLowPressure2, 1)),
     "Engine 2 oil pressure is below the threshold. Threshold scale: 0%=0 psi, 100%=100 psi. "
     "Standard and NGX mode supported. Threshold has no effect in NGX mode."},
    {12, "ENG 3.OIL.PRESSURE", kEngines, kYellow, 20, Both(Below(O::Eng3OilPressure, 300)),
     "Engine 3 oil pressure is below the threshold. Threshold scale: 0%=0 psi, 100%=100 psi. Only "
     "standard mode supported."},
    {13, "ENG 4.OIL.PRESSURE", kEngines, kYellow, 20, Both(Below(O::Eng4OilPressure, 300)),
     "Engine 4 oil pressure is below the threshold. Threshold scale: 0%=0 psi, 100%=100 psi. Only "
     "standard mode supported."},
    {14, "ENG.OIL.TEMP", kEngines, kYellow, 65, Both(Above(O::Eng1OilTemp, 234)),
     "Engine oil temperature is over the threshold. Threshold scale: 0%=0\260C , 100%=200\260C . "
     "Only standard mode supported."},
    {15, "ENG 1.OIL TEMP", kEngines, kYellow, 65, Both(Above(O::Eng1OilTemp, 234)),
     "Engine 1 oil temperature is over the threshold. Threshold scale: 0%=0\260C , 100%=200\260C . "
     "Only standard mode supported."},
    {16, "ENG 2.OIL TEMP", kEngines, kYellow, 65, Both(Above(O::Eng2OilTemp, 234)),
     "Engine 2 oil temperature is over the threshold. Threshold scale: 0%=0\260C , 100%=200\260C . "
     "Only standard mode supported."},
    {17, "ENG 3.OIL TEMP", kEngines, kYellow, 65, Both(Above(O::Eng3OilTemp, 234)),
     "Engine 3 oil temperature is over the threshold. Threshold scale: 0%=0\260C , 100%=200\260C . "
     "Only standard mode supported."},
    {18, "ENG 4.OIL TEMP", kEngines, kYellow, 65, Both(Above(O::Eng4OilTemp, 234)),
     "Engine 4 oil temperature is over the threshold. Threshold scale: 0%=0\260C , 100%=200\260C . "
     "Only standard mode supported."},
    {19, "FUEL.LOW", kFuel, kYellow, 15,
     Modes(ShareBelow(O::FuelQuantity, O::FuelCapacity), Is(O::NGXWarnFuel, 1)),
     "Total fuel level is below the threshold. Threshold is the sum of all tanks residual level "
     "percentage. Standard and NGX mode supported. Threshold has no effect in NGX mode."},
    {20, "LEFT.FUEL.LOW", kFuel, kYellow, 15, Both(Below(O::LeftTankLevel, 833180)),
     "Left fuel tank level is below the threshold. Threshold is left tank residual level "
     "percentage. Only standard mode supported."},
    {21, "CENTRE.FUEL.LOW", kFuel, kYellow, 15, Both(Below(O::CenterTankLevel, 833180)),
     "Center fuel tank level is below the threshold. Threshold is center tank residual level "
     "percentage. Only standard mode supported."},
    {22, "RIGHT.FUEL.LOW", kFuel, kYellow, 15, Both(Below(O::RightTankLevel, 833180)),
     "Right fuel tank level is below the threshold. Threshold is right tank residual level "
     "percentage. Only standard mode supported."},
    {23, "FUEL.CROSS.FEED", kFuel, kGreen, kNone,
     Modes(NotZero(O::CrossfeedSwitch), Is(O::NGXFuelXfeedValveOpen, 1)),
     "Fuel cross feed valve is open. Standard and NGX mode supported."},
    {24, "GEAR.DOWN", kGear, kGreen, kNone, Gear(TileTest::GearDown),
     "All Gears are down and locked. Attention: Nose/Tail, Right and Left gears are checked. If "
     "current aircraft has no retractable Nose/Tail gear don't use this tile. Standard and NGX "
     "mode supported."},
    {25, "GEAR.UP", kGear, kGreen, kNone, Gear(TileTest::GearUp),
     "All gears are retracted. Attention: Nose/Tail, Right and Left gears are checked. If current "
     "aircraft has no retractable Nose/Tail gear don't use this tile. Standard and NGX mode "
     "supported."},
    {26, "GEAR.UNSAFE", kGear, kYellow, kNone, Gear(TileTest::GearMoves),
     "At least one gear is travelling. Attention: Nose/Tail, Right and Left gears are checked. If "
     "current aircraft has no retractable Nose/Tail gear don't use this tile. Standard and NGX "
     "mode supported."},
    {27, "DME", kAudio, kGreen, kNone, Both(Bits(O::RadioIdentSwitches, 0x02)),
     "DME ident sound is active. Only standard mode supported."},
    {28, "GPS", kNavigation, kGreen, kNone, Both(Is(O::NavGpsSwitch, 1)),
     "NAV mode is bound to GPS. Only standard mode supported."},
    {29, "NAV 1", kAudio, kGreen, kNone, Both(Bits(O::RadioIdentSwitches, 0x10)),
     "NAV 1 ident sound is active. Only standard mode supported."},
    {30, "NAV 2", kAudio, kGreen, kNone, Both(Bits(O::RadioIdentSwitches, 0x08)),
     "NAV 2 ident sound is active. Only standard mode supported."},
    {31, "COM 1", kAudio, kGreen, kNone, Both(Bits(O::RadioIdentSwitches, 0x80)),
     "COM 1 ident sound is active. Only standard mode supported."},
    {32, "COM 2", kAudio, kGreen, kNone, Both(Bits(O::RadioIdentSwitches, 0x40)),
     "COM 2 ident sound is active. Only standard mode supported."},
    {33, "BOTH", kAudio, kGreen, kNone, Both(Bits(O::RadioIdentSwitches, 0x20)),
     "Both COM ident sound is active. Only standard mode supported."},
    {34, "MKR", kAudio, kGreen, kNone, Both(Bits(O::RadioIdentSwitches, 0x04)),
     "MKR ident sound is active. Only standard mode supported."},
    {35, "NAV", kNavigation, kGreen, kNone, Both(Is(O::NavGpsSwitch, 0)),
     "NAV mode is bound to VOR. Only standard mode supported."},
    {36, "ADF", kAudio, kGreen, kNone, Both(Bits(O::RadioIdentSwitches, 0x01)),
     "ADF ident sound is active. Only standard mode supported."},
    {37, "AUTO.PILOT", kNavigation, kGreen, kNone, Both(Is(O::ApMasterSwitch, 1)),
     "Auto pilot is active. Only standard mode supported."},
    {38, "AP.MASTER", kNavigation, kGreen, kNone, Both(Is(O::ApMasterSwitch, 1)),
     "Auto pilot is active. Only standard mode supported."},
    {39, "BEACON.LIGHT", kLights, kGreen, kNone, Both(Bits(O::LightsSwitches, 0x02)),
     "Beacon lights are on. Standard and NGX mode supported."},
    {40, "LANDING.LIGHT", kLights, kGreen, kNone, Both(Bits(O::LightsSwitches, 0x04)),
     "Landing lights are on. Standard and NGX mode supported."},
    {41, "STROBE.LIGHT", kLights, kGreen, kNone,
     Modes(Bits(O::LightsSwitches, 0x10), Bits(O::LightsSwitches, 0x01)),
     "Strobe lights are on. Standard and NGX mode supported."},
    {44, "VAC.LOW", kMisc, kYellow, 60, Both(Below(O::VacPressure, 1, 20)),
     "Gyro vacuum pump pressure is below threshold. Only standard mode support. Threshold scale: "
     "0%=0 HhIn , 100%=5 HgIn ."},
    {45, "MASTER.CAUTION", kMisc, kYellow, kNone, Modes(Leave(), Is(O::NGXWarnMasterCaution, 1)),
     "Master Caution annunciator. Only NGX mode is supported (no default aircrafts)."},
    {47, "STALL.WARNING", kMisc, kYellow, kNone, Both(Is(O::StallWarning, 1)),
     "Stall warning annunciator. Only standard mode support."},
    {48, "DOOR.WARNING", kMisc, kYellow, kNone,
     Modes(NotZero(O::DoorsOpen), Is(O::NGXWarnDoors, 1)),
     "Open doors warning annunciator. Standard and NGX mode supported."},
    {49, "ROTOR.LOW.RPM", kMisc, kYellow, 20, Both(Also(Leave(), kRotor)),
     "Rotor RPM is below the threshold. Only standard mode support."},
    {50, "PITOT.HEAT", kMisc, kGreen, kNone,
     Modes(Is(O::PitotSwitch, 1), Is(O::NGXIceCaptPitot, 1)),
     "Pitot heat annunciator. Standard and NGX mode supported."},
    {51, "PARKING.BRAKES", kMisc, kGreen, kNone,
     Modes(NotZero(O::ParkingBrake), Is(O::NGXPedParkingBrake, 1)),
     "Parking brakes annunciator. Standard and NGX mode supported."},
    {52, "COMBINED.GEAR", kGear, kYellow, kNone, Gear(TileTest::CombinedGear),
     "Custom tile. Off when all gears are retracted, Green when all gears are down and locked, Red "
     "when at least one gear is travelling. Attention: Nose/Tail, Right and left gears are "
     "checked. If current aircraft has no retractable Nose/Tail gear don't use this tile.  "
     "Standard and NGX mode supported."},
    {53, "NOSE.GEAR", kGear, kYellow, kNone, Gear(TileTest::NoseGear),
     "Custom tile. Off when nose gear is retracted, Green when nose gear is down and locked, Red "
     "when nose gear is travelling. Standard and NGX mode supported."},
    {54, "RIGHT.GEAR", kGear, kYellow, kNone, Gear(TileTest::RightGear),
     "Custom tile. Off when right gear is retracted, Green when right gear is down and locked, Red "
     "when right gear is travelling. Standard and NGX mode supported."},
    {55, "LEFT.GEAR", kGear, kYellow, kNone, Gear(TileTest::LeftGear),
     "Custom tile. Off when left gear is retracted, Green when left gear is down and locked, Red "
     "when left gear is travelling. Standard and NGX mode supported."},
    {56, "COMBINED.OMI", kNavigation, kGreen, kNone,
     Both(Also(Test(TileTest::CombinedMarkers), kMarkers)),
     "Custom tile. OMI marker beacon ident annunciator. Green=Outer, Red=Middle, Yellow=Inner. "
     "Standard and NGX mode supported"},
    {57, "OUTER.MARKER", kNavigation, kGreen, kNone, Both(Also(NotZero(O::OuterMarker), kMarkers)),
     "Custom tile. Outer marker beacon ident annunciator. Standard and NGX mode supported."},
    {58, "MIDDLE.MARKER", kNavigation, kRed, kNone, Both(Also(NotZero(O::MiddleMarker), kMarkers)),
     "Custom tile. Middle marker beacon ident annunciator. Standard and NGX mode supported."},
    {59, "INNER.MARKER", kNavigation, kYellow, kNone, Both(Also(NotZero(O::InnerMarker), kMarkers)),
     "Custom tile. Inner marker beacon ident annunciator. Standard and NGX mode supported."},
    {60, "NAV.LIGHT", kLights, kGreen, kNone, Both(Bits(O::LightsSwitches, 0x01)),
     "Navigation lights are on. Standard and NGX mode supported."},
    {61, "TAXI.LIGHT", kLights, kGreen, kNone, Both(Bits(O::LightsSwitches, 0x08)),
     "Taxi lights are on. Standard and NGX mode supported."},
    {62, "INSTR.LIGHT", kLights, kGreen, kNone, Both(Bits(O::LightsSwitches, 0x20)),
     "Instruments lights are on. Standard and NGX mode supported."},
    {63, "RECOG.LIGHT", kLights, kGreen, kNone, Both(Bits(O::LightsSwitches, 0x40)),
     "Recognition lights are on. Standard and NGX mode supported."},
    {64, "WING.LIGHT", kLights, kGreen, kNone, Both(Bits(O::LightsSwitches, 0x80)),
     "Wing lights are on. Standard and NGX mode supported."},
    {65, "LOGO.LIGHT", kLights, kGreen, kNone, Both(Bits(O::LightsSwitches, 0x100)),
     "Logo lights are on. Standard and NGX mode supported."},
    {66, "CABIN.LIGHT", kLights, kGreen, kNone, Both(Bits(O::LightsSwitches, 0x200)),
     "Cabin lights are on. Standard and NGX mode supported."},
    {67, "A/P.P/RST", kNGX, kOff, kNone,
     Modes(Leave(), Test(TileTest::AutopilotReset, O::NGXMainAp1, O::NGXAnyApMode)),
     "A/P P/RST Annunciator. Only NGX mode supported."},
    {68, "A/T.P/RST", kNGX, kOff, kNone,
     Modes(Leave(), Test(TileTest::RedIfNotZero, O::NGXMainAt1)),
     "A/T P/RST Annunciator. Only NGX mode supported."},
    {69, "FMC.P/RST", kNGX, kOff, kNone,
     Modes(Leave(), Test(TileTest::RedIfNotZero, O::NGXMainFmc1)),
     "FMC P/RST Annunciator. Only NGX mode supported."},
};

constexpr TileFunction FunctionOf(const TileRow& row) {
    const bool hasThreshold = row.threshold != kNone;
    return {row.name,
            TileKey(row.name),
            row.description,
            hasThreshold,
            hasThreshold ? row.threshold : 0,
            row.color != kOff,
            row.color,
            row.group,
            row.rules.standard,
            row.rules.ngx};
}

constexpr std::array<TileFunction, kTileFunctions> BuildTileCatalogue() {
    std::array<TileFunction, kTileFunctions> functions{};
    functions[0].Standard = functions[0].NGX = Test(TileTest::Off);
    for (const TileRow& row : kRows) functions[row.index] = FunctionOf(row);
    return functions;
}

}  // namespace

constinit const std::array<TileFunction, kTileFunctions> TileFunctions = BuildTileCatalogue();

int16_t FindTileFunction(std::string_view Key) {
    for (size_t i = 0; i < TileFunctions.size(); ++i) {
        if (TileFunctions[i].Key.Text() == Key) return static_cast<int16_t>(i);
    }
    return 0;
}
