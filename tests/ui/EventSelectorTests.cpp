#include <gtest/gtest.h>

#include "bench/virtual/VirtualCockpit.h"
#include "toolkit/TabStrip.h"
#include "ui/KeyCapture.h"
#include "ui/Ties.h"
#include "ui/ctlEventSelector.h"
#include "ui/frmGetKeys.h"

namespace {

constexpr int32_t kTab = 9, kEnter = 13, kShift = 16, kCtrl = 17, kAlt = 18, kF10 = 121;

const ActionRecord kButton3 = {ActionKind::VButton, 66, 3, 0};
const ActionRecord kShiftA = {ActionKind::VKey, 65, 1, 65};

// What the user does with a key, in a window that takes all of them.
void Press(Form& form, int32_t key, uint8_t character = 0) {
    form.KeyDown.Raise(key);
    if (character != 0) form.KeyPress.Raise(character);
    form.KeyUp.Raise(key);
}

struct EventSelectorTest : testing::Test, VirtualCockpit {
    EventSelectorTest() {
        Start("Splash=0\r\nLoadWithoutPanels=1\r\n");
        Connect();
        selector = Selector();
    }
    std::unique_ptr<ctlEventSelector> Selector() {
        const WindowServices windows = {
            ui,       machine.loop,          machine.clock,   machine.screen,
            monitors, program->GeneralSetup, program->Windows};
        return std::make_unique<ctlEventSelector>(
            &form, SelectorServices{windows, program->Session, program->Output});
    }
    void ReadKeys(const std::function<void(frmGetKeys&)>& user) {
        ui.User = [&](Form& window) {
            user(dynamic_cast<frmGetKeys&>(window));
            window.Unload();
        };
        selector->SetFSEvent(3);
        selector->btnKeyReader.Press();
    }
    ActionRecord Taken(ActionRecord record = {}) {
        selector->Take(record);
        return record;
    }

    std::vector<ScreenRect> monitors = machine.screen.EnumDisplayMonitors();
    Form form{ui};
    std::unique_ptr<ctlEventSelector> selector;
};

}  // namespace

TEST(KeyCaptureTest, QualifiersComeFirstAndStayAndAltIsRefused) {
    using Answer = KeyCapture::Answer;
    KeyCapture capture;
    for (const int32_t key : {kTab, kShift, kShift, kCtrl}) {
        EXPECT_EQ(capture.KeyDown(key), Answer::MarksChanged);
        EXPECT_EQ(capture.KeyUp(key), Answer::Nothing);
    }
    EXPECT_EQ(capture.Marks(), 7);
    EXPECT_EQ(capture.KeyDown(kAlt), Answer::AltRefused);
    EXPECT_EQ(capture.KeyUp(kAlt), Answer::Nothing);
    EXPECT_EQ(capture.KeyDown(65), Answer::Nothing);
    capture.KeyPress(1);
    EXPECT_EQ(capture.Result(), CapturedKey{}) << "not before the key comes up";
    EXPECT_EQ(capture.KeyUp(65), Answer::Captured);
    EXPECT_EQ(capture.Result(), (CapturedKey{65, 7, 1}));
}

TEST_F(EventSelectorTest, KeysOfTheWindowBecomeTheKeystroke) {
    ReadKeys([](frmGetKeys& window) {
        EXPECT_TRUE(window.TakesAllKeys);
        EXPECT_FALSE(window.picShift.Visible || window.picCtrl.Visible || window.picTab.Visible);
        Press(window, kShift), Press(window, kCtrl);
        EXPECT_TRUE(window.picShift.Visible && window.picCtrl.Visible && !window.picTab.Visible);
        Press(window, 65, 'a');
        EXPECT_TRUE(window.IsUnloaded());
    });
    EXPECT_EQ(Taken(), (ActionRecord{ActionKind::VKey, 65, 3, 'a'}));
    EXPECT_EQ(selector->labKeyStrokes.Caption.Get(), "CTRL-SHIFT-A");
    ReadKeys([this](frmGetKeys& window) {
        Press(window, kAlt);
        ASSERT_EQ(ui.Boxes.size(), 1u);
        EXPECT_EQ(ui.Boxes[0].text, "ALT and ALT-GROUND keys are not supported");
        EXPECT_EQ(ui.Boxes[0].icon, MsgBoxIcon::Information);
        Press(window, kF10);
    });
    EXPECT_EQ(selector->labKeyStrokes.Caption.Get(), "F10");
    ReadKeys([](frmGetKeys& window) {
        Press(window, kTab, 9);
        window.Top = 900;
    });
    EXPECT_EQ(Taken(), (ActionRecord{ActionKind::VKey, 0, 0, 0})) << "closed without a key";
    EXPECT_EQ(selector->labKeyStrokes.Caption.Get(), "???");
    EXPECT_EQ(program->GeneralSetup.GetKeysFormTop, 900);
}

