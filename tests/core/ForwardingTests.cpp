#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

#include "base/Event.h"
#include "core/EventForwarding.h"

namespace {

// Writes down what reaches it.
struct Logic {
    std::string calls;
    template <class... Numbers>
    void Add(const char* name, Numbers... numbers) {
        calls += (calls.empty() ? "" : ", ") + std::string(name);
        ((calls += " " + std::to_string(numbers)), ...);
    }
    std::string Take() { return std::exchange(calls, {}); }
    void ButtonClick(int32_t b) { Add("click", b); }
    void ButtonLongClick(int32_t b) { Add("long", b); }
    void ButtonUp(int32_t b) { Add("up", b); }
    void Rotary(int ring, int direction, int side, int speed) {
        Add("rotary", ring, direction, side, speed);
    }
    void Rotary(int direction, int speed) { Add("rotary", direction, speed); }
    void Trim(int direction, int speed) { Add("trim", direction, speed); }
    void Flaps(int direction) { Add("flaps", direction); }
    void SelectorChange(int selector, int now, int before) {
        Add("selector", selector, now, before);
    }
    void SelectorChange(int now, int before) { Add("selector", now, before); }
    void AutoThrottleChange(int state) { Add("throttle", state); }
    void SwitchChange(int number, bool state) { Add("switch", number, state); }
    void GearUp() { Add("gear up"); }
    void GearDown() { Add("gear down"); }
    void LetGoOfAutoThrottle() { Add("let go of throttle"); }
    void LetGoOfGear() { Add("let go of gear"); }
};

struct RadioControl {
    Event<int32_t> ButtonClick, ButtonLongClick, ButtonUp;
    Event<int32_t, int16_t> RotaryUp, RotaryDown;
    Event<int16_t, int32_t, int32_t> SelectorChange;
};

struct MultiControl {
    Event<int32_t> ButtonClick, ButtonLongClick;
    Event<int16_t> RotaryUp, RotaryDown, TrimUp, TrimDown;
    Event<> FlapsUp, FlapsDown;
    Event<int32_t, int32_t> SelectorChange;
    Event<bool> AutoThrottleChange;
};

struct SwitchControl {
    Event<int32_t, bool> SwitchChange;
    Event<int32_t, int32_t> SelectorChange;
    Event<> GearUp, GearDown;
};

struct ForwardingTest : testing::Test {
    Logic logic;
    bool connected = true;
    auto Find() {
        return [this] { return connected ? &logic : nullptr; };
    }
    auto Away() {
        return [this] { return connected ? nullptr : &logic; };
    }
};

TEST_F(ForwardingTest, RadioKnobsBecomeRingsAndSides) {
    RadioControl control;
    ForwardRadioEvents(control, Find());
    for (const int32_t knob : {0, 1, 2, 3, 4, -1}) control.RotaryUp.Raise(knob, 5);
    control.RotaryDown.Raise(3, 1);
    EXPECT_EQ(logic.Take(),
              "rotary 0 1 1 5, rotary 1 1 1 5, rotary 0 1 2 5, rotary 1 1 2 5, rotary 1 0 2 1");
    control.SelectorChange.Raise(2, 0x2000, 0x800000);
    control.ButtonClick.Raise(0x4000);
    control.ButtonUp.Raise(0x4000);
    control.ButtonLongClick.Raise(0x8000);
    EXPECT_EQ(logic.Take(), "selector 2 7 1, click 16384, up 16384, long 32768");
}

TEST_F(ForwardingTest, MultiPanelEvents) {
    MultiControl control;
    ForwardMultiEvents(control, Find(), Away());
    control.ButtonClick.Raise(0x000200);
    control.ButtonLongClick.Raise(0x002000);
    control.RotaryUp.Raise(5);
    control.RotaryDown.Raise(1);
    control.TrimUp.Raise(10);
    control.TrimDown.Raise(20);
    control.FlapsUp.Raise();
    control.FlapsDown.Raise();
    control.SelectorChange.Raise(0x040000, 0x100000);
    for (const bool arm : {true, false}) control.AutoThrottleChange.Raise(arm);
    EXPECT_EQ(logic.Take(),
              "click 3, long 7, rotary 1 5, rotary 0 1, trim 1 10, trim 0 20, flaps 1, flaps 0, "
              "selector 3 5, throttle 1, throttle 0");
}

TEST_F(ForwardingTest, SwitchesAndGear) {
    SwitchControl control;
    ForwardSwitchEvents(control, Find(), Away());
    control.SwitchChange.Raise(0x008000, true);
    control.SwitchChange.Raise(0x123456, false);
    control.SelectorChange.Raise(0x000001, 0x000008);
    control.GearUp.Raise();
    control.GearDown.Raise();
    EXPECT_EQ(logic.Take(), "switch 3 1, switch 0 0, selector 4 20, gear up, gear down");
}

TEST_F(ForwardingTest, WithoutASessionNothingArrivesAndNothingIsKept) {
    RadioControl control;
    ForwardRadioEvents(control, Find());
    connected = false;
    control.ButtonClick.Raise(0x4000);
    control.SelectorChange.Raise(1, 0x010000, 0);
    connected = true;
    EXPECT_EQ(logic.Take(), "");
}

// Each column numbers its bits from 1 without a gap, in the panel's own order of bits.
TEST(PositionTablesTest, ColumnsNumberTheirBits) {
    const auto column = [](int32_t (*position)(int32_t)) {
        std::vector<int32_t> numbers;
        for (int32_t bit = 1; bit <= 0x800000; bit *= 2) numbers.push_back(position(bit));
        return numbers;
    };
    EXPECT_EQ(column(RadioSelectorPosition), (std::vector{0, 0, 0, 0, 0, 0, 0, 0, 2, 3, 4, 5,
                                                          6, 7, 0, 0, 1, 2, 3, 4, 5, 6, 7, 1}));
    EXPECT_EQ(column(MultiButtonPosition), (std::vector{0, 0, 0, 0, 0, 0, 0, 0, 2, 3, 4, 5,
                                                        6, 7, 8, 0, 0, 0, 0, 0, 0, 0, 0, 1}));
    EXPECT_EQ(column(MultiSelectorPosition), (std::vector{0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0,
                                                          0, 0, 0, 0, 1, 2, 3, 4, 5, 0, 0, 0}));
    EXPECT_EQ(column(SwitchPosition), (std::vector{4,  5, 19, 20, 0, 0, 0, 0, 14, 15, 16, 17,
                                                   18, 1, 2,  3,  6, 7, 8, 9, 10, 11, 12, 13}));
}

}  // namespace
