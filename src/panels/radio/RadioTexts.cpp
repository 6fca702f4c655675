#include "panels/radio/RadioTexts.h"

#include "base/Number.h"

namespace {

constexpr int32_t kDistanceWithoutTenths = 1000;

}  // namespace

void SetFixed(std::string& text, double value, int decimals, int digits) {
    text.clear();
    AppendFixed(text, value, decimals, digits);
}

void AppendDmeDistance(std::string& text, int32_t distance) {
    if (!DmeIsInRange(distance)) {
        text += kOutOfRange;
    } else if (distance >= kDistanceWithoutTenths) {
        AppendInteger(text, distance / 10, 3);
    } else {
        AppendFixed(text, distance / 10.0, 1, 2);
    }
}
