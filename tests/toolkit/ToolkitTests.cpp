#include <gtest/gtest.h>
#include <utility>

#include "platform/Timer.h"
#include "platform/virtual/VirtualLoop.h"
#include "toolkit/CheckBox.h"
#include "toolkit/ComboBox.h"
#include "toolkit/CommandButton.h"
#include "toolkit/Form.h"
#include "toolkit/Frame.h"
#include "toolkit/HeadlessUi.h"
#include "toolkit/ListBox.h"
#include "toolkit/OptionButton.h"
#include "toolkit/Picture.h"
#include "toolkit/Slider.h"
#include "toolkit/TabStrip.h"
#include "toolkit/TextBox.h"

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

TEST_F(ToolkitTest, WhatLiesInADisabledFrameFollows) {
    CountingUi counting;
    Form shown(counting);
    Frame frame(&shown);
    Container page(&frame);
    CommandButton button(&page);
    shown.Load();
    frame.Enabled = false;
    EXPECT_EQ(counting.followed, 3);
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
    form.Show();
    EXPECT_FALSE(form.Visible || form.TakesActs()) << "it is closed";
}

TEST_F(ToolkitTest, ChildrenKeepTheirOrderUntilOneIsBroughtToTheFrontOrGoes) {
    Label first(&form);
    Label second(&form);
    {
        Label third(&form);
        form.BringToFront(third);
        EXPECT_EQ(form.Children(), (std::vector<Control*>{&third, &first, &second}));
    }
    EXPECT_EQ(form.Children(), (std::vector<Control*>{&first, &second}));
}

TEST_F(ToolkitTest, AnotherValueIsToldOnceWhoeverSetsIt) {
    CheckBox box(&form);
    Slider slider(&form);
    TextBox text(&form);
    int told = 0;
    for (Event<>* event : {&box.Click, &slider.Change, &text.Change}) {
        event->Connect([&] { ++told; });
    }
    for (int time = 0; time < 2; ++time) {
        box.SetValue(true), slider.SetValue(99), text.SetText("12");
        EXPECT_EQ(told, 3);
    }
    EXPECT_EQ(slider.Value(), 10) << "the end";
    box.Press(), slider.Drag(3), text.Type("1");
    EXPECT_EQ(told, 6);
    slider.SetRange(4, 8);
    EXPECT_TRUE(slider.Value() == 4 && told == 6);
}

TEST_F(ToolkitTest, OneOptionOfAGroupIsChosenAndSaysSo) {
    Frame frame(&form);
    OptionButton yes(&frame), no(&frame), elsewhere(&form);
    std::string story;
    yes.Click.Connect([&] { story += no.Value() ? "both " : "yes "; });
    no.Click.Connect([&] { story += yes.Value() ? "both " : "no "; });
    elsewhere.SetValue(true);
    yes.Press(), yes.Press(), no.SetValue(true), yes.SetValue(false), yes.Press();
    EXPECT_EQ(story, "yes no yes ");
    yes.SetValue(false);
    EXPECT_TRUE(!yes.Value() && !no.Value() && elsewhere.Value());
}

TEST_F(ToolkitTest, TypedTextAndEntriesOfAComboBox) {
    ComboBox box(&form, ComboBox::Kind::Editable), list(&form);
    std::string story;
    box.Change.Connect([&] { story += "typed " + box.Text() + ' '; });
    box.Click.Connect([&] { story += "chose " + box.Text() + ' '; });
    box.AddItem("Default");
    box.Choose(0), box.Type("Jet"), box.Type("Jet"), box.Type("Default");
    EXPECT_EQ(story, "chose Default typed Jet typed Default ");
    EXPECT_EQ(box.ListIndex(), -1);
    list.SetText("Jet");
    EXPECT_EQ(list.Text(), "") << "of a list that can't be typed into";
}

TEST_F(ToolkitTest, WhatCannotBeReachedTakesNoAct) {
    Frame frame(&form);
    Container page(&frame);
    CheckBox box(&page);
    ListBox list(&page);
    TabStrip tabs(&page);
    list.AddItem("a"), list.SetListIndex(0);
    for (const char* name : {"one", "two"}) tabs.AddTab(0, name, name);
    int acts = 0;
    for (Event<>* event : {&box.Click, &list.Click, &list.DblClick, &tabs.Click}) {
        event->Connect([&] { ++acts; });
    }
    const auto act = [&] {
        box.Press(), list.Choose(0), list.DoubleClick(), tabs.Choose(2);
        return std::exchange(acts, 0);
    };
    EXPECT_EQ(act(), 4);
    frame.Enabled = false;
    EXPECT_EQ(act(), 0);
    EXPECT_FALSE(box.IsEnabled());
    box.SetValue(false);
    EXPECT_EQ(acts, 1) << "but the program may";
    frame.Enabled = true, form.Enabled = false, acts = 0;
    EXPECT_EQ(act(), 0);
    form.Enabled = true, frame.Visible = false;
    EXPECT_EQ(act(), 0);
    frame.Visible = true;
    EXPECT_EQ(act(), 4);
}

