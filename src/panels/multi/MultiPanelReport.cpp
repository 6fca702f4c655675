#include "panels/multi/MultiPanelReport.h"

namespace {

uint8_t DigitCode(char character) {
    if (character >= '0' && character <= '9') return static_cast<uint8_t>(character - '0');
    return character == '-' ? kMultiMinus : kMultiBlank;
}

}  // namespace

void EncodeDisplay(std::string_view Text, std::span<uint8_t, 5> digits) {
    for (size_t i = 0; i < digits.size(); ++i) {
        const size_t fromEnd = digits.size() - i;
        digits[i] = fromEnd > Text.size() ? kMultiBlank : DigitCode(Text[Text.size() - fromEnd]);
    }
}
