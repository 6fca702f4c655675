#pragma once

#include <cstdint>

#include "panels/radio/RadioChannels.h"

// How radios hold their frequencies, and how these are tuned. COM and NAV frequencies are in MHz,
// ADF ones in kHz; all are below 1,000,000 either way.

// A COM frequency as read, whose four digits stop at hundredths: 118.02 gives 118.025.
float RestoreChannel(float Frequency);

// The value of the raster of 0.025 on which a frequency lies: 118.02 and 118.03 give 118.025.
float SnapToChannel(float Frequency);

// The frequency after so many steps, down for negative ones, from the raster's value.
float TuneFrequency(float Value, float Step, int32_t Steps);

// Goes over the end of the band to the other one, once: a fast turn may go further.
float WithinBand(float Frequency, const RadioBand& Band);

// The four digits that hold a frequency, as a number: 118.025 gives 1802.
int32_t FrequencyDigits(float Frequency);

// An ADF frequency is held in two parts: the digits before the point, without the thousand if
// there is more than that, and the tenths, where 100 stands for the thousand.
struct AdfDigits {
    int32_t main;
    int32_t extension;
};
float AdfFromBCD(int32_t Main, int32_t Extension);
AdfDigits AdfToBCD(float Frequency);
