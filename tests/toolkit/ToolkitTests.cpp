#include <gtest/gtest.h>

#include "platform/Timer.h"
#include "platform/virtual/VirtualLoop.h"
#include "toolkit/ComboBox.h"
#include "toolkit/CommandButton.h"
#include "toolkit/Form.h"
#include "toolkit/HeadlessUi.h"
#include "toolkit/Picture.h"
#include "toolkit/TabStrip.h"

namespace {

// Counts what its peers are asked to follow.
struct CountingUi : HeadlessUi {
    struct CountingPeer : Peer {
        explicit CountingPeer(int& all) : count(all) {}
        void Follow() override { ++count; }
        int& count;
    };
    std::unique_ptr<Peer> MakePeer(Control&) override {
        return std::make_unique<CountingPeer>(followed);
    }
    int followed = 0;
};

struct ToolkitTest : testing::Test {
    HeadlessUi ui;
    Form form{ui};
};

struct TimerTest : testing::Test {
    TimerTest() {
        timer->Tick.Connect([this] { ++ticks; });
    }
    int TicksIn(uint32_t milliseconds) {
        ticks = 0;
        loop.Advance(milliseconds);
        return ticks;
    }

    VirtualClock clock;
    VirtualLoop loop{clock};
    std::unique_ptr<Timer> timer = std::make_unique<Timer>(loop, 50);
    int ticks = 0;
};

}  // namespace

TEST_F(ToolkitTest, OnlyAnotherValueIsFollowed) {
    CountingUi counting;
    Form shown(counting);
    CommandButton button(&shown);
    shown.Load();
    for (int time = 0; time < 2; ++time) button.Caption = "Quit";
    EXPECT_EQ(counting.followed, 1);
}

TEST_F(ToolkitTest, DisabledButtonCannotBePressed) {
    CommandButton button(&form);
    int clicks = 0;
    button.Click.Connect([&] { ++clicks; });
    button.Press();
    button.Enabled = false;
    button.Press();
    EXPECT_EQ(clicks, 1);
}

TEST_F(ToolkitTest, SelectingATabRaisesClickOnceAndInsertedOnesLeaveItSelected) {
    TabStrip tabs(&form);
    std::vector<int32_t> seen;
    tabs.Click.Connect([&] { seen.push_back(tabs.SelectedItem()); });
    tabs.Select(1);
    EXPECT_EQ(tabs.SelectedItem(), 0);
    tabs.AddTab(7, "old", "");
    tabs.AddTab(1, "first", "");
    tabs.AddTab(0, "last", "");
    EXPECT_EQ(tabs.SelectedItem(), 2);
    EXPECT_EQ(tabs.Tabs()[1].key, "old");
    EXPECT_EQ(tabs.Tabs()[2].key, "last");
    EXPECT_TRUE(seen.empty());
    for (const int32_t number : {3, 3, 0, 4, -1}) tabs.Select(number);
    EXPECT_EQ(seen, (std::vector<int32_t>{3, 3})) << "also for the selected one";
}

TEST_F(ToolkitTest, SelectingAnEntryRaisesClickOnceAndOnlyThen) {
    ComboBox box(&form);
    std::vector<std::string> seen;
    box.Click.Connect([&] { seen.push_back(box.Text()); });
    box.SetListIndex(0);
    EXPECT_EQ(box.ListIndex(), -1);
    box.AddItem("a");
    box.AddItem("b");
    for (const int32_t index : {1, 1, 2, -2}) box.SetListIndex(index);
    box.AddItem("c");
    EXPECT_EQ(box.ListIndex(), 1);
    box.SetListIndex(-1);
    EXPECT_EQ(box.Text(), "");
    box.SetListIndex(2);
    box.Clear();
    EXPECT_EQ(box.ListIndex(), -1);
    EXPECT_EQ(seen, (std::vector<std::string>{"b", "b", "c"}));
}

TEST_F(ToolkitTest, FormUnloadsOnceAndIsHiddenLast) {
    std::string story;
    form.QueryUnload.Connect([&] { story += form.Visible ? "query " : "hidden "; });
    form.Unloaded.Connect([&] {
        story += "unloaded ";
        form.Unload();
    });
    form.Show();
    form.Unload();
    form.Unload();
    EXPECT_EQ(story, "query unloaded ");
    EXPECT_FALSE(form.Visible);
}

TEST_F(ToolkitTest, ChildrenKeepTheirOrderUntilOneIsBroughtToTheFrontOrGoes) {
    Label first(&form);
    Label second(&form);
    {
        Label third(&form);
        form.BringToFront(first);
        EXPECT_EQ(form.Children(), (std::vector<Control*>{&second, &third, &first}));
    }
    EXPECT_EQ(form.Children(), (std::vector<Control*>{&second, &first}));
}

TEST_F(TimerTest, RestartsWithANewIntervalAndGoesOnWithTheSameOne) {
    EXPECT_EQ(TicksIn(200), 0) << "off from the start";
    timer->SetEnabled(true);
    EXPECT_EQ(TicksIn(40), 0);
    timer->SetEnabled(true);
    timer->SetInterval(50);
    EXPECT_EQ(TicksIn(10), 1) << "the same again changes nothing";
    EXPECT_EQ(TicksIn(40), 0);
    timer->SetInterval(30);
    EXPECT_EQ(TicksIn(29), 0);
    EXPECT_EQ(TicksIn(1), 1);
    timer->SetInterval(0);
    EXPECT_EQ(TicksIn(500), 0) << "no interval, no tick";
    timer->SetInterval(10);
    EXPECT_EQ(TicksIn(10), 1);
    timer->SetEnabled(false);
    EXPECT_EQ(TicksIn(500), 0);
}

TEST_F(TimerTest, MayStopItselfAndEndsWithItsOwner) {
    timer->Tick.Connect([this] { timer->SetEnabled(false); });
    timer->SetEnabled(true);
    EXPECT_EQ(TicksIn(200), 1);
    timer->SetEnabled(true);
    timer.reset();
    EXPECT_EQ(loop.TimerCount(), 0U);
}
