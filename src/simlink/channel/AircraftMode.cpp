#include "simlink/channel/AircraftMode.h"

#include "base/Text.h"

uint8_t SpecialModeNamed(std::string_view word) {
    for (const uint8_t mode : {kMaddogMode, kNGXMode}) {
        if (EqualNoCase(word, kSpecialModeWords[mode])) return mode;
    }
    return kStandardMode;
}
