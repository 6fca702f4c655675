#include "panels/radio/RadioDme.h"

#include "base/Number.h"
#include "panels/radio/RadioPanelOffsets.h"
#include "panels/radio/RadioTexts.h"

namespace {

constexpr int32_t kTenthsPerMinute = 600;  // of a second

}  // namespace

void RadioDme::Show(uint8_t choice, std::string& active, std::string& standby) const {
    if (choice == 1) {
        active.clear();
        AppendDmeDistance(active, offsets_[kDmeDistance].IntegerData());
        standby.clear();
        AppendDmeDistance(standby, offsets_[kDmeDistance + 1].IntegerData());
    } else if (choice == 2 || choice == 3) {
        ShowStation(choice - 2U, active, standby);
    }
}

void RadioDme::ShowStation(size_t station, std::string& active, std::string& standby) const {
    const int32_t distance = offsets_[kDmeDistance + station].IntegerData();
    active = station == 0 ? "1 " : "2 ";
    AppendDmeDistance(active, distance);
    if (!DmeIsInRange(distance)) {
        standby = kOutOfRange;
    } else if (showTime_) {
        standby.clear();
        AppendInteger(standby, offsets_[kDmeTime + station].IntegerData() / kTenthsPerMinute, 2);
        standby += '.';
    } else {
        SetFixed(standby, offsets_[kDmeSpeed + station].Data() / 10, 0, 3);
    }
}
