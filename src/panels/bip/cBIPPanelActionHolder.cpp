#include "panels/bip/cBIPPanelActionHolder.h"

#include <algorithm>
#include <optional>

#include "base/Number.h"
#include "base/Text.h"

namespace {

constexpr int32_t kFullThreshold = 100;

struct ColorWord {
    Color color;
    const char* word;
};
constexpr ColorWord kColorWords[] = {
    {LampColor::kRed, "Red"}, {LampColor::kGreen, "Green"}, {LampColor::kYellow, "Yellow"}};

std::string KeyOf(int16_t tile) { return 'T' + FormatInteger(tile); }

// Nothing if it isn't the key of a tile.
std::optional<int16_t> TileOf(std::string_view key) {
    if (!key.starts_with('T')) return std::nullopt;
    const auto number = ParseDigits(key.substr(1), 0, kBIPTiles - 1);
    if (!number) return std::nullopt;
    return static_cast<int16_t>(*number);
}

}  // namespace

void cBIPPanelActionHolder::SetTileFunction(int16_t Tile, int32_t Function) {
    if (Function < 0 || Function >= static_cast<int32_t>(TileFunctions.size())) return;
    const TileFunction& row = TileFunctions[static_cast<size_t>(Function)];
    tiles_.Set(Tile, {Function, row.DefaultThreshold, row.DefaultColor});
}

void cBIPPanelActionHolder::SetColor(int16_t Tile, Color color) {
    TileRecord record = tiles_.Get(Tile);
    record.Color = color;
    tiles_.Set(Tile, record);
}

void cBIPPanelActionHolder::SetThreshold(int16_t Tile, int32_t threshold) {
    TileRecord record = tiles_.Get(Tile);
    record.Threshold = std::clamp(threshold, 0, kFullThreshold);
    tiles_.Set(Tile, record);
}

void cBIPPanelActionHolder::ClearAllTiles() {
    for (int16_t tile = 0; tile < kBIPTiles; ++tile) ClearTile(tile);
}

void cBIPPanelActionHolder::Take(const IniEntries& entries) {
    for (const auto& [key, value] : entries) {
        const auto tile = TileOf(key);
        if (tile && !value.empty()) tiles_.Set(*tile, Parsed(value));
    }
}

// Function, colour, threshold, with or without blanks around them. A colour that is missing or
// unknown is the function's own, and so is a missing threshold; one that is none is 0.
TileRecord cBIPPanelActionHolder::Parsed(std::string_view text) {
    auto pieces = Split(text, ',');
    for (std::string_view& piece : pieces) piece = Trim(piece);
    TileRecord record;
    record.Function = FindTileFunction(pieces[0]);
    const TileFunction& row = TileFunctions[static_cast<size_t>(record.Function)];
    if (row.HasColor) {
        record.Color = row.DefaultColor;
        for (const ColorWord& each : kColorWords) {
            if (pieces.size() > 1 && EqualNoCase(pieces[1], each.word)) record.Color = each.color;
        }
    }
    if (row.HasThreshold) {
        record.Threshold = row.DefaultThreshold;
        if (pieces.size() > 2) {
            const auto number = ParseDigits(pieces[2], 0, kFullThreshold);
            record.Threshold = static_cast<int32_t>(number.value_or(0));
        }
    }
    return record;
}

bool cBIPPanelActionHolder::Write(IniSection& keys) {
    // A hand may have written a tile's number in another way, as T07, which would be read again.
    for (const std::string& key : keys.Keys()) {
        const auto tile = TileOf(key);
        if (tile && key != KeyOf(*tile) && !keys.Delete(key)) return false;
    }
    for (int16_t tile = 0; tile < kBIPTiles; ++tile) {
        const std::string key = KeyOf(tile);
        const bool written =
            GetTileFunction(tile) == 0 ? keys.Delete(key) : keys.Set(key, TileText(tile));
        if (!written) return false;
    }
    return true;
}

// A colour that has no word is left out.
std::string cBIPPanelActionHolder::TileText(int16_t tile) const {
    const TileFunction& row = FunctionOf(tile);
    std::string text(row.Key.Text());
    if (!row.HasColor) return text;
    for (const ColorWord& each : kColorWords) {
        if (each.color == GetColor(tile)) text.append(",").append(each.word);
    }
    if (row.HasThreshold) text += ',' + FormatInteger(GetThreshold(tile));
    return text;
}
