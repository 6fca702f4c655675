#pragma once

#include <cstdint>

#include "core/PositionTables.h"

// What stands between a panel's device object and its logic: the events of the one become calls of
// the other, bits become numbers. `find` gives the logic, or nullptr when the event is to be
// dropped: while no simulator session is up, and after the logic is gone. `away` gives it while no
// session is up: what a control holds down is let go even then.

template <class Control, class Find>
void ForwardRadioEvents(Control& control, Find find) {
    control.ButtonClick.Connect([find](int32_t button) {
        if (auto* logic = find()) logic->ButtonClick(button);
    });
    control.ButtonLongClick.Connect([find](int32_t button) {
        if (auto* logic = find()) logic->ButtonLongClick(button);
    });
    control.ButtonUp.Connect([find](int32_t button) {
        if (auto* logic = find()) logic->ButtonUp(button);
    });
    // Knobs 0 and 1 are the rings 0 and 1 of side 1, knobs 2 and 3 those of side 2.
    const auto rotary = [find](int16_t direction) {
        return [find, direction](int32_t knob, int16_t speed) {
            if (knob < 0 || knob > 3) return;
            const auto ring = static_cast<int16_t>(knob % 2);
            const auto side = static_cast<uint8_t>(knob / 2 + 1);
            if (auto* logic = find()) {
                logic->Rotary(ring, direction, side, static_cast<uint8_t>(speed));
            }
        };
    };
    control.RotaryUp.Connect(rotary(1));
    control.RotaryDown.Connect(rotary(0));
    control.SelectorChange.Connect([find](int16_t selector, int32_t newBit, int32_t oldBit) {
        if (auto* logic = find()) {
            logic->SelectorChange(selector, RadioSelectorPosition(newBit),
                                  RadioSelectorPosition(oldBit));
        }
    });
}

template <class Control, class Find, class Away>
void ForwardMultiEvents(Control& control, Find find, Away away) {
    control.ButtonClick.Connect([find](int32_t button) {
        if (auto* logic = find()) logic->ButtonClick(MultiButtonPosition(button));
    });
    control.ButtonLongClick.Connect([find](int32_t button) {
        if (auto* logic = find()) logic->ButtonLongClick(MultiButtonPosition(button));
    });
    control.RotaryUp.Connect([find](int16_t speed) {
        if (auto* logic = find()) logic->Rotary(1, speed);
    });
    control.RotaryDown.Connect([find](int16_t speed) {
        if (auto* logic = find()) logic->Rotary(0, speed);
    });
    control.TrimUp.Connect([find](int16_t speed) {
        if (auto* logic = find()) logic->Trim(1, speed);
    });
    control.TrimDown.Connect([find](int16_t speed) {
        if (auto* logic = find()) logic->Trim(0, speed);
    });
    control.FlapsUp.Connect([find] {
        if (auto* logic = find()) logic->Flaps(1);
    });
    control.FlapsDown.Connect([find] {
        if (auto* logic = find()) logic->Flaps(0);
    });
    control.SelectorChange.Connect([find](int32_t newBit, int32_t oldBit) {
        if (auto* logic = find()) {
            logic->SelectorChange(MultiSelectorPosition(newBit), MultiSelectorPosition(oldBit));
        }
    });
    control.AutoThrottleChange.Connect([find, away](bool armed) {
        if (auto* logic = find()) logic->AutoThrottleChange(armed);
        if (auto* logic = away()) logic->LetGoOfAutoThrottle();
    });
}

template <class Control, class Find, class Away>
void ForwardSwitchEvents(Control& control, Find find, Away away) {
    control.SwitchChange.Connect([find](int32_t bit, bool state) {
        if (auto* logic = find()) logic->SwitchChange(SwitchPosition(bit), state);
    });
    control.SelectorChange.Connect([find](int32_t newBit, int32_t oldBit) {
        if (auto* logic = find()) {
            logic->SelectorChange(SwitchPosition(newBit), SwitchPosition(oldBit));
        }
    });
    control.GearUp.Connect([find, away] {
        if (auto* logic = find()) logic->GearUp();
        if (auto* logic = away()) logic->LetGoOfGear();
    });
    control.GearDown.Connect([find, away] {
        if (auto* logic = find()) logic->GearDown();
        if (auto* logic = away()) logic->LetGoOfGear();
    });
}
