#pragma once

#include <cstdint>

// How many pixels a length in twips takes on a screen: at 96 dots to the inch, one for 15 twips.
class Scale {
  public:
    explicit constexpr Scale(int dotsPerInch = 96) : dpi_(dotsPerInch) {}

    int Dpi() const { return dpi_; }

    // Both to the nearest. `finer` of these pixels make one of the screen.
    int ToPixels(int32_t twips, int finer = 1) const {
        return static_cast<int>(Divide(int64_t{twips} * dpi_ * finer, kTwipsPerInch));
    }
    int32_t ToTwips(int pixels) const {
        return static_cast<int32_t>(Divide(int64_t{pixels} * kTwipsPerInch, dpi_));
    }

    static constexpr int32_t kTwipsPerInch = 1440;

  private:
    static int64_t Divide(int64_t value, int64_t by) {
        return (2 * value + (value < 0 ? -by : by)) / (2 * by);
    }

    int dpi_;
};
