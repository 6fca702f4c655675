#include <utility>

#include "PeerTest.h"
#include "toolkit/CheckBox.h"
#include "toolkit/CommandButton.h"
#include "toolkit/Frame.h"
#include "toolkit/ListBox.h"
#include "toolkit/OptionButton.h"
#include "toolkit/Picture.h"
#include "toolkit/Slider.h"
#include "toolkit/TabStrip.h"
#include "toolkit/TextBox.h"

namespace {

// What a parent answers when its control asks how to paint itself, and the color of its text then.
LRESULT AskColors(UINT message, const Control& parent, const Control& control, COLORREF& text) {
    const HDC dc = GetDC(WindowOf(control));
    const LRESULT brush = Tell(parent, message, reinterpret_cast<WPARAM>(dc),
                               reinterpret_cast<LPARAM>(WindowOf(control)));
    text = GetTextColor(dc);
    ReleaseDC(WindowOf(control), dc);
    return brush;
}

}  // namespace

TEST_F(PeerTest, NativeButtonClicksOnceAndMayBeChangedInItsHandler) {
    CommandButton button(&form);
    button.Move(0, 0, 900, 330);
    button.Caption = "Setup";
    form.Load();
    button.Click.Connect([&] {
        ++clicks;
        button.Caption = "Caf\xE9 \x80";
        button.Enabled = false;
        button.Visible = false;
    });
    EXPECT_EQ(TextOf(button), "Setup");
    Tell(button, BM_CLICK);
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(TextOf(button), "Caf\xE9 \x80");
    EXPECT_FALSE(IsWindowEnabled(WindowOf(button)));
}

TEST_F(PeerTest, FrameIsANativeGroupThatHandsOnWhatItsControlsTell) {
    CommandButton before(&form);
    Frame frame(&form);
    frame.Move(0, 0, 5000, 3000);
    frame.Caption = "Profiles";
    Label label(&frame);
    label.ForeColor = 0x0000FFU;
    CommandButton button(&frame);
    button.Move(150, 1500, 900, 330);
    Count(button);
    Show();
    EXPECT_EQ(GetWindowLongW(WindowOf(frame), GWL_STYLE) & BS_TYPEMASK, BS_GROUPBOX);
    EXPECT_EQ(TextOf(frame), "Profiles");
    EXPECT_EQ(PixelOf(frame, 250, 150), GetSysColor(COLOR_BTNFACE));
    Focus(before), Press(VK_TAB), Press(VK_RETURN);
    EXPECT_EQ(clicks, 1);
    COLORREF text = 0;
    AskColors(WM_CTLCOLORSTATIC, frame, label, text);
    EXPECT_EQ(text, 0x0000FFu);
}

TEST_F(PeerTest, HiddenPageGivesTheKeyboardAway) {
    TabStrip tabs(&form);
    Container page(&form);
    CommandButton first(&page);
    CommandButton second(&page);
    Show(), Focus(first);
    page.Visible = false;
    EXPECT_EQ(GetFocus(), WindowOf(tabs));
    EXPECT_EQ(TextOf(tabs), "Pages");
    page.Visible = true;
    tabs.Visible = false;
    Focus(second);
    page.Visible = false;
    EXPECT_EQ(GetFocus(), WindowOf(form)) << "no stop is left";
}

TEST_F(PeerTest, PictureTellsScreenReadersItsLabelsAndButtonsItsGround) {
    Picture picture(&form);
    picture.BackColor = 0x302010U;
    CommandButton button(&picture);
    Label mode(&picture);
    Label empty(&picture);
    Label value(&picture);
    mode.Caption = "HDG";
    value.Caption = "082";
    form.Load();
    EXPECT_EQ(TextOf(picture), "HDG 082");
    value.Caption = "083";
    mode.Visible = false;
    EXPECT_EQ(TextOf(picture), "083");
    picture.BackColor = 0x403020U;
    COLORREF text = 0;
    const LRESULT brush = AskColors(WM_CTLCOLORBTN, picture, button, text);
    LOGBRUSH ground{};
    ASSERT_NE(GetObjectW(reinterpret_cast<HGDIOBJ>(brush), sizeof ground, &ground), 0);
    EXPECT_EQ(ground.lbColor, 0x403020u);
}

TEST_F(PeerTest, CheckBoxFollowsBothWays) {
    CheckBox box(&form);
    Count(box);
    box.Move(0, 0, 900, 330);
    form.Load();
    box.SetValue(true);
    EXPECT_EQ(Tell(box, BM_GETCHECK), BST_CHECKED);
    Tell(box, BM_CLICK);
    EXPECT_FALSE(box.Value());
    EXPECT_EQ(clicks, 2);
    form.Enabled = false;
    EnableWindow(WindowOf(box), TRUE);
    Tell(box, BM_CLICK);
    EXPECT_EQ(Tell(box, BM_GETCHECK), BST_UNCHECKED) << "what is refused is shown undone";
    EXPECT_EQ(clicks, 2);
}

TEST_F(PeerTest, OneOptionOfAParentIsChosen) {
    OptionButton a(&form), b(&form);
    Label between(&form);
    OptionButton c(&form);
    for (OptionButton* option : {&a, &b, &c}) {
        Count(*option);
        option->Move(0, 0, 900, 330);
    }
    form.Load();
    const auto shown = [&] {
        std::string all;
        for (OptionButton* option : {&a, &b, &c}) all += Tell(*option, BM_GETCHECK) ? 'x' : '-';
        return all;
    };
    c.SetValue(true);
    EXPECT_EQ(shown(), "--x");
    Tell(a, BM_CLICK);
    EXPECT_EQ(shown(), "x--");
    Tell(b, BM_CLICK), Tell(b, BM_CLICK);
    EXPECT_EQ(shown(), "-x-");
    EXPECT_EQ(clicks, 3);
    form.Enabled = false;
    EnableWindow(WindowOf(a), TRUE);
    Tell(a, BM_CLICK);
    EXPECT_EQ(shown(), "-x-") << "what is refused is shown undone";
}

