#include "simlink/EventOutput.h"

#include <array>

#include "base/Bytes.h"

namespace {

constexpr int32_t kVirtualButtons = 0x3340;  // a double word for each joystick
constexpr int kFirstJoystick = 64;
constexpr int kLastJoystick = 72;
constexpr int kButtonsOfJoystick = 32;
constexpr int32_t kControls = 0x3110;

struct Qualifier {
    uint8_t bit;
    uint16_t key;
};
constexpr Qualifier kQualifiers[] = {{1, 16}, {2, 17}, {4, 9}};  // SHIFT, CTRL, TAB

}  // namespace

void EventOutput::SetVirtualButton(uint8_t VJoystick, uint8_t VButton, bool State, bool Process) {
    if (VJoystick < kFirstJoystick || VJoystick > kLastJoystick) return;
    if (VButton < 1 || VButton > kButtonsOfJoystick) return;
    const int32_t offset = kVirtualButtons + (VJoystick - kFirstJoystick) * 4;
    std::array<uint8_t, 4> buttons{};
    const auto count = static_cast<int32_t>(buttons.size());
    int32_t result = 0;
    fsuipc_.FSUIPC_Read(offset, count, buttons.data(), result);
    fsuipc_.FSUIPC_Process(result);
    const uint32_t bit = 1U << (VButton - 1);
    const uint32_t before = LoadLE32(buttons.data());
    StoreLE32(buttons.data(), State ? before | bit : before & ~bit);
    fsuipc_.FSUIPC_Write(offset, count, buttons.data(), result);
    if (Process) fsuipc_.FSUIPC_Process(result);
}

void EventOutput::SendKeyStroke(uint8_t KeyCode, uint8_t KeyQualifiers) {
    std::array<KeyRecord, 2 * (std::size(kQualifiers) + 1)> records;
    size_t down = 0;
    for (const Qualifier& qualifier : kQualifiers) {
        if (KeyQualifiers & qualifier.bit) records[down++] = {qualifier.key, false};
    }
    records[down++] = {KeyCode, false};
    // What went down goes up again in the reverse order.
    const size_t count = 2 * down;
    for (size_t i = 0; i < down; ++i) records[count - 1 - i] = {records[i].wVk, true};
    keyboard_.SendInput({records.data(), count});
    loop_.RunPending();
}

void EventOutput::SendControl(int32_t Control, int32_t Parameter) {
    std::array<uint8_t, 8> data;
    StoreLE32(&data[0], static_cast<uint32_t>(Control));
    StoreLE32(&data[4], static_cast<uint32_t>(Parameter));
    int32_t result = 0;
    fsuipc_.FSUIPC_Write(kControls, static_cast<int32_t>(data.size()), data.data(), result);
}

void EventOutput::SendAction(ActionRecord record, int times) {
    for (int i = 0; i < times; ++i) {
        if (record.FSEvent == ActionKind::VButton) {
            for (const bool down : {true, false}) {
                SetVirtualButton(record.VJoystickOrKeyCode, record.VButtonOrKeyQualifiers, down,
                                 false);
            }
        } else if (record.FSEvent == ActionKind::VKey) {
            SendKeyStroke(record.VJoystickOrKeyCode, record.VButtonOrKeyQualifiers);
        }
    }
}
