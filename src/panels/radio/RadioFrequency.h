#pragma once

#include <cstdint>
#include <string>

// How radios hold their frequencies, and how these are tuned. COM and NAV frequencies are in MHz,
// ADF ones in kHz.

// A COM frequency as read, whose four digits stop at hundredths: 118.02 gives 118.025.
float RestoreChannel(float Frequency);

// The channel of the 25 kHz raster on which a frequency lies: 118.02 and 118.03 give 118.025.
float SnapToChannel(float Frequency);

// The frequency after so many steps, down for negative ones, from its channel.
float TuneFrequency(float Value, float Step, int32_t Steps);

// The four digits that hold a frequency, as a number: 118.025 gives 1802.
int32_t FrequencyDigits(float Frequency);

// The four digits of a number as BCD; 0 to 9999, values beyond are held to that.
int32_t DecimalToBCD(int32_t Number);

// An ADF frequency is held in two parts: up to three digits before the point, and the tenths,
// where 100 stands for the thousand.
struct AdfDigits {
    int32_t main;
    int32_t extension;
};
float AdfFromBCD(int32_t Main, int32_t Extension);
AdfDigits AdfToBCD(float Frequency);

// Appends a distance in tenths of a mile as five places show it; points alone for none.
void AppendDmeDistance(std::string& out, int32_t Value);
bool DmeInRange(int32_t Value);
