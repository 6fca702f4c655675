#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "base/Event.h"
#include "core/EventForwarding.h"

namespace {

// Stand-ins that write down what reaches them.
struct Log {
    std::vector<std::string> calls;
    template <class... Numbers>
    void Add(const char* name, Numbers... numbers) {
        std::string call = name;
        ((call += " " + std::to_string(numbers)), ...);
        calls.push_back(call);
    }
    std::string Take() {
        std::string all;
        for (const auto& call : calls) all += (all.empty() ? "" : ", ") + call;
        calls.clear();
        return all;
    }
};

struct Logic : Log {
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
};

struct RadioControl {
    Event<int32_t> ButtonClick, ButtonLongClick, ButtonUp;
    Event<int32_t, int16_t> RotaryUp, RotaryDown;
    Event<int16_t, int32_t, int32_t> SelectorChange;
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

TEST_F(ForwardingTest, SwitchesAndGear) {
    SwitchControl control;
    ForwardSwitchEvents(control, Find());
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

TEST(PositionTablesTest, BitsOutsideATableGiveZero) {
    EXPECT_EQ(RadioSelectorPosition(0x800000), 1);
    EXPECT_EQ(RadioSelectorPosition(0x400000), 7);
    EXPECT_EQ(MultiButtonPosition(0x800000), 1);
    EXPECT_EQ(MultiButtonPosition(0x004000), 8);
    EXPECT_EQ(MultiSelectorPosition(0x080000), 4);
    EXPECT_EQ(MultiSelectorPosition(0x200000), 0);
    EXPECT_EQ(SwitchPosition(0x800000), 13);
    EXPECT_EQ(SwitchPosition(0), 0);
    EXPECT_EQ(SwitchPosition(-1), 0);
}

}  // namespace
