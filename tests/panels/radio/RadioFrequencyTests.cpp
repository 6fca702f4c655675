#include <gtest/gtest.h>

#include "panels/radio/RadioFrequency.h"

namespace {

float Of(int thousandths) { return static_cast<float>(thousandths / 1000.0); }

TEST(RadioFrequencyTest, EveryTurnEndsOnAChannelAndInItsCode) {
    for (const int raster : {25, 50, 100})  // COM, NAV, ADF
        for (int start = 100000; start < (raster == 100 ? 1800000 : 137000); start += raster)
            for (const int steps : {0, 1, 5, 10, 20, -1, -5, -10, -20}) {
                const int end = start + steps * raster;
                const float tuned = TuneFrequency(Of(start), Of(raster), steps);
                ASSERT_EQ(SnapToChannel(tuned), Of(end)) << start << " " << steps;
                const AdfDigits adf = AdfToBCD(tuned);
                if (raster != 100) {
                    ASSERT_EQ(FrequencyDigits(tuned), end / 10 % 10000) << start << " " << steps;
                    continue;
                }
                ASSERT_EQ(AdfFromBCD(adf.main, adf.extension), Of(end)) << start << " " << steps;
                ASSERT_LT(adf.extension % 100, 10) << start << " " << steps;
            }
}

TEST(RadioFrequencyTest, LastDigitTellsTheChannel) {
    const int restored[] = {0, 10, 25, 30, 40, 50, 60, 75, 80, 90};
    const int snapped[] = {0, 0, 25, 25, 50, 50, 50, 75, 75, 75};
    for (const int start : {108000, 118000, 127900, 136900})
        for (int digit = 0; digit < 10; ++digit) {
            EXPECT_EQ(RestoreChannel(Of(start + digit * 10)), Of(start + restored[digit]));
            EXPECT_EQ(SnapToChannel(Of(start + digit * 10)), Of(start + snapped[digit]));
        }
    EXPECT_EQ(AdfFromBCD(345, 99), 354.9F);
}

}  // namespace
