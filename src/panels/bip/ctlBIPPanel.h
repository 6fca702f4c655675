#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

#include "panels/bip/BIPPanelPicture.h"
#include "panels/bip/BIPPanelReport.h"
#include "simlink/devices/LampColor.h"
#include "simlink/devices/cPanelDevice.h"

// Device object of one BIP Panel: gives its 24 tiles their colours and captions, on the panel and
// in the picture. The panel has no input. Colours are LampColors; any other number lights nothing.
// Tiles other than 0 to 23 are ignored.
class ctlBIPPanel final : public cPanelDevice {
  public:
    ctlBIPPanel(Container& parent, const DeviceServices& services);
    ~ctlBIPPanel() override;

    // Sends a report if the tile doesn't show the colour already.
    void TurnTile(int16_t Index, Color color);
    // All tiles the same; sends a report in any case.
    void TurnPanel(Color color);
    // Tile by tile; sends one report if any of them doesn't show its colour already.
    void TurnAllTiles(std::span<const Color, kBIPTiles> Tiles);

    // A caption of up to three lines, with a point between them; one with more changes nothing.
    // Only the picture has captions.
    void SetTileLabel(int16_t Index, std::string_view Description);

    void TurnOff() override { TurnPanel(LampColor::kOff); }
    void Splash() override;

    BIPPanelPicture OnScreen{*this};

  private:
    void Connected() override;
    void SetBrightness(uint8_t level);
    void SetTile(size_t tile, Color color);
    void SendTiles();

    // Of both kinds of report. It holds the state of the LEDs from one to the next.
    std::array<uint8_t, kTileReportSize> report_{};
};
