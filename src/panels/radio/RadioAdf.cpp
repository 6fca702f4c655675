#include "panels/radio/RadioAdf.h"

#include <utility>

#include "panels/radio/RadioChannels.h"
#include "panels/radio/RadioFrequency.h"
#include "panels/radio/RadioPanelOffsets.h"
#include "panels/radio/RadioTexts.h"

namespace {

namespace Mode {
enum : uint8_t { kDme1Adf1, kDme2Adf2, kBoth, kAdf1, kAdf2, kByRow, kModes };
}  // namespace Mode

void SetFrequency(std::string& text, float kHz) { SetFixed(text, kHz, 1, 4); }

}  // namespace

void RadioAdf::Read() {
    for (size_t adf = 0; adf < session_.AdfActive.size(); ++adf) {
        session_.AdfActive[adf] =
            AdfFromBCD(offsets_[AdfMainOf(adf)].GetBCD(), offsets_[AdfExtensionOf(adf)].GetBCD());
    }
}

// What is prepared starts out as what is there, once a row stands at ADF.
void RadioAdf::PrepareStandby() {
    for (size_t adf = 0; adf < session_.AdfStandby.size(); ++adf) {
        if (session_.AdfStandby[adf] == 0) session_.AdfStandby[adf] = session_.AdfActive[adf];
    }
}

void RadioAdf::Show(uint8_t mode, uint8_t side, std::string& active, std::string& standby) {
    PrepareStandby();
    const auto& frequencies = session_.AdfActive;
    switch (mode) {
        case Mode::kDme1Adf1:
        case Mode::kDme2Adf2:
            active.clear();
            AppendDmeDistance(active, offsets_[kDmeDistance + mode].IntegerData());
            SetFrequency(standby, frequencies[mode]);
            break;
        case Mode::kBoth:
            SetFrequency(active, frequencies[1]);
            SetFrequency(standby, frequencies[0]);
            (tuned_ == 2 ? active : standby) += '.';
            break;
        case Mode::kAdf1:
        case Mode::kAdf2:
        case Mode::kByRow:
            SetFrequency(active, frequencies[AdfOf(mode, side)]);
            SetFrequency(standby, session_.AdfStandby[AdfOf(mode, side)]);
            break;
        default:
            SetFrequency(standby, frequencies[0]);
            break;
    }
}

void RadioAdf::Click(uint8_t mode, uint8_t side) {
    if (mode == Mode::kBoth) {
        tuned_ = tuned_ == 1 ? 2 : 1;
    } else if (mode > Mode::kBoth && mode < Mode::kModes) {
        PrepareStandby();
        const size_t adf = AdfOf(mode, side);
        std::swap(session_.AdfActive[adf], session_.AdfStandby[adf]);
        Write(adf);
    }
}

void RadioAdf::Turn(uint8_t mode, uint8_t side, float stepKHz, int32_t steps) {
    if (mode >= Mode::kModes) return;
    PrepareStandby();
    const size_t adf = AdfOf(mode, side);
    const bool atOnce = mode <= Mode::kBoth;
    float& frequency = atOnce ? session_.AdfActive[adf] : session_.AdfStandby[adf];
    frequency = WithinBand(TuneFrequency(frequency, stepKHz, steps), kAdfBand);
    if (atOnce) Write(adf);
}

// 0 for ADF1, 1 for ADF2: the one that the row's knob and button act on.
size_t RadioAdf::AdfOf(uint8_t mode, uint8_t side) const {
    const size_t byMode[Mode::kModes] = {0, 1, tuned_ - 1U, 0, 1, side - 1U};
    return byMode[mode];
}

void RadioAdf::Write(size_t adf) {
    const AdfDigits digits = AdfToBCD(session_.AdfActive[adf]);
    session_.WriteBcd(kRadioOffsets[AdfMainOf(adf)].offset, digits.main);
    session_.WriteBcd(kRadioOffsets[AdfExtensionOf(adf)].offset, digits.extension);
}
