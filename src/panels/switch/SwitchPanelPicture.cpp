#include "panels/switch/SwitchPanelPicture.h"

#include "simlink/devices/LampColor.h"

namespace {

using namespace PanelColor;

constexpr int32_t kFirstToggle = 2880;
constexpr int32_t kTogglePitch = 465;
constexpr int32_t kToggleOn = 300;
constexpr int32_t kToggleOff = 720;
constexpr int32_t kToggleHeight = 360;
constexpr int32_t kGearUpTop = 720;
constexpr int32_t kGearDownTop = 1380;
constexpr int32_t kNeedleLength = 720;

constexpr PanelShape kShapes[] = {
    {ShapeKind::Oval, 870, 1080, 840, 840, kKnob, kKnobRim},          // selector
    {ShapeKind::RoundedRectangle, 9165, 660, 330, 1260, kWell, kRim}  // gear lever's slot
};

constexpr PanelCaption kCaptions[] = {
    {60, 1170, 600, 135, "OFF"},       {330, 720, 600, 135, "R"},
    {990, 450, 600, 135, "L"},         {1530, 630, 780, 135, "BOTH/ALL"},
    {1890, 1080, 600, 135, "START"},   {9030, 420, 600, 135, "UP"},
    {9030, 1980, 600, 135, "DOWN"},    {9630, 330, 1140, 135, "N"},
    {9630, 1080, 570, 135, "L"},       {10200, 1080, 570, 135, "R"},
    {8880, 180, 900, 165, "LDG GEAR"}, {2500, 390, 360, 135, "ON"},
    {2500, 810, 360, 135, "OFF"},
};

constexpr const char* kToggleCaptions[] = {"BAT",    "ALT",  "AVIONICS", "FUEL PUMP", "DE-ICE",
                                           "PITOT",  "COWL", "PANEL",    "BEACON",    "NAV",
                                           "STROBE", "TAXI", "LANDING"};

struct SelectorPosition {
    int32_t bit;
    double degrees;
};
constexpr SelectorPosition kPositions[] = {
    {SwitchPanelBit::kSelectorBoth, 35},
    {SwitchPanelBit::kSelectorStart, 70},
    {SwitchPanelBit::kSelectorOff, 285},
    {SwitchPanelBit::kSelectorR, 315},
};

}  // namespace

SwitchPanelPicture::SwitchPanelPicture(Picture& panel)
    : body_(panel, kShapes, kCaptions), lineSelector(&panel), picGear(&panel) {
    PlacePointer(lineSelector, 1290, 1500, kNeedleLength);
    PlaceToggles(panel);
    PlaceGear(panel);
}

// Captions stand in two lines, as neighbours have no room beside each other.
void SwitchPanelPicture::PlaceToggles(Picture& panel) {
    int32_t left = kFirstToggle;
    bool upperLine = true;
    for (const char* caption : kToggleCaptions) {
        Shape& slot = toggleSlots_.emplace_back(&panel);
        slot.Kind = ShapeKind::RoundedRectangle;
        slot.FillColor = kWell;
        slot.BorderColor = kRim;
        slot.Move(left + 75, kToggleOn + 30, 150, kToggleOff + kToggleHeight - kToggleOn - 60);
        Shape& toggle = shpToggles.emplace_back(&panel);
        toggle.Kind = ShapeKind::RoundedRectangle;
        toggle.FillColor = kPrint;
        toggle.Move(left, kToggleOff, 300, kToggleHeight);
        Label& label = toggleCaptions_.emplace_back(&panel);
        label.Caption = caption;
        label.Align = Alignment::Center;
        label.ForeColor = kPrint;
        label.FontHeight = 135;
        label.Move(left - 330, upperLine ? 1230 : 1440, 960, 195);
        left += kTogglePitch;
        upperLine = !upperLine;
    }
}

void SwitchPanelPicture::PlaceGear(Picture& panel) {
    picGear.Kind = ShapeKind::RoundedRectangle;
    picGear.FillColor = kPrint;
    picGear.Move(9090, kGearUpTop, 480, 450);
    constexpr struct { int32_t left, top; } kPlaces[] = {{10005, 540}, {9750, 1290}, {10320, 1290}};
    for (const auto& place : kPlaces) {
        Shape& light = shpGearLights.emplace_back(&panel);
        light.Kind = ShapeKind::Oval;
        light.FillColor = kWhite;
        light.Move(place.left, place.top, 390, 390);
    }
}

void SwitchPanelPicture::ShowSelector(int32_t bits) {
    double degrees = 0;
    for (const SelectorPosition& position : kPositions) {
        if (position.bit == bits) degrees = position.degrees;
    }
    lineSelector.PointTo(degrees, kNeedleLength);
}

void SwitchPanelPicture::ShowToggle(size_t toggle, bool on) {
    shpToggles[toggle].Top = on ? kToggleOn : kToggleOff;
}

void SwitchPanelPicture::ShowGear(bool down) { picGear.Top = down ? kGearDownTop : kGearUpTop; }

void SwitchPanelPicture::ShowLight(size_t light, Color color) {
    const bool lit = LampColor::HasGreen(color) || LampColor::HasRed(color);
    shpGearLights[light].FillColor = lit ? color : kWhite;
}
