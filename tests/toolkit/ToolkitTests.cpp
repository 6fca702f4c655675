#include <gtest/gtest.h>

#include "platform/virtual/VirtualLoop.h"
#include "toolkit/ComboBox.h"
#include "toolkit/CommandButton.h"
#include "toolkit/Form.h"
#include "toolkit/HeadlessUi.h"
#include "toolkit/Picture.h"
#include "toolkit/TabStrip.h"
#include "toolkit/Timer.h"

namespace {

// Counts what it is asked to follow.
class CountingPeer : public Peer {
  public:
    explicit CountingPeer(int& count) : count_(count) {}
    void Follow() override { ++count_; }

  private:
    int& count_;
};

class CountingUi : public HeadlessUi {
  public:
    std::unique_ptr<Peer> MakePeer(Control&) override {
        ++made;
        return std::make_unique<CountingPeer>(followed);
    }

    int made = 0;
    int followed = 0;
};

struct ToolkitTest : testing::Test {
    HeadlessUi ui;
    Form form{ui};
};

}  // namespace

TEST_F(ToolkitTest, OnlyAnotherValueIsFollowed) {
    CountingUi counting;
    Form shown(counting);
    CommandButton button(&shown);
    shown.Load();
    button.Caption = "Quit";
    button.Caption = "Quit";
    EXPECT_EQ(counting.followed, 1);

    Label late(&shown);
    shown.Load();
    EXPECT_EQ(counting.made, 3);
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

TEST_F(ToolkitTest, SelectingATabRaisesClickOnceAlsoForTheSelectedOne) {
    TabStrip tabs(&form);
    std::vector<int32_t> seen;
    tabs.Click.Connect([&] { seen.push_back(tabs.SelectedItem()); });
    tabs.Select(1);
    tabs.AddTab(1, "a", "A");
    tabs.AddTab(2, "b", "B");
    EXPECT_TRUE(seen.empty());

    for (const int32_t number : {2, 2, 0, 3, -1}) tabs.Select(number);
    EXPECT_EQ(seen, (std::vector<int32_t>{2, 2}));
}

TEST_F(ToolkitTest, TabsInsertedAroundTheSelectedOneLeaveItSelected) {
    TabStrip tabs(&form);
    int clicks = 0;
    tabs.Click.Connect([&] { ++clicks; });
    EXPECT_EQ(tabs.SelectedItem(), 0);
    tabs.AddTab(7, "old", "");
    tabs.AddTab(1, "first", "");
    tabs.AddTab(0, "last", "");
    EXPECT_EQ(tabs.SelectedItem(), 2);
    EXPECT_EQ(tabs.Tabs()[1].key, "old");
    EXPECT_EQ(tabs.Tabs()[2].key, "last");
    EXPECT_EQ(clicks, 0);
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

TEST(TimerTest, RestartsWithANewIntervalAndGoesOnWithTheSameOne) {
    VirtualClock clock;
    VirtualLoop loop(clock);
    Timer timer(loop, 50);
    int ticks = 0;
    timer.Tick.Connect([&] { ++ticks; });
    loop.Advance(200);
    EXPECT_EQ(ticks, 0) << "off from the start";

    timer.SetEnabled(true);
    loop.Advance(40);
    timer.SetEnabled(true);
    timer.SetInterval(50);
    loop.Advance(10);
    EXPECT_EQ(ticks, 1) << "the same again changes nothing";

    loop.Advance(40);
    timer.SetInterval(30);
    loop.Advance(29);
    EXPECT_EQ(ticks, 1);
    loop.Advance(1);
    EXPECT_EQ(ticks, 2);

    timer.SetInterval(0);
    loop.Advance(500);
    EXPECT_EQ(ticks, 2) << "no interval, no tick";
    timer.SetInterval(10);
    loop.Advance(10);
    EXPECT_EQ(ticks, 3);
    timer.SetEnabled(false);
    loop.Advance(500);
    EXPECT_EQ(ticks, 3);
}

TEST(TimerTest, MayStopItselfAndEndsWithItsOwner) {
    VirtualClock clock;
    VirtualLoop loop(clock);
    int ticks = 0;
    {
        Timer timer(loop, 10);
        timer.Tick.Connect([&] {
            ++ticks;
            timer.SetEnabled(false);
        });
        timer.SetEnabled(true);
        loop.Advance(100);
        EXPECT_EQ(ticks, 1);
        timer.SetEnabled(true);
    }
    EXPECT_EQ(loop.TimerCount(), 0u);
}
