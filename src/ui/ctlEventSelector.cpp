#include "ui/ctlEventSelector.h"

#include <utility>

#include "base/Number.h"
#include "platform/Wait.h"
#include "simlink/actions/KeyStrokeText.h"
#include "ui/Layout.h"
#include "ui/frmGetKeys.h"

namespace {

constexpr int32_t kWidth = 5565;
constexpr int32_t kHeight = 1245;
constexpr int32_t kPagesTop = 480;
constexpr int32_t kFirstJoystick = 64, kLastJoystick = 72;
constexpr int32_t kButtons = 32;
constexpr uint32_t kTestMs = 100;
constexpr uint32_t kTestPauseMs = 25;

std::optional<uint8_t> Chosen(const ComboBox& box, int32_t first) {
    if (box.ListIndex() < 0) return std::nullopt;
    return static_cast<uint8_t>(box.ListIndex() + first);
}

void Select(ComboBox& box, int32_t index) {
    box.SetListIndex(index >= 0 && index < box.ListCount() ? index : -1);
}

}  // namespace

ctlEventSelector::ctlEventSelector(Container* parent, const SelectorServices& services)
    : Container(parent),
      optEvent{OptionButton(this), OptionButton(this), OptionButton(this), OptionButton(this)},
      picInputSelector{Container(this), Container(this), Container(this), Container(this)},
      labNoEvent(&picInputSelector[0]),
      labOffsetChange(&picInputSelector[1]),
      labSendButton(&picInputSelector[2]),
      labVJoystick(&picInputSelector[2]),
      cmbVJoystick(&picInputSelector[2]),
      labVButton(&picInputSelector[2]),
      cmbVButton(&picInputSelector[2]),
      btnClick(&picInputSelector[2]),
      labSelected(&picInputSelector[3]),
      labKeyStrokes(&picInputSelector[3]),
      btnKeyReader(&picInputSelector[3]),
      services_(services) {
    PlaceAll();
    for (int32_t n = kFirstJoystick; n <= kLastJoystick; ++n) {
        cmbVJoystick.AddItem(FormatInteger(n));
    }
    for (int32_t n = 0; n < kButtons; ++n) cmbVButton.AddItem(FormatInteger(n));
    for (int32_t i = 0; i < 4; ++i) {
        picInputSelector[i].Visible = false;
        optEvent[i].Click.Connect([this, i] { ShowEventPage(i); });
    }
    for (ComboBox* box : {&cmbVJoystick, &cmbVButton}) {
        box->SetListIndex(0);
        box->Click.Connect([this] { Changed.Raise(); });
    }
    SetKey({});
    ShowEventPage(0);
    btnClick.Enabled = services_.session.FSConnected;
    btnClick.Click.Connect([this] { TestButton(); });
    btnKeyReader.Click.Connect([this] { ReadKey(); });
}

void ctlEventSelector::PlaceAll() {
    KeepSize();
    PlaceControls({
        {optEvent[0], 0, 0, 2700, 225, "No Event"},
        {optEvent[1], 2760, 0, 2805, 225, "FSUIPC Offset Change"},
        {optEvent[2], 0, 240, 2700, 225, "FSUIPC Virtual Button"},
        {optEvent[3], 2760, 240, 2805, 225, "Keyboard Emulation"},
        {labNoEvent, 0, 30, kWidth, 720,
         "If you choose this option nothing will be send to Flight Simulator when you operate this "
         "switch. This behaviour is correct in many cases: a mode selector for example."},
        {labOffsetChange, 0, 30, kWidth, 720,
         "This is the behaviour of standard Saitek drivers. Actually Orvo doesn't allow to "
         "customize the FSUIPC offset to manage, it will be implemented in a future release"},
        {labSendButton, 0, 0, kWidth, 210, "Send button to Flight Sim"},
        {labVJoystick, 0, 210, 1800, 210, "Virtual Joystick N."},
        {cmbVJoystick, 0, 435, 1800, 300},
        {labVButton, 1980, 210, 1800, 210, "Virtual Button N."},
        {cmbVButton, 1980, 435, 1800, 300},
        {btnClick, 4305, 405, 1260, 360, "Click"},
        {labSelected, 0, 120, 4200, 210, "Selected keystrokes"},
        {labKeyStrokes, 0, 375, 4200, 270},
        {btnKeyReader, 4305, 300, 1260, 360, "Get Keys"},
    });
    for (Container& page : picInputSelector) page.Move(0, kPagesTop, kWidth, kHeight - kPagesTop);
    for (Label* label : {&labSendButton, &labKeyStrokes}) label->Face = FontFace::Bold;
}

