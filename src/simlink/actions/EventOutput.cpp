#include "simlink/actions/EventOutput.h"

#include <array>

#include "base/Bytes.h"

namespace {

constexpr int32_t kVirtualButtons = 0x3340;  // a double word for each joystick
constexpr int kFirstJoystick = 64;
constexpr int kLastJoystick = 72;
constexpr int kButtonsOfJoystick = 32;
constexpr int32_t kControls = 0x3110;
constexpr uint32_t kPressMs = 50;
constexpr uint32_t kRepetitionMs = 1000;

struct Qualifier {
    uint8_t bit;
    uint16_t key;
};
constexpr Qualifier kQualifiers[] = {{1, 16}, {2, 17}, {4, 9}};  // SHIFT, CTRL, TAB

bool IsVirtualButton(uint8_t joystick, uint8_t button) {
    return joystick >= kFirstJoystick && joystick <= kLastJoystick && button >= 1 &&
           button <= kButtonsOfJoystick;
}

int32_t OffsetOf(uint8_t joystick) { return kVirtualButtons + (joystick - kFirstJoystick) * 4; }

}  // namespace

EventOutput::EventOutput(modFSUIPC& fsuipc, KeyboardPort& keyboard, MessageLoop& loop,
                         const bool& connected)
    : fsuipc_(fsuipc),
      keyboard_(keyboard),
      loop_(loop),
      connected_(connected),
      timerRelease_(loop, kPressMs) {
    timerRelease_.Tick.Connect([this] { ReleaseInTime(); });
}

void EventOutput::SetVirtualButton(uint8_t VJoystick, uint8_t VButton, bool State, bool Process) {
    if (!IsVirtualButton(VJoystick, VButton)) return;
    const auto before = ReadButtons(VJoystick);
    WriteButton(VJoystick, VButton, State, before.value_or(0));
    int32_t result = 0;
    if (Process && before) fsuipc_.FSUIPC_Process(result);
}

std::optional<uint32_t> EventOutput::ReadButtons(uint8_t joystick) {
    if (!fsuipc_.Answers()) return std::nullopt;
    std::array<uint8_t, 4> buttons{};
    int32_t result = 0;
    fsuipc_.FSUIPC_Read(OffsetOf(joystick), 4, buttons.data(), result);
    if (!fsuipc_.FSUIPC_Process(result)) return std::nullopt;
    return LoadLE32(buttons.data());
}

void EventOutput::WriteButton(uint8_t joystick, uint8_t button, bool state, uint32_t before) {
    const uint32_t bit = 1U << (button - 1);
    std::array<uint8_t, 4> buttons{};
    StoreLE32(buttons.data(), state ? before | bit : before & ~bit);
    int32_t result = 0;
    fsuipc_.FSUIPC_Write(OffsetOf(joystick), 4, buttons.data(), result);
}

void EventOutput::RunAction(const ActionRecord& record) {
    if (record.FSEvent == ActionKind::VButton) {
        PressForAWhile(record);
    } else {
        SendAction(record);
    }
}

void EventOutput::PressForAWhile(const ActionRecord& record) {
    if (!IsVirtualButton(record.VJoystickOrKeyCode, record.VButtonOrKeyQualifiers)) return;
    presses_.push_back(record);
    if (presses_.size() == 1) Press();
}

// It goes out at once: its time begins.
void EventOutput::Press() {
    SetVirtualButton(presses_.front(), true, true);
    timerRelease_.SetEnabled(true);
}

void EventOutput::ReleaseInTime() {
    if (!connected_) {
        // Those that wait have no meaning in another session; the one that is down comes up in it.
        presses_.resize(1);
        return;
    }
    SetVirtualButton(presses_.front(), false, false);
    presses_.pop_front();
    timerRelease_.SetEnabled(false);
    if (!presses_.empty()) Press();
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

EventOutput::Repetition::Repetition(MessageLoop& loop, int32_t controlNumber, int32_t mouse)
    : control(controlNumber), parameter(mouse), timer(loop, kRepetitionMs) {}

void EventOutput::SendControlTwice(int32_t Control, int32_t Parameter) {
    SendControl(Control, Parameter);
    const auto place = repetitions_.emplace(repetitions_.end(), loop_, Control, Parameter);
    place->timer.Tick.Connect([this, place] { Repeat(place); });
    place->timer.SetEnabled(true);
}

void EventOutput::Repeat(std::list<Repetition>::iterator repetition) {
    if (connected_) SendControl(repetition->control, repetition->parameter);
    repetitions_.erase(repetition);
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
    if (record.FSEvent == ActionKind::VButton) return PressAndRelease(first, second);
    if (record.FSEvent != ActionKind::VKey) return false;
    SendKeyStroke(first, second);
    return true;
}

// A press that the simulator may have taken is followed by its release in any case.
bool EventOutput::PressAndRelease(uint8_t joystick, uint8_t button) {
    if (!IsVirtualButton(joystick, button)) return false;
    const auto before = ReadButtons(joystick);
    if (!before) return false;
    WriteButton(joystick, button, true, *before);
    const auto pressed = ReadButtons(joystick);
    WriteButton(joystick, button, false, pressed.value_or(*before));
    return pressed.has_value();
}
