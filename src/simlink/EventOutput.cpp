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

bool IsVirtualButton(uint8_t joystick, uint8_t button) {
    return joystick >= kFirstJoystick && joystick <= kLastJoystick && button >= 1 &&
           button <= kButtonsOfJoystick;
}

}  // namespace

void EventOutput::SetVirtualButton(uint8_t VJoystick, uint8_t VButton, bool State, bool Process) {
    if (!IsVirtualButton(VJoystick, VButton)) return;
    ChangeButton(VJoystick, VButton, State);
    int32_t result = 0;
    if (Process) fsuipc_.FSUIPC_Process(result);
}

bool EventOutput::ChangeButton(uint8_t joystick, uint8_t button, bool state) {
    const int32_t offset = kVirtualButtons + (joystick - kFirstJoystick) * 4;
    std::array<uint8_t, 4> buttons{};
    const auto count = static_cast<int32_t>(buttons.size());
    int32_t result = 0;
    fsuipc_.FSUIPC_Read(offset, count, buttons.data(), result);
    const bool answered = fsuipc_.FSUIPC_Process(result);
    const uint32_t bit = 1U << (button - 1);
    const uint32_t before = LoadLE32(buttons.data());
    StoreLE32(buttons.data(), state ? before | bit : before & ~bit);
    fsuipc_.FSUIPC_Write(offset, count, buttons.data(), result);
    return answered;
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
        const bool lost = i > 0 && !connected_;
        if (lost || !SendOnce(record)) return;
    }
}

bool EventOutput::SendOnce(const ActionRecord& record) {
    const uint8_t first = record.VJoystickOrKeyCode;
    const uint8_t second = record.VButtonOrKeyQualifiers;
    if (record.FSEvent == ActionKind::VButton) {
        return IsVirtualButton(first, second) && ChangeButton(first, second, true) &&
               ChangeButton(first, second, false);
    }
    if (record.FSEvent != ActionKind::VKey) return false;
    SendKeyStroke(first, second);
    return true;
}