TEST_F(PeerTest, TextBoxFollowsBothWaysAndKeepsTheCaret) {
    TextBox box(&form);
    CommandButton elsewhere(&form);
    box.Change.Connect([&] { story += box.Text() + " "; });
    Show(), Focus(box);
    box.SetText("Caf\xE9");
    EXPECT_EQ(TextOf(box), "Caf\xE9");
    Tell(box, EM_SETSEL, 2, 2);
    Send(WM_CHAR, 'x');
    EXPECT_EQ(story, "Caf\xE9 Caxf\xE9 ");
    box.Change.Connect([&] {
        if (box.Text() != "digits") box.SetText("digits");
    });
    Send(WM_CHAR, 'y');
    EXPECT_EQ(TextOf(box), "digits");
    EXPECT_EQ(Tell(box, EM_GETSEL), MAKELONG(4, 4)) << "as far from the end as it was";
    box.LostFocus.Connect([&] { story = "left"; });
    Send(WM_CHAR, 'z');
    EXPECT_NE(story, "left");
    Focus(elsewhere);
    EXPECT_EQ(std::exchange(story, ""), "left");
    SetWindowTextA(WindowOf(box), "digits");
    EXPECT_EQ(story, "left") << "another program has written";
}

TEST_F(PeerTest, ListBoxFollowsBothWays) {
    ListBox box(&form);
    box.Move(0, 0, 2000, 1500);
    for (const char* item : {"a", "b & c", "d"}) box.AddItem(item);
    box.Click.Connect([&] { story += box.Text() + " "; });
    box.DblClick.Connect([&] { story += "double "; });
    Show(), Focus(box);
    EXPECT_EQ(ClientOf(box).bottom, 96) << "however high an entry is";
    box.SetListIndex(1);
    EXPECT_EQ(Tell(box, LB_GETCURSEL), 1);
    Press(VK_DOWN);
    Tell(box, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    Tell(box, WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
    Tell(box, WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(5, 5));
    EXPECT_EQ(story.substr(0, 10), "b & c d a ");
    EXPECT_TRUE(story.ends_with(" double ")) << story;
    box.Clear();
    box.AddItem("e");
    EXPECT_EQ(Tell(box, LB_GETCOUNT), 1);
    EXPECT_EQ(Tell(box, LB_GETCURSEL), LB_ERR);
}

TEST_F(PeerTest, SliderFollowsBothWays) {
    Slider slider(&form);
    slider.Move(0, 0, 3000, 600);
    slider.SetRange(20, 60);
    slider.SetValue(25);
    slider.TickFrequency = 10;
    slider.LargeChange = 10;
    slider.Change.Connect([&] { seen.push_back(slider.Value()); });
    Show(), Focus(slider);
    EXPECT_EQ(Tell(slider, TBM_GETPOS), 25);
    EXPECT_EQ(Tell(slider, TBM_GETNUMTICS), 5);
    Press(VK_RIGHT), Press(VK_NEXT), Press(VK_END), Press(VK_END);
    slider.SetRange(0, 40);
    EXPECT_EQ(Tell(slider, TBM_GETRANGEMAX), 40);
    EXPECT_EQ(Tell(slider, TBM_GETPOS), 40);
    slider.SetValue(3);
    EXPECT_EQ(Tell(slider, TBM_GETPOS), 3);
    EXPECT_EQ(seen, (std::vector<int32_t>{26, 36, 60, 3}));
}

TEST_F(PeerTest, ADisabledFrameGreysWhatIsInIt) {
    CommandButton outside(&form);
    Frame frame(&form);
    Container page(&frame);
    TextBox box(&page);
    Label label(&page);
    OptionButton option(&frame);
    option.Enabled = false;
    Show(), Focus(box);
    frame.Enabled = false;
    for (const Control* child : std::initializer_list<const Control*>{&box, &label, &option}) {
        EXPECT_FALSE(IsWindowEnabled(WindowOf(*child)));
    }
    EXPECT_EQ(GetFocus(), WindowOf(outside)) << "the keyboard still works";
    COLORREF text = 0;
    AskColors(WM_CTLCOLORSTATIC, page, label, text);
    EXPECT_EQ(text, GetSysColor(COLOR_GRAYTEXT));
    frame.Enabled = true;
    EXPECT_TRUE(IsWindowEnabled(WindowOf(box)));
    EXPECT_FALSE(IsWindowEnabled(WindowOf(option)));
}

TEST_F(PeerTest, ControlsAreDrawnOnTheGroundOfTheirPicture) {
    Picture picture(&form);
    picture.BackColor = 0x302010U;
    Frame frame(&picture);
    frame.Move(300, 300, 3000, 1500);
    CheckBox box(&frame);
    form.Load();
    COLORREF text = 0;
    LOGBRUSH ground{};
    const auto brush = AskColors(WM_CTLCOLORSTATIC, frame, box, text);
    ASSERT_NE(GetObjectW(reinterpret_cast<HGDIOBJ>(brush), sizeof ground, &ground), 0);
    EXPECT_EQ(ground.lbColor, 0x302010u);
    EXPECT_EQ(text, 0xFFFFFFu) << "to be read on it";
}
