#include "panels/radio/RadioFrequency.h"

#include <algorithm>

#include "base/Number.h"

namespace {

// What the hundredths' last digit means on the raster, in thousandths.
constexpr int kRaster[] = {0, 0, 25, 25, 50, 50, 50, 75, 75, 75};

float FromThousandths(int64_t thousandths) {
    return static_cast<float>(static_cast<double>(thousandths) / 1000.0);
}

}  // namespace

float RestoreChannel(float Frequency) {
    const int64_t hundredths = RoundHalfAway(Frequency, 100);
    const int64_t last = hundredths % 10;
    return FromThousandths(hundredths * 10 + (last == 2 || last == 7 ? 5 : 0));
}

float SnapToChannel(float Frequency) {
    const int64_t hundredths = RoundHalfAway(Frequency, 100);
    const int64_t last = (hundredths % 10 + 10) % 10;
    return FromThousandths((hundredths - last) * 10 + kRaster[last]);
}

float TuneFrequency(float Value, float Step, int32_t Steps) {
    return static_cast<float>(SnapToChannel(Value) + static_cast<double>(Step) * Steps);
}

float WithinBand(float Frequency, const RadioBand& Band) {
    const float width = Band.high - Band.low;
    if (Frequency < Band.low) Frequency += width;
    if (Frequency >= Band.high) Frequency -= width;
    return Frequency;
}

int32_t FrequencyDigits(float Frequency) {
    const int64_t hundredths = RoundHalfAway(Frequency, 10000) / 100;
    return static_cast<int32_t>(std::max<int64_t>(hundredths, 0) % 10000);
}

float AdfFromBCD(int32_t Main, int32_t Extension) {
    const int32_t thousand = Extension < 100 ? 0 : 1;
    return static_cast<float>(Main + thousand * 1000 + (Extension - thousand * 100) / 10.0);
}

// Rounded before it is split: what is a float's breath below a whole kHz counts as that.
AdfDigits AdfToBCD(float Frequency) {
    const auto tenths = RoundTo<int32_t>(static_cast<double>(Frequency) * 10);
    const int32_t thousand = Frequency > 1000 ? 1 : 0;
    return {tenths / 10 - thousand * 1000, tenths % 10 + thousand * 100};
}