void ctlEventSelector::KeepSize() {
    Width = kWidth;
    Height = kHeight;
}

void ctlEventSelector::ShowEventPage(int32_t value) {
    if (value < 0 || value > 3) return;
    if (value == static_cast<int32_t>(ActionKind::VButton)) SelectSomeButton();
    picInputSelector[fsEvent_].Visible = false;
    picInputSelector[value].Visible = true;
    const bool another = value != fsEvent_;
    fsEvent_ = value;
    optEvent[value].SetValue(true);  // its Click finds the page there
    if (another) Changed.Raise();
}

// What a record before has left without a selection isn't meant for this one.
void ctlEventSelector::SelectSomeButton() {
    if (putKind_ == ActionKind::VButton) return;
    for (ComboBox* box : {&cmbVJoystick, &cmbVButton}) {
        if (box->ListIndex() < 0) box->SetListIndex(0);
    }
}

std::optional<uint8_t> ctlEventSelector::VJoystick() const {
    return Chosen(cmbVJoystick, kFirstJoystick);
}

std::optional<uint8_t> ctlEventSelector::VButton() const { return Chosen(cmbVButton, 1); }

void ctlEventSelector::SetVJoystick(uint8_t value) {
    Select(cmbVJoystick, int32_t{value} - kFirstJoystick);
}

void ctlEventSelector::SetVButton(uint8_t value) { Select(cmbVButton, int32_t{value} - 1); }

void ctlEventSelector::SetKeyCode(uint8_t value) {
    SetKey({value, key_.KeyQualifiers, key_.KeyAscii});
}

void ctlEventSelector::SetKeyQualifiers(uint8_t value) {
    SetKey({key_.KeyCode, value, key_.KeyAscii});
}

void ctlEventSelector::SetKeyAscii(int16_t value) {
    SetKey({key_.KeyCode, key_.KeyQualifiers, value});
}

void ctlEventSelector::SetKey(const CapturedKey& key) {
    key_ = key;
    labKeyStrokes.Caption = KeyStrokeText(key.KeyCode, key.KeyQualifiers, key.KeyAscii);
    Changed.Raise();
}

void ctlEventSelector::Put(const ActionRecord& record) {
    putKind_ = record.FSEvent;
    SetFSEvent(static_cast<int32_t>(record.FSEvent));
    if (record.FSEvent == ActionKind::VButton) {
        SetVJoystick(record.VJoystickOrKeyCode);
        SetVButton(record.VButtonOrKeyQualifiers);
    } else if (record.FSEvent == ActionKind::VKey) {
        SetKey({record.VJoystickOrKeyCode, record.VButtonOrKeyQualifiers, record.KeyAscii});
    }
}

void ctlEventSelector::Take(ActionRecord& record) const {
    record.FSEvent = static_cast<ActionKind>(fsEvent_);
    if (record.FSEvent == ActionKind::VButton) {
        record.VJoystickOrKeyCode = VJoystick().value_or(record.VJoystickOrKeyCode);
        record.VButtonOrKeyQualifiers = VButton().value_or(record.VButtonOrKeyQualifiers);
    } else if (record.FSEvent == ActionKind::VKey) {
        record.VJoystickOrKeyCode = key_.KeyCode;
        record.VButtonOrKeyQualifiers = key_.KeyQualifiers;
        record.KeyAscii = key_.KeyAscii;
    }
}

// The lists may be turned while it waits: what was pressed is released.
void ctlEventSelector::TestButton() {
    const auto joystick = VJoystick();
    const auto button = VButton();
    if (testing_ || !services_.session.FSConnected || !joystick || !button) return;
    EventOutput& output = services_.output;
    testing_ = true;
    output.SetVirtualButton(*joystick, *button, true, true);
    // The program may end meanwhile.
    const ScopedConnection ending = output.Ending.Connect([&] {
        if (std::exchange(testing_, false)) {
            output.SetVirtualButton(*joystick, *button, false, false);
        }
    });
    Wait(services_.windows.clock, services_.windows.loop, kTestMs, kTestPauseMs);
    if (std::exchange(testing_, false)) output.SetVirtualButton(*joystick, *button, false, true);
}

void ctlEventSelector::ReadKey() {
    frmGetKeys window(services_.windows);
    window.OpenModally();
    SetKey(window.Result());
}