TEST_F(EventSelectorTest, ShowsOnePageAndMovesTheFieldsOfItsKind) {
    const auto page = [this] {
        int shown = -1;
        for (int i = 0; i < 4; ++i) {
            if (!selector->picInputSelector[i].Visible) continue;
            EXPECT_EQ(shown, -1);
            shown = i;
        }
        EXPECT_TRUE(shown == selector->FSEvent() && selector->optEvent[shown].Value());
        return shown;
    };
    EXPECT_EQ(page(), 0);
    selector->Put(kButton3);
    EXPECT_EQ(page(), 2);
    EXPECT_EQ(selector->cmbVJoystick.Text() + " " + selector->cmbVButton.Text(), "66 2");
    selector->Put(kShiftA);
    EXPECT_EQ(page(), 3);
    EXPECT_EQ(Taken(), kShiftA);
    selector->optEvent[2].Press();
    selector->cmbVButton.Choose(31);
    EXPECT_EQ(Taken(), (ActionRecord{ActionKind::VButton, 66, 32, 0})) << "as the lists stood";
    for (const int32_t kind : {1, 1, 4, -1}) selector->SetFSEvent(kind);
    EXPECT_EQ(page(), 1);
    EXPECT_EQ(Taken(kButton3), (ActionRecord{ActionKind::Offset, 66, 3, 0}));
    selector->Move(10, 10, 20, 20);
    EXPECT_TRUE(selector->Width == 5565 && selector->Height == 1245);
}

TEST_F(EventSelectorTest, ButtonsThatTheListsDoNotHaveAreKept) {
    const ActionRecord strange = {ActionKind::VButton, 99, 0, 0};
    selector->Put(strange);
    EXPECT_FALSE(selector->VJoystick() || selector->VButton());
    EXPECT_EQ(Taken(strange), strange);
    selector->cmbVJoystick.Choose(8);
    EXPECT_EQ(Taken(strange), (ActionRecord{ActionKind::VButton, 72, 0, 0}));
    selector->Put(strange), selector->Put(kShiftA), selector->optEvent[2].Press();
    EXPECT_EQ(Taken(kShiftA), (ActionRecord{ActionKind::VButton, 64, 1, 65})) << "no key's number";
}

TEST_F(EventSelectorTest, TestButtonPressesAndReleasesWhileTheSessionLasts) {
    const auto word = [this] { return machine.server.Get<uint32_t>(0x3340 + 2 * 4); };
    selector->Put(kButton3);
    uint32_t during = 0;
    machine.loop.After(50, [&] {
        during = word();
        selector->btnClick.Press();
        selector->cmbVButton.Choose(0);
    });
    const uint64_t before = machine.clock.Elapsed();
    selector->btnClick.Press();
    EXPECT_EQ(during, 4u);
    EXPECT_EQ(word(), 0u);
    EXPECT_EQ(machine.clock.Elapsed() - before, 100u);
    LoseSimulator();
    EXPECT_FALSE(Selector()->btnClick.Enabled);
    EXPECT_TRUE(selector->btnClick.Enabled) << "as it was made";
    const size_t calls = machine.ipc.CallCount(IpcCall::SendMessageTimeoutA);
    selector->btnClick.Press();
    EXPECT_EQ(machine.ipc.CallCount(IpcCall::SendMessageTimeoutA), calls);
}

TEST_F(EventSelectorTest, EndOfTheProgramReleasesTheButtonUnderTest) {
    selector->Put(kButton3);
    machine.loop.After(50, [this] { Window().Unload(); });
    selector->btnClick.Press();
    EXPECT_EQ(machine.server.Get<uint32_t>(0x3340 + 2 * 4), 0u);
}

TEST_F(EventSelectorTest, TiesMoveWhatTheUserChangesByTheTab) {
    ActionRecord records[2] = {{ActionKind::VButton, 99, 1, 0}, kShiftA};
    int16_t levels[2] = {250, 7};
    uint8_t reversed = 5;
    TabStrip tabs(&form);
    for (const char* name : {"ALT", "VS"}) tabs.AddTab(0, name, name);
    Slider slider(&form);
    slider.SetRange(1, 100);
    CheckBox box(&form);
    const auto tab = [&] { return tabs.SelectedItem() - 1; };
    Ties ties, others;
    ties.Add(*selector, {[&] { return records[tab()]; },
                         [&](const ActionRecord& record) { records[tab()] = record; }});
    ties.Add(slider, {[&] { return levels[tab()]; },
                      [&](int32_t level) { levels[tab()] = static_cast<int16_t>(level); }});
    ties.FollowTabs(tabs);
    others.Add(box, FieldPlace<bool>(reversed));
    ties.Load(), others.Load();
    EXPECT_EQ(slider.Value(), 100);
    tabs.Choose(2), tabs.Choose(1), others.Store();
    EXPECT_TRUE(levels[0] == 250 && levels[1] == 7 && reversed == 5) << "nothing was touched";
    EXPECT_EQ(records[0].VJoystickOrKeyCode, 99);
    tabs.Choose(2);
    EXPECT_EQ(Taken(), kShiftA);
    selector->optEvent[0].Press(), slider.Drag(8), box.Press();
    EXPECT_EQ(levels[1], 7) << "until the tab is left";
    tabs.Choose(1);
    EXPECT_TRUE(levels[1] == 8 && records[1].FSEvent == ActionKind::None);
    slider.Drag(9), ties.Store(), others.Store();
    EXPECT_TRUE(levels[0] == 9 && reversed == 0);
    slider.Drag(10), ties.Load(), levels[0] = 250, ties.Store();
    EXPECT_EQ(levels[0], 250) << "loaded anew, nothing is changed";
}