TEST_F(ToolkitTest, ModalFormsAndBoxesStandOverAllOthers) {
    VirtualClock clock;
    VirtualLoop loop(clock);
    Form first(ui), second(ui);
    std::string story;
    CommandButton below(&form), button(&first), above(&second);
    below.Click.Connect([&] { story += "below "; });
    button.Click.Connect([&] { story += "first "; });
    above.Click.Connect([&] { story += "second "; });
    first.Unloaded.Connect([&] { story += "first gone "; });
    second.Unloaded.Connect([&] { story += "second gone "; });
    ui.Answer = [&](const MsgBoxRequest&) {
        below.Press(), button.Press(), above.Press();
        return MsgBoxResult::Ok;
    };
    ui.User = [&](Form& shown) {
        below.Press(), button.Press(), above.Press();
        if (&shown == &first) {
            EXPECT_EQ(shown.Owner(), &form);
            second.ShowModal(loop);
        } else {
            EXPECT_EQ(shown.Owner(), &first);
            ui.MsgBox({"", ""});
            form.EndSession();
        }
    };
    form.SessionEnding.Connect([&] { story += "end "; });
    form.Show();
    first.ShowModal(loop);
    EXPECT_EQ(story, "first second second gone first gone end ");
    EXPECT_FALSE(ui.IsBlocked(form));
}

TEST_F(ToolkitTest, AFormThatGoesTakesWhatIsModalOverItAlong) {
    VirtualClock clock;
    VirtualLoop loop(clock);
    Form modal(ui);
    int unloaded = 0;
    form.Unloaded.Connect([&] { ++unloaded; });
    modal.QueryUnload.Connect([&] { form.EndSession(); });  // as under a box
    ui.User = [&](Form&) { form.Unload(); };
    form.Show();
    modal.ShowModal(loop);
    EXPECT_TRUE(modal.IsUnloaded() && form.IsUnloaded());
    EXPECT_EQ(unloaded, 1);
    Form late(ui);
    loop.Quit();
    ui.User = [](Form&) {};
    late.ShowModal(loop);
    EXPECT_TRUE(late.IsUnloaded()) << "the loop was quit";
}

TEST_F(ToolkitTest, MoreRowsOfTabsMoveWhatLiesOnAndBelowThem) {
    form.SetContentSize(9000, 6000);
    const int32_t height = form.Height;
    TabStrip around(&form), beside(&form);
    around.Move(0, 0, 9000, 3400), beside.Move(9000, 0, 900, 3400);
    Container page(&form);
    page.Move(0, 300, 9000, 3000);
    TabStrip tabs(&page);
    tabs.Move(0, 60, 9000, 2400);
    Label on(&page);
    on.Top = 480;
    CommandButton below(&form);
    below.Top = 3600;
    tabs.SetMoreRows(500), tabs.SetMoreRows(500);
    EXPECT_TRUE(tabs.Top == 60 && tabs.Height == 2900 && on.Top == 980);
    EXPECT_TRUE(around.Top == 0 && around.Height == 3900 && beside.Height == 3400);
    EXPECT_TRUE(page.Height == 3500 && below.Top == 4100 && form.Height == height + 500);
    tabs.SetMoreRows(0);
    EXPECT_TRUE(on.Top == 480 && below.Top == 3600 && form.Height == height);
}

TEST_F(ToolkitTest, ClickOnAPictureReachesThePartInFront) {
    Picture picture(&form);
    Shape tile(&picture);
    Label caption(&picture);
    tile.Move(0, 0, 900, 900), caption.Move(300, 300, 300, 300);
    std::string story;
    tile.Click.Connect([&] { story += "tile "; });
    caption.Click.Connect([&] { story += "caption "; });
    picture.Click.Connect([&] { story += "picture "; });
    picture.Press(400, 400), picture.Press(100, 100), picture.Press(900, 900);
    EXPECT_EQ(story, "caption picture tile picture picture ");
}

TEST(ScaleTest, TwipsAndPixelsAtEachScaling) {
    const struct {
        int dpi, pixels, finer, twips;
    } cases[] = {{96, 100, 200, 1500},  {120, 125, 250, 1500}, {144, 150, 300, 1500},
                 {192, 200, 400, 1500}, {96, -2, -4, -30},     {192, 1, 2, 8}};
    for (const auto& test : cases) {
        const Scale scale(test.dpi);
        EXPECT_EQ(scale.ToPixels(test.twips), test.pixels) << test.dpi;
        EXPECT_EQ(scale.ToPixels(test.twips, 2), test.finer) << test.dpi;
        EXPECT_EQ(scale.ToTwips(test.pixels), test.twips) << test.dpi;
    }
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
