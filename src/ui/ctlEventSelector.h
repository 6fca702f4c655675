#pragma once

#include <cstdint>
#include <optional>

#include "simlink/actions/ActionRecord.h"
#include "simlink/actions/EventOutput.h"
#include "simlink/channel/cSession.h"
#include "toolkit/ComboBox.h"
#include "toolkit/CommandButton.h"
#include "toolkit/Container.h"
#include "toolkit/OptionButton.h"
#include "toolkit/Picture.h"
#include "ui/KeyCapture.h"
#include "ui/WindowServices.h"

// What event selectors work with.
struct SelectorServices {
    WindowServices windows;
    const cSession& session;
    EventOutput& output;
};

// The control with which the user edits one action: a page of its own for each kind of event, of
// which one is seen. It keeps its size.
class ctlEventSelector : public Container {
  public:
    ctlEventSelector(Container* parent, const SelectorServices& services);

    Event<> Changed;  // any of the values

    int32_t FSEvent() const { return fsEvent_; }
    // 0 to 3; another number is ignored.
    void SetFSEvent(int32_t value) { ShowEventPage(value); }
    // 64 to 72 and 1 to 32; none while the list has no entry selected, as after a number that it
    // doesn't have.
    std::optional<uint8_t> VJoystick() const;
    std::optional<uint8_t> VButton() const;
    void SetVJoystick(uint8_t value);
    void SetVButton(uint8_t value);
    uint8_t KeyCode() const { return key_.KeyCode; }
    uint8_t KeyQualifiers() const { return key_.KeyQualifiers; }
    int16_t KeyAscii() const { return key_.KeyAscii; }
    void SetKeyCode(uint8_t value);
    void SetKeyQualifiers(uint8_t value);
    void SetKeyAscii(int16_t value);

    // Shows a record: its kind, and the fields that its kind has.
    void Put(const ActionRecord& record);
    // Changes a record likewise. A button that isn't selected leaves what the record has.
    void Take(ActionRecord& record) const;

    OptionButton optEvent[4];
    Container picInputSelector[4];
    Label labNoEvent;
    Label labOffsetChange;
    Label labSendButton;
    Label labVJoystick;
    ComboBox cmbVJoystick;
    Label labVButton;
    ComboBox cmbVButton;
    CommandButton btnClick;
    Label labSelected;
    Label labKeyStrokes;
    CommandButton btnKeyReader;

  protected:
    void Resized() override { KeepSize(); }

  private:
    void KeepSize();
    void PlaceAll();
    void ShowEventPage(int32_t value);
    void SelectSomeButton();
    void SetKey(const CapturedKey& key);
    void TestButton();
    void ReadKey();

    const SelectorServices services_;
    int32_t fsEvent_ = 0;
    ActionKind putKind_ = ActionKind::None;  // of the record that Put has shown last
    CapturedKey key_;
    bool testing_ = false;
};
