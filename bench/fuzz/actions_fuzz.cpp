// A hand-made action: whatever its text is, it is read as a whole or not at all, is written in a
// form that reads back, and does nothing in the simulator but what its kind may do.
#include <array>
#include <cstdint>
#include <string>

#include "bench/fuzz/Require.h"
#include "bench/virtual/SimulatorLink.h"
#include "simlink/actions/ActionText.h"
#include "simlink/actions/KeyStrokeText.h"

namespace {

constexpr uint32_t kButtons = 0x3340;
constexpr uint32_t kButtonBytes = 9 * 4;
constexpr size_t kLongestName = sizeof "CTRL-SHIFT-TAB-SCROLL LOCK";

bool AnyButtonDown(const SimulatorLink& link) {
    for (const uint8_t byte : link.machine.server.Bytes(kButtons, kButtonBytes)) {
        if (byte != 0) return true;
    }
    return false;
}

// A press comes up again, and nothing else of the simulator is written to.
void CheckDone(const ActionRecord& record) {
    SimulatorLink link;
    Require(link.Open());
    link.session.FSConnected = true;
    const ScopedConnection writing =
        link.machine.server.Written.Connect([](uint32_t offset, std::span<const uint8_t> bytes) {
            Require(offset >= kButtons && offset + bytes.size() <= kButtons + kButtonBytes);
        });
    link.output.RunAction(record);
    const bool pressed = AnyButtonDown(link);
    const bool typed = !link.machine.keyboard.typed.empty();
    Require(!pressed || record.FSEvent == ActionKind::VButton);
    Require(typed == (record.FSEvent == ActionKind::VKey));
    link.machine.loop.Advance(100);
    Require(link.fsuipc.FSUIPC_Process(link.result) == pressed);
    Require(!AnyButtonDown(link));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::string text(data, data + size);
    const ActionRecord before{ActionKind::VKey, 112, 3, -1};
    ActionRecord record = before;
    ReadAction(text, record);
    const auto kind = static_cast<int32_t>(record.FSEvent);
    Require(kind >= 0 && kind <= 3);
    ActionRecord again = before;
    ReadAction(ActionText(record), again);
    Require(again == record);
    const std::string name =
        KeyStrokeText(record.VJoystickOrKeyCode, record.VButtonOrKeyQualifiers, record.KeyAscii);
    Require(!name.empty() && name.size() < kLongestName);
    CheckDone(record);
    return 0;
}
