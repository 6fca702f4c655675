#pragma once

#include <cstdint>
#include <deque>
#include <list>
#include <optional>
#include <vector>

#include "platform/KeyboardPort.h"
#include "platform/MessageLoop.h"
#include "platform/Timer.h"
#include "simlink/actions/ActionRecord.h"
#include "simlink/channel/cSession.h"

// The ways in which what the user does reaches the simulator, apart from writes of offsets.
//
// The virtual buttons of a joystick are one word, which others press as well. While it can't be
// read, changes of it wait; what a lost session has left pressed is released in the next one.
class EventOutput {
  public:
    EventOutput(cSession& session, KeyboardPort& keyboard, MessageLoop& loop);

    // Presses (State) or releases one virtual button. The change goes out with the next exchange,
    // or with Process at once; what waited before it has been sent by then, so that a press and a
    // release in a row arrive as two. VJoystick 64 to 72, VButton 1 to 32; nothing is sent for
    // other numbers, nor for a press without a session.
    void SetVirtualButton(uint8_t VJoystick, uint8_t VButton, bool State, bool Process);
    // The same with the button of a VButton record.
    void SetVirtualButton(const ActionRecord& record, bool State, bool Process) {
        SetVirtualButton(record.VJoystickOrKeyCode, record.VButtonOrKeyQualifiers, State, Process);
    }

    // Does once what a record says: sends a keystroke, or presses a virtual button and releases it
    // 50 ms later. The caller goes on meanwhile; several buttons are pressed one after the other.
    void RunAction(const ActionRecord& record);

    // Presses and releases a key with its qualifiers (1 SHIFT, 2 CTRL, 4 TAB) in one go, in the
    // window that has the focus. Lets pending messages run.
    void SendKeyStroke(uint8_t KeyCode, uint8_t KeyQualifiers);

    // Asks the simulator to run a control. It goes out with the next exchange; several go out in
    // the order of their calls.
    void SendControl(int32_t Control, int32_t Parameter);

    // The same, and once more 1000 ms after the simulator has taken it, if the session lasts: a
    // switch of an add-on goes one position at a time, and takes its time. The caller goes on
    // meanwhile. Another use of the control, with another parameter, ends it.
    void SendControlTwice(int32_t Control, int32_t Parameter);
    // The second time doesn't come any more: the switch has been thrown back.
    void DropSecond(int32_t Control);

    // Does `times` times what a VButton record (press and release) or a VKey record says, as long
    // as the session and the bindings last; nothing for other records. The first click of a virtual
    // button is made at once and the others one a millisecond or slower, while the caller goes on;
    // later presses and releases, and what waits for a value, come behind them. Keystrokes let
    // pending messages run. The record is a copy: its holder may be loaded anew on the way.
    void SendAction(ActionRecord record, int times = 1);

    // The session has ended: nothing that was begun goes on in another one, but that what is down
    // comes up.
    void SessionLost();
    // The program ends: releases what is down, if the simulator answers.
    void ReleaseAll();
    Event<> Ending;  // what is held is to be let go

  private:
    // Nothing when the simulator hasn't answered.
    std::optional<uint32_t> ReadButtons(uint8_t joystick);
    // False when it can't be made now.
    bool ChangeButton(const ActionRecord& record, bool state);
    void SendKeyStrokes(const ActionRecord& record, int times);
    bool Click(const ActionRecord& record, int& left);
    void GoOnClicking();
    void PressForAWhile(const ActionRecord& record);
    void Press();
    bool PressFirst();
    void ReleaseInTime();

    // The second sending of a control. Its time begins when the first one has been taken.
    struct Repetition {
        Repetition(MessageLoop& loop, int32_t controlNumber, int32_t mouse);

        int32_t control;
        int32_t parameter;
        Timer timer;
    };
    // The simulator has taken what was sent: times that count from then begin, and what has been
    // released is up.
    void BeginTimes();
    void ReleaseAgain();
    void Repeat(std::list<Repetition>::iterator repetition);

    cSession& session_;
    modFSUIPC& fsuipc_;
    KeyboardPort& keyboard_;
    MessageLoop& loop_;
    Timer timerClicks_;                   // runs only until the next click of several
    std::deque<ActionRecord> presses_;    // the first one is down, or about to be; the others wait
    bool pressed_ = false;                // the first one's press is on its way to the simulator
    std::vector<ActionRecord> released_;  // on its way, and lost with the session
    Timer timerRelease_;                  // runs only while the first one is down
    std::list<Repetition> repetitions_;
    ScopedConnection taken_;
};
