#include "bench/sim/SimConsole.h"

#include <algorithm>
#include <limits>
#include <optional>
#include <vector>

#include "base/Number.h"

namespace bench {

namespace {

constexpr int64_t kLastOffset = OffsetServer::kSpaceSize - 1;

bool IsNumberSize(int64_t size) { return size == 1 || size == 2 || size == 4; }

std::optional<SimState::Fault> FaultNamed(const std::string& name) {
    using Fault = SimState::Fault;
    constexpr struct {
        const char* name;
        Fault fault;
    } kFaults[] = {{"silent", Fault::Silent},   {"zeros", Fault::Zeros},
                   {"garbage", Fault::Garbage}, {"counts", Fault::Counts},
                   {"tokens", Fault::Tokens},   {"scribble", Fault::Scribble}};
    for (const auto& each : kFaults) {
        if (name == each.name) return each.fault;
    }
    return std::nullopt;
}

std::string Milliseconds(SimState::Time time) {
    return FormatPlain(std::chrono::duration<double, std::milli>(time.time_since_epoch()).count(),
                       3);
}

}  // namespace

std::string SimConsole::Answer(const Command& command) {
    if (command.name == "get") return Get(command);
    if (command.name == "set") return Set(command);
    if (command.name == "writes") return Writes();
    if (command.name == "controls") return Controls();
    if (command.name == "batches") return std::to_string(state_.Batches());
    if (command.name == "pace") return Pace(command);
    if (command.name == "reads") return Reads();
    if (command.name == "ticks") return Ticks();
    if (command.name == "vary") return Vary(command);
    if (command.name == "varied") return Varied();
    if (command.name == "written") return Written(command);
    if (command.name == "client") return "0x" + HexText(state_.Space().ClientVersion(), 4);
    if (command.name == "version") return Version(command);
    if (command.name == "reply") return Reply(command);
    if (command.name == "hide") return Show(false);
    if (command.name == "show") return Show(true);
    if (command.name == "title") {
        state_.Aircraft().SetTitle(command.Argument(0));
    } else if (command.name == "normal") {
        state_.BeNormal();
    } else if (const auto fault = FaultNamed(command.name)) {
        state_.SetFault(*fault);
    } else {
        return "error: unknown command '" + command.name + "'";
    }
    return "ok";
}

std::string SimConsole::Get(const Command& command) {
    const auto offset = ParseNumber(command.Argument(0), 0, kLastOffset);
    const auto size = ParseNumber(command.Argument(1), 1, 256);
    if (!offset || !size || *offset + *size > OffsetServer::kSpaceSize) {
        return "error: get OFFSET SIZE, inside 0x0000 to 0xFFFF, at most 256 bytes";
    }
    const auto bytes =
        state_.Space().Bytes(static_cast<uint32_t>(*offset), static_cast<uint32_t>(*size));
    if (!IsNumberSize(*size)) return HexText(bytes);
    uint32_t value = 0;
    for (size_t i = bytes.size(); i-- > 0;) value = value << 8 | bytes[i];
    return std::to_string(value);
}

std::string SimConsole::Set(const Command& command) {
    const auto offset = ParseNumber(command.Argument(0), 0, kLastOffset);
    const auto size = ParseNumber(command.Argument(1), 1, 4);
    const auto value = ParseNumber(command.Argument(2), std::numeric_limits<int32_t>::min(),
                                   std::numeric_limits<uint32_t>::max());
    if (!offset || !size || !IsNumberSize(*size) || !value ||
        *offset + *size > OffsetServer::kSpaceSize) {
        return "error: set OFFSET SIZE VALUE, with a size of 1, 2 or 4 inside 0x0000 to 0xFFFF";
    }
    std::vector<uint8_t> bytes;
    for (int64_t i = 0; i < *size; ++i) bytes.push_back(static_cast<uint8_t>(*value >> (8 * i)));
    state_.Space().SetBytes(static_cast<uint32_t>(*offset), bytes);
    return "ok";
}

std::string SimConsole::Version(const Command& command) {
    const auto version = ParseNumber(command.Argument(0), 0, 0xFFFFFFFF);
    const auto simulator = ParseNumber(
        command.arguments.size() > 1 ? command.Argument(1) : std::string_view("8"), 0, 0xFFFF);
    if (!version || !simulator) return "error: version NUMBER [SIMULATOR]";
    state_.Space().SetVersion(static_cast<uint32_t>(*version), static_cast<uint16_t>(*simulator));
    return "ok";
}

std::string SimConsole::Pace(const Command& command) {
    const auto intervals = ParseNumber(command.Argument(0), 1, 10000);
    if (!intervals) return "error: pace INTERVALS, 1 to 10000";
    const auto pace = state_.TakePace(static_cast<size_t>(*intervals));
    if (!pace) return "none";
    return "median " + FormatPlain(pace->median, 3) + " ms, 99th percentile " +
           FormatPlain(pace->percentile99, 3) + " ms";
}

std::string SimConsole::Reply(const Command& command) {
    const auto reply = ParseNumber(command.Argument(0), 0, 0xFFFFFFFF);
    if (!reply) return "error: reply NUMBER";
    state_.SetReply(static_cast<uint32_t>(*reply));
    return "ok";
}

std::string SimConsole::Reads() const {
    std::string text;
    for (const SimState::Read& read : state_.Reads()) {
        if (!text.empty()) text += ' ';
        text += HexText(read.offset, 4) + ':' + std::to_string(read.size);
    }
    return text.empty() ? "none" : text;
}

std::string SimConsole::Ticks() {
    std::string text;
    for (const SimState::Time& time : state_.TakeTicks()) {
        if (!text.empty()) text += ' ';
        text += Milliseconds(time);
    }
    return text.empty() ? "none" : text;
}

std::string SimConsole::Vary(const Command& command) {
    const auto every = ParseNumber(command.Argument(0), 0, 1000);
    if (!every) return "error: vary TICKS, 0 for never";
    state_.VaryEvery(static_cast<uint32_t>(*every));
    return "ok";
}

std::string SimConsole::Varied() const {
    return std::to_string(state_.Variations()) + " at " + Milliseconds(state_.LastVariation());
}

std::string SimConsole::Written(const Command& command) const {
    const auto offset = ParseNumber(command.Argument(0), 0, kLastOffset);
    if (!offset) return "error: written OFFSET";
    return std::to_string(state_.Aircraft().WritesTo(static_cast<uint32_t>(*offset)));
}

std::string SimConsole::Show(bool visible) {
    if (state_.GetFault() == SimState::Fault::Silent) return "error: not while silent";
    return showWindow_(visible) ? "ok" : "error: the window can't be changed";
}

std::string SimConsole::Writes() {
    std::string text;
    for (const AircraftModel::Write& write : state_.Aircraft().TakeWrites()) {
        if (!text.empty()) text += ' ';
        text += HexText(write.offset, 4) + ':' + HexText(write.bytes);
    }
    return text.empty() ? "none" : text;
}

std::string SimConsole::Controls() {
    std::string text;
    for (const AircraftModel::Control& control : state_.Aircraft().TakeControls()) {
        if (!text.empty()) text += ' ';
        text += std::to_string(control.number) + ':' + std::to_string(control.parameter);
    }
    return text.empty() ? "none" : text;
}

}  // namespace bench
