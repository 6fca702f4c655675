#include "simlink/actions/EventOutput.h"

#include <array>
#include <utility>

#include "base/Bytes.h"

namespace {

constexpr int32_t kVirtualButtons = 0x3340;  // a double word for each joystick
constexpr int kFirstJoystick = 64;
constexpr int kLastJoystick = 72;
constexpr int kButtonsOfJoystick = 32;
constexpr int32_t kControls = 0x3110;
constexpr uint32_t kClickMs = 1;
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

EventOutput::EventOutput(cSession& session, KeyboardPort& keyboard, MessageLoop& loop)
    : session_(session),
      fsuipc_(session.Fsuipc),
      keyboard_(keyboard),
      loop_(loop),
      timerClicks_(loop, kClickMs),
      timerRelease_(loop, kPressMs),
      taken_(fsuipc_.Taken.Connect([this] { BeginTimes(); })) {
    timerClicks_.Tick.Connect([this] { GoOnClicking(); });
    timerRelease_.Tick.Connect([this] { ReleaseInTime(); });
}

void EventOutput::SetVirtualButton(uint8_t VJoystick, uint8_t VButton, bool State, bool Process) {
    if (!IsVirtualButton(VJoystick, VButton) || (State && !session_.FSConnected)) return;
    const ActionRecord record{ActionKind::VButton, VJoystick, VButton, 0};
    session_.Acts.Do([=, this] { return ChangeButton(record, State); },
                     State ? PendingActs::Lasts::Session : PendingActs::Lasts::Program);
    int32_t result = 0;
    if (Process && session_.Acts.Empty()) static_cast<void>(fsuipc_.ProcessForEvent(result));
}

bool EventOutput::ChangeButton(const ActionRecord& record, bool state) {
    const uint8_t joystick = record.VJoystickOrKeyCode;
    const auto before = ReadButtons(joystick);
    if (!before) return false;
    const uint32_t bit = 1U << (record.VButtonOrKeyQualifiers - 1);
    std::array<uint8_t, 4> buttons{};
    StoreLE32(buttons.data(), state ? *before | bit : *before & ~bit);
    int32_t result = 0;
    if (!fsuipc_.FSUIPC_Write(OffsetOf(joystick), 4, buttons.data(), result)) return false;
    if (!state) released_.push_back(record);
    return true;
}

std::optional<uint32_t> EventOutput::ReadButtons(uint8_t joystick) {
    if (!fsuipc_.Answers()) return std::nullopt;
    std::array<uint8_t, 4> buttons{};
    int32_t result = 0;
    if (!fsuipc_.FSUIPC_Read(OffsetOf(joystick), 4, buttons.data(), result)) return std::nullopt;
    if (!fsuipc_.ProcessForEvent(result) || !fsuipc_.AllRead()) return std::nullopt;
    return LoadLE32(buttons.data());
}

void EventOutput::SessionLost() {
    repetitions_.clear();
    timerClicks_.SetEnabled(false);
    session_.Acts.Drop(PendingActs::Lasts::Session);
    if (!presses_.empty() && pressed_) SetVirtualButton(presses_.front(), false, false);
    ReleaseAgain();
    presses_.clear();
    timerRelease_.SetEnabled(false);
}

// What was on its way to a simulator that has gone.
void EventOutput::ReleaseAgain() {
    if (session_.FSConnected) return;
    for (const ActionRecord& each : std::exchange(released_, {})) {
        SetVirtualButton(each, false, false);
    }
}

void EventOutput::ReleaseAll() {
    SessionLost();
    Ending.Raise();
    while (session_.Acts.DoFirst()) {
    }
    int32_t result = 0;
    static_cast<void>(fsuipc_.ProcessForEvent(result));
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

// It goes out at once.
void EventOutput::Press() {
    pressed_ = false;
    session_.Acts.Do([this] { return PressFirst(); }, PendingActs::Lasts::Session);
    int32_t result = 0;
    if (session_.Acts.Empty()) static_cast<void>(fsuipc_.ProcessForEvent(result));
}

bool EventOutput::PressFirst() {
    pressed_ = ChangeButton(presses_.front(), true);
    return pressed_;
}

void EventOutput::BeginTimes() {
    released_.clear();
    for (Repetition& each : repetitions_) each.timer.SetEnabled(true);
    if (!presses_.empty() && pressed_) timerRelease_.SetEnabled(true);
}

void EventOutput::ReleaseInTime() {
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
    repetitions_.remove_if([&](const Repetition& each) {
        return each.control == Control && each.parameter != Parameter;
    });
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
}

void EventOutput::Repeat(std::list<Repetition>::iterator repetition) {
    const auto [control, parameter] = std::pair(repetition->control, repetition->parameter);
    repetitions_.erase(repetition);
    SendControl(control, parameter);
}

void EventOutput::DropSecond(int32_t Control) {
    repetitions_.remove_if([&](const Repetition& each) { return each.control == Control; });
}

void EventOutput::SendAction(ActionRecord record, int times) {
    if (record.FSEvent == ActionKind::VKey) SendKeyStrokes(record, times);
    if (record.FSEvent != ActionKind::VButton || times < 1) return;
    if (!IsVirtualButton(record.VJoystickOrKeyCode, record.VButtonOrKeyQualifiers)) return;
    if (!session_.FSConnected) return;
    session_.Acts.Do([=, this]() mutable { return Click(record, times); });
}

void EventOutput::SendKeyStrokes(const ActionRecord& record, int times) {
    const uint32_t link = session_.Link;
    for (int i = 0; i < times; ++i) {
        const bool lost = !session_.FSConnected || session_.Link != link;
        if (i > 0 && lost) return;
        SendKeyStroke(record.VJoystickOrKeyCode, record.VButtonOrKeyQualifiers);
    }
}

// What is down comes up before anything else, whatever becomes of the other clicks.
bool EventOutput::Click(const ActionRecord& record, int& left) {
    if (left == 0) return true;
    if (timerClicks_.Enabled() || !ChangeButton(record, true)) return false;
    --left;
    if (!ChangeButton(record, false)) {
        session_.Acts.DoNext([=, this] { return ChangeButton(record, false); },
                             PendingActs::Lasts::Program);
        return false;
    }
    timerClicks_.SetEnabled(left > 0);
    return left == 0;
}

void EventOutput::GoOnClicking() {
    timerClicks_.SetEnabled(false);
    if (session_.Acts.DoFirst() && !session_.Acts.Empty()) timerClicks_.SetEnabled(true);
}
