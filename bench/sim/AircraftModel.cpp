#include "bench/sim/AircraftModel.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

#include "base/Bytes.h"
#include "base/Number.h"

namespace bench {

namespace {

constexpr size_t kLogLimit = 10000;
constexpr uint32_t kTitle = 0x3D00;
constexpr size_t kTitleSize = 256;
constexpr uint32_t kGearHandle = 0x0BE8;
constexpr uint32_t kGearPositions[] = {0x0BEC, 0x0BF0, 0x0BF4};
constexpr int32_t kGearDown = 16383;
constexpr double kGearTravelMs = 6000;
constexpr uint32_t kControl = 0x3110;
constexpr size_t kControlSize = 8;
constexpr uint32_t kRadioSwap = 0x3123;

struct Radio {
    uint8_t swapBit;
    uint32_t active;
    uint32_t standby;
};
constexpr Radio kRadios[] = {
    {8, 0x034E, 0x311A},  // COM1
    {4, 0x3118, 0x311C},  // COM2
    {2, 0x0350, 0x311E},  // NAV1
    {1, 0x0352, 0x3120},  // NAV2
};

// A switch of the cockpit, and the power that follows it.
constexpr struct {
    uint32_t offset;
    uint32_t power;
} kMasters[] = {
    {0x3102, 0x281C},  // battery
    {0x3103, 0x2E80},  // avionics
};

// What is on in every other variation: the autopilot's lights, and switches and warnings on tiles.
// Of the markers there is never more than one.
constexpr struct {
    uint32_t offset;
    uint8_t on;
} kVaried[] = {{0x07BC, 1}, {0x07C8, 1}, {0x07C4, 1},    {0x07DC, 1},    {0x07D0, 1},   {0x07EC, 1},
               {0x0800, 1}, {0x0804, 1}, {0x3366, 0x03}, {0x3367, 0x0F}, {0x341F, 1},   {0x036C, 1},
               {0x029C, 1}, {0x0BC8, 1}, {0x0BB0, 1},    {0x0D0C, 0xFF}, {0x3122, 0xFF}};

// What the aircraft begins with; frequencies and codes have four BCD digits.
constexpr struct {
    uint32_t offset;
    uint16_t value;
} kStart[] = {
    {0x034E, 0x1810}, {0x311A, 0x1952},  // COM1 118.10, 119.525
    {0x3118, 0x2150}, {0x311C, 0x2345},  // COM2 121.50, 123.45
    {0x0350, 0x1050}, {0x311E, 0x1230},  // NAV1 110.50, 112.30
    {0x0352, 0x1390}, {0x3120, 0x1505},  // NAV2 113.90, 115.05
    {0x034C, 0x0345}, {0x0356, 0x0003},  // ADF1 345.3
    {0x02D4, 0x0234}, {0x02D6, 0x0105},  // ADF2 1234.5
    {0x0300, 123},    {0x0302, 1250},    // DME1 12.3 miles, 125.0 knots,
    {0x0304, 3542},                      // 354.2 seconds
    {0x0306, 1234},   {0x0308, 1250},    // DME2 123.4 miles, 125.0 knots,
    {0x030A, 35539},                     // 3553.9 seconds
    {0x0330, 16212},  {0x0354, 0x1200},  // 1013.25 hPa, code 1200
    {0x060C, 1},                         // gear that can be retracted
    {0x08B8, 9360},   {0x08BA, 15000},   // oil of engine 1 at 80 degrees and 50 psi
    {0x08F8, 1500},                      // fuel at 10 psi
    {0x0B76, 0x40},   {0x0B7E, 0x40},    // tanks half full: centre, left
    {0x0B96, 0x40},                      // right
    {0x1240, 60000},  {0x1264, 30000},   // fuel capacity and quantity
};

template <class T>
std::vector<T> TakeAll(std::deque<T>& log) {
    std::vector<T> all(std::make_move_iterator(log.begin()), std::make_move_iterator(log.end()));
    log.clear();
    return all;
}

template <class T>
void Append(std::deque<T>& log, T entry) {
    if (log.size() == kLogLimit) log.pop_front();
    log.push_back(std::move(entry));
}

}  // namespace

AircraftModel::AircraftModel(OffsetServer& space)
    : space_(space),
      written_(space.Written.Connect(
          [this](uint32_t offset, std::span<const uint8_t> bytes) { TakeWrite(offset, bytes); })) {
    space_.SetVersion(0x39990005, 8);
    SetTitle("Bench Trainer");
    for (const auto& master : kMasters) {
        space_.Set<uint8_t>(master.offset, 1);
        space_.Set<int32_t>(master.power, 1);
    }
    space_.Set<uint16_t>(0x07CC, RoundTo<uint16_t>(80 * 65536.0 / 360));
    space_.Set<int32_t>(0x07D4, RoundTo<int32_t>(5000 / 3.28084 * 65536));
    space_.Set<int16_t>(0x07E2, 120);
    space_.Set<int16_t>(0x3BFA, 4095);  // one notch of flaps
    space_.Set<uint16_t>(0x0C4E, 90);
    space_.Set<uint16_t>(0x0C5E, 270);
    space_.Set<int32_t>(kGearHandle, kGearDown);
    gear_ = kGearDown;
    space_.Set<double>(0x0B18, 5);  // suction
    for (const auto& start : kStart) space_.Set<uint16_t>(start.offset, start.value);
    MoveTo(0);
}

void AircraftModel::SetTitle(std::string_view title) {
    std::vector<uint8_t> bytes(kTitleSize);
    std::ranges::copy(title.substr(0, kTitleSize - 1), bytes.begin());
    space_.SetBytes(kTitle, bytes);
}

void AircraftModel::MoveTo(uint32_t milliseconds) {
    const uint32_t passed = milliseconds - lastMove_;
    lastMove_ = milliseconds;
    const double travel = passed * kGearDown / kGearTravelMs;
    const auto wanted = static_cast<double>(space_.Get<int32_t>(kGearHandle));
    gear_ += std::clamp(wanted - gear_, -travel, travel);
    for (const uint32_t position : kGearPositions) {
        space_.Set<int32_t>(position, RoundTo<int32_t>(gear_));
    }
}

void AircraftModel::Vary() {
    const bool on = ++variation_ % 2 != 0;
    for (const auto& varied : kVaried) space_.Set<uint8_t>(varied.offset, on ? varied.on : 0);
    space_.Set<int32_t>(kGearHandle, on ? 0 : kGearDown);
    gear_ = on ? 0 : kGearDown;
    MoveTo(lastMove_);
    const auto feet = static_cast<int32_t>(1000 + variation_ % 300 * 100);
    space_.Set<int32_t>(0x07D4, RoundTo<int32_t>(feet / 3.28084 * 65536));
    space_.Set<int16_t>(0x07F2, static_cast<int16_t>(variation_ % 50 * 100));
    // Two digits of BCD that are never the same twice in a row.
    const auto digits = static_cast<uint16_t>(variation_ % 10 << 4 | (on ? 5 : 0));
    for (const Radio& radio : kRadios) {
        space_.Set<uint16_t>(radio.active, static_cast<uint16_t>(0x1000 | digits));
        space_.Set<uint16_t>(radio.standby, static_cast<uint16_t>(0x1200 | digits));
    }
}

uint64_t AircraftModel::WritesTo(uint32_t offset) const {
    const auto found = writesTo_.find(offset);
    return found == writesTo_.end() ? 0 : found->second;
}

std::vector<AircraftModel::Write> AircraftModel::TakeWrites() { return TakeAll(writes_); }

std::vector<AircraftModel::Control> AircraftModel::TakeControls() { return TakeAll(controls_); }

void AircraftModel::TakeWrite(uint32_t offset, std::span<const uint8_t> bytes) {
    Append(writes_, {offset, {bytes.begin(), bytes.end()}});
    ++writesTo_[offset];
    if (offset == kControl && bytes.size() == kControlSize) {
        Append(controls_, {static_cast<int32_t>(LoadLE32(&bytes[0])),
                           static_cast<int32_t>(LoadLE32(&bytes[4]))});
    }
    for (const auto& master : kMasters) {
        if (offset > master.offset || offset + bytes.size() <= master.offset) continue;
        space_.Set<int32_t>(master.power, space_.Get<uint8_t>(master.offset));
    }
    if (offset <= kRadioSwap && offset + bytes.size() > kRadioSwap) SwapRadios();
}

void AircraftModel::SwapRadios() {
    const auto wanted = space_.Get<uint8_t>(kRadioSwap);
    for (const Radio& radio : kRadios) {
        if ((wanted & radio.swapBit) == 0) continue;
        const auto active = space_.Get<uint16_t>(radio.active);
        space_.Set<uint16_t>(radio.active, space_.Get<uint16_t>(radio.standby));
        space_.Set<uint16_t>(radio.standby, active);
    }
    space_.Set<uint8_t>(kRadioSwap, 0);
}

}  // namespace bench
