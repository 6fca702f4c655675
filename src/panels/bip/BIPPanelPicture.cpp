#include "panels/bip/BIPPanelPicture.h"

#include <array>
#include <cstdint>
#include <vector>

#include "base/Text.h"
#include "panels/bip/BIPPanelReport.h"

namespace {

constexpr int32_t kLeft = 150;
constexpr int32_t kPitch = 1335;
constexpr int32_t kTileWidth = 1260;
constexpr int32_t kRowHeight = 720;
constexpr size_t kLines = 3;

using Tops = std::array<int32_t, kLines>;
constexpr Tops kTops = {90, 270, 450};
constexpr Tops kTopsOfTwo = {150, 270, 390};

int32_t TileLeft(size_t tile) { return kLeft + static_cast<int32_t>(tile % kBIPColumns) * kPitch; }

}  // namespace

int32_t BIPPanelPicture::RowTop(size_t tile) const {
    return down_ + static_cast<int32_t>(tile / kBIPColumns) * kRowHeight;
}

BIPPanelPicture::BIPPanelPicture(Picture& panel, int32_t down) : body_(panel, {}, {}), down_(down) {
    for (size_t tile = 0; tile < kBIPTiles; ++tile) {
        Shape& face = shpTile.emplace_back(&panel);
        face.Kind = ShapeKind::RoundedRectangle;
        face.FillColor = kTileOff;
        face.Move(TileLeft(tile), RowTop(tile) + 45, kTileWidth, kRowHeight - 60);
        size_t line = 0;
        for (auto* labels : {&lblTileR1, &lblTileR2, &lblTileR3}) {
            Label& label = labels->emplace_back(&panel);
            label.Align = Alignment::Center;
            label.FontHeight = 150;
            label.Move(TileLeft(tile), RowTop(tile) + kTops[line++], kTileWidth, 195);
        }
    }
}

void BIPPanelPicture::SetCaption(size_t tile, std::string_view description) {
    const auto lines =
        description.empty() ? std::vector<std::string_view>() : Split(description, '.');
    if (lines.size() > kLines) return;
    Label* const labels[kLines] = {&lblTileR1[tile], &lblTileR2[tile], &lblTileR3[tile]};
    for (Label* label : labels) label->Caption = "";
    if (lines.empty()) return;
    const bool two = lines.size() == 2;
    for (size_t i = 0; i < kLines; ++i)
        labels[i]->Top = RowTop(tile) + (two ? kTopsOfTwo : kTops)[i];
    // A single line stands in the middle one, two stand above and below it.
    size_t place = lines.size() == 1 ? 1 : 0;
    for (const std::string_view line : lines) {
        labels[place]->Caption = line;
        place += two ? 2 : 1;
    }
}
