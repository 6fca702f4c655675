#include "panels/bip/ctlBIPPanel.h"

#include "platform/Wait.h"

namespace {

constexpr uint8_t kBrightnessStep = 5;
constexpr uint8_t kFullBrightness = 100;

bool IsTile(int16_t index) { return index >= 0 && index < kBIPTiles; }

}  // namespace

ctlBIPPanel::ctlBIPPanel(Container& parent, const DeviceServices& services)
    : cPanelDevice(parent, services, PanelKind::BIP) {}

ctlBIPPanel::~ctlBIPPanel() { End(); }

// The panel comes up from dark in steps.
void ctlBIPPanel::Connected() {
    for (int i = 0; i < 2; ++i) {
        SetBrightness(0);
        SendTiles();
    }
    for (uint8_t level = kBrightnessStep; level <= kFullBrightness; level += kBrightnessStep) {
        SetBrightness(level);
    }
    report_[0] = kTileReportId;
}

void ctlBIPPanel::SetBrightness(uint8_t level) {
    report_[0] = kBrightnessReportId;
    report_[1] = level;
    Services().hid.SetFeature(DeviceHandle(), std::span(report_).first<kBrightnessReportSize>());
}

void ctlBIPPanel::SetTile(size_t tile, Color color) {
    OnScreen.SetFace(tile, color);
    const auto set = [&](size_t byte, bool lit) {
        const int bit = TileBit(tile);
        report_[byte] = static_cast<uint8_t>(lit ? report_[byte] | bit : report_[byte] & ~bit);
    };
    set(GreenByte(tile), LampColor::HasGreen(color));
    set(RedByte(tile), LampColor::HasRed(color));
}

void ctlBIPPanel::SendTiles() { Services().hid.SetFeature(DeviceHandle(), report_); }

void ctlBIPPanel::TurnTile(int16_t Index, Color color) {
    if (!IsTile(Index)) return;
    const auto tile = static_cast<size_t>(Index);
    if (OnScreen.Shows(tile, color)) return;
    SetTile(tile, color);
    SendTiles();
}

void ctlBIPPanel::TurnPanel(Color color) {
    for (size_t tile = 0; tile < kBIPTiles; ++tile) SetTile(tile, color);
    SendTiles();
}

void ctlBIPPanel::TurnAllTiles(std::span<const Color, kBIPTiles> Tiles) {
    bool changed = false;
    for (size_t tile = 0; tile < Tiles.size(); ++tile) {
        if (OnScreen.Shows(tile, Tiles[tile])) continue;
        SetTile(tile, Tiles[tile]);
        changed = true;
    }
    if (changed) SendTiles();
}

void ctlBIPPanel::SetTileLabel(int16_t Index, std::string_view Description) {
    if (IsTile(Index)) OnScreen.SetCaption(static_cast<size_t>(Index), Description);
}

// A band of the three colours runs along the tiles.
void ctlBIPPanel::Splash() {
    constexpr Color kBand[] = {LampColor::kGreen, LampColor::kYellow, LampColor::kRed,
                               LampColor::kOff};
    TurnOff();
    constexpr auto kSteps = static_cast<int16_t>(kBIPTiles + std::size(kBand) - 1);
    for (int16_t step = 0; step < kSteps; ++step) {
        int16_t tile = step;
        for (const Color color : kBand) TurnTile(tile--, color);
        Wait(Services().clock, Services().loop, 50, 25);
    }
    TurnOff();
}
