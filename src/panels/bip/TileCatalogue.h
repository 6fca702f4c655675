#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "panels/bip/TileOffsets.h"
#include "simlink/devices/LampColor.h"

// The functions that a tile of the BIP Panel can have: what the user sees of each, what it reads of
// the simulator, and when it lights its tile. One table, the same for all panels.

// Tabs of the setup window; 0 is none.
namespace TileGroup {
enum : int32_t { kEngines = 1, kFuel, kGear, kNavigation, kLights, kAudio, kMisc, kNGX };
}  // namespace TileGroup

// How a function is judged. `value` and `other` are what the rule says.
enum class TileTest : uint8_t {
    Leave,       // the tile stays as it is
    Off,         // never lit
    Bits,        // any of the bits `number` is set in value
    NotZero,     // value or other isn't 0
    Is,          // value is `number`
    Below,       // value is below the threshold times number / divisor
    Above,       // above it
    ShareBelow,  // value is a smaller share of other, in percent, than the threshold
    // On the states of the gear's legs.
    GearDown,
    GearUp,
    GearMoves,
    // These choose the tile's colour themselves.
    CombinedGear,
    NoseGear,
    RightGear,
    LeftGear,
    CombinedMarkers,
    AutopilotReset,
    RedIfNotZero,
};

constexpr bool NeedsGear(TileTest test) {
    return test >= TileTest::GearDown && test <= TileTest::LeftGear;
}

constexpr bool ChoosesColor(TileTest test) { return test >= TileTest::CombinedGear; }

struct TileRule {
    TileTest test = TileTest::Leave;
    TileOffset value = TileOffset::None;
    TileOffset other = TileOffset::None;
    int32_t number = 0;
    int32_t divisor = 1;
    std::span<const TileOffset> alsoRead{};  // besides value and other
};

// A function's name in profile files, made from its caption: points and blanks become "_", and "/"
// goes.
class TileKey {
  public:
    constexpr TileKey() = default;
    constexpr explicit TileKey(std::string_view name) {
        for (const char character : name) {
            if (character == '/') continue;
            const bool gap = character == '.' || character == ' ';
            text_[size_++] = gap ? '_' : character;
        }
    }
    constexpr std::string_view Text() const { return {text_.data(), size_}; }

  private:
    std::array<char, 24> text_{};
    size_t size_ = 0;
};

struct TileFunction {
    std::string_view Name;  // the caption; points separate its lines
    TileKey Key;
    std::string_view Description;
    bool HasThreshold = false;
    int32_t DefaultThreshold = 0;  // percent
    bool HasColor = false;
    Color DefaultColor = LampColor::kOff;
    int32_t Group = 0;
    TileRule Standard;
    TileRule NGX;  // what counts in the NGX mode
};

// Row 0 is no function. Some rows have no content: nothing can select them, and they leave their
// tile as it is.
inline constexpr size_t kTileFunctions = 70;
extern const std::array<TileFunction, kTileFunctions> TileFunctions;

// Whether a number is that of a row that a tile can have.
inline bool HasContent(int32_t function) {
    return function > 0 && function < static_cast<int32_t>(kTileFunctions) &&
           !TileFunctions[static_cast<size_t>(function)].Name.empty();
}

// The first row with exactly this key; 0 if there is none.
int16_t FindTileFunction(std::string_view Key);
