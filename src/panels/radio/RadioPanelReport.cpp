#include "panels/radio/RadioPanelReport.h"

#include <algorithm>

namespace {

uint8_t DigitCode(char character, bool point) {
    if (character < '0' || character > '9') return point ? kRadioPointOnly : kRadioDark;
    const int digit = character - '0';
    return static_cast<uint8_t>(point ? digit + kRadioPoint : digit);
}

}  // namespace

void RadioPanelReport::EncodeDisplay(std::string_view Text,
                                     std::span<uint8_t, kRadioDigits> digits) {
    std::ranges::fill(digits, kRadioDark);
    size_t place = digits.size();
    bool point = false;
    for (size_t i = Text.size(); i > 0 && place > 0; --i) {
        const char character = Text[i - 1];
        if (character == '.' || character == ',') {
            point = true;
            continue;
        }
        digits[--place] = DigitCode(character, point);
        point = false;
    }
}
