#include "PeerTest.h"
#include "toolkit/ComboBox.h"
#include "toolkit/CommandButton.h"
#include "toolkit/Picture.h"
#include "toolkit/StatusBar.h"

TEST_F(PeerTest, StatusBarSharesTheWidthAndShowsItsTexts) {
    StatusBar bar(&form);
    bar.AddPanel("Status", "Session", 3);
    StatusBar::Panel& version = bar.AddPanel("Version", "Version", 1);
    form.Load();
    version.Text = "\xA9 10";
    wchar_t text[20];
    Tell(bar, SB_GETTEXTW, 1, reinterpret_cast<LPARAM>(text));
    EXPECT_EQ(FromWide(text), "\xA9 10");
    form.Width = 9000;
    int ends[2];
    ASSERT_EQ(Tell(bar, SB_GETPARTS, 2, reinterpret_cast<LPARAM>(ends)), 2);
    EXPECT_EQ(ends[1], ClientOf(form).right);
    EXPECT_NEAR(ends[0], ends[1] * 3 / 4, 1);
}

TEST_F(PeerTest, UsersMoveReachesTheFormAndHiddenWindowsFollowIt) {
    form.Load();
    EXPECT_FALSE(IsWindowVisible(WindowOf(form)));
    SetWindowPos(WindowOf(form), nullptr, 33, 44, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    EXPECT_EQ(form.Left, 33 * 15);
    EXPECT_EQ(form.Top, 44 * 15);
    EXPECT_EQ(form.Height, 4208) << "a fraction of a pixel is no change of size";
    form.Left = 1200;
    form.Caption = "Orvo";
    EXPECT_EQ(PlaceOf(form).left, 80);
    EXPECT_EQ(PlaceOf(form).top, 44);
    EXPECT_EQ(TextOf(form), "Orvo");
    EnableWindow(WindowOf(form), FALSE);
    form.Caption = "Orvo 2";
    EXPECT_FALSE(IsWindowEnabled(WindowOf(form))) << "as a message box has left it";
    form.Width = 150;
    EXPECT_EQ(form.Width, 150) << "the system's smallest width is no act of the user";
}

TEST_F(PeerTest, ContentsNeverCoverTheStatusBar) {
    Container page(&form);
    page.Move(0, 0, 6000, 4500);
    StatusBar bar(&form);
    bar.AddPanel("Status", "Session", 1);
    Show();
    RECT place = PlaceOf(bar);
    MapWindowPoints(nullptr, WindowOf(form), reinterpret_cast<POINT*>(&place), 2);
    EXPECT_EQ(place.top, 300);
    EXPECT_EQ(place.bottom, ClientOf(form).bottom);
    SetWindowPos(WindowOf(form), nullptr, 33, 44, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    EXPECT_EQ(form.Left, 33 * 15);
    EXPECT_EQ(form.Height, 4208) << "what the program has set";
    page.Height = 1500;
    form.Top = 900;
    EXPECT_EQ(PlaceOf(form).bottom - PlaceOf(form).top, 281) << "as set, where there is room";
}

TEST_F(PeerTest, ShowBringsAMinimisedFormBackAndACoveredOneToTheFront) {
    Show();
    ShowWindow(WindowOf(form), SW_MINIMIZE);
    Pump();
    ASSERT_TRUE(IsIconic(WindowOf(form)));
    form.Show();
    EXPECT_FALSE(IsIconic(WindowOf(form)));
    EXPECT_EQ(form.Left, 1500);
    Form other(ui);
    other.Move(1500, 1500, 6000, 4208);
    other.Load();
    other.Show();
    ASSERT_EQ(GetForegroundWindow(), WindowOf(other));
    form.Show();
    EXPECT_EQ(GetForegroundWindow(), WindowOf(form));
}

TEST_F(PeerTest, CloseBoxUnloadsOnceAndDestroysNothing) {
    auto closing = std::make_unique<Form>(ui);
    int unloads = 0;
    closing->Unloaded.Connect([&] { ++unloads; });
    closing->Load();
    closing->Show();
    const HWND window = WindowOf(*closing);
    for (int i = 0; i < 2; ++i) SendMessageW(window, WM_CLOSE, 0, 0);
    EXPECT_EQ(unloads, 1);
    EXPECT_TRUE(IsWindow(window));
    EXPECT_FALSE(IsWindowVisible(window));
    closing.reset();
    EXPECT_FALSE(IsWindow(window));
}

TEST_F(PeerTest, ContentsAreAsLargeAsSetAndAFormCanStayOnTop) {
    form.SetContentSize(6000, 3000);
    form.StaysOnTop = true;
    Show();
    EXPECT_EQ(ClientOf(form).right, 400);
    EXPECT_EQ(ClientOf(form).bottom, 200);
    EXPECT_TRUE(GetWindowLongW(WindowOf(form), GWL_EXSTYLE) & WS_EX_TOPMOST);
    form.StaysOnTop = false;
    EXPECT_FALSE(GetWindowLongW(WindowOf(form), GWL_EXSTYLE) & WS_EX_TOPMOST);
}

struct LargeScaleTest : PeerTest {
    LargeScaleTest() : PeerTest(192) {}
    static int FontHeightOf(const Control& control) {
        LOGFONTW font{};
        GetObjectW(reinterpret_cast<HGDIOBJ>(Tell(control, WM_GETFONT)), sizeof font, &font);
        return font.lfHeight;
    }
};

TEST_F(LargeScaleTest, AllIsTwiceAsLarge) {
    Win32Ui small(96);
    Form smallForm(small);
    CommandButton smallButton(&smallForm);
    smallForm.Load();
    CommandButton button(&form);
    button.Move(150, 150, 900, 330);
    ComboBox box(&form);
    box.Move(1500, 150, 900, 330);
    Label label(&form);
    label.FontHeight = 300;
    StatusBar bar(&form);
    bar.AddPanel("", "", 1);
    form.SetContentSize(6000, 3000);
    Container page(&form);
    page.Move(0, 0, 6000, 3000);
    Show();
    EXPECT_EQ(ui.ScreenScale().Dpi(), 192);
    EXPECT_EQ(ClientOf(form).right, 800);
    EXPECT_EQ(PlaceOf(bar).top - PlaceOf(page).top, 400) << "a bar that it leaves no room for";
    EXPECT_EQ(ClientOf(button).right, 120);
    EXPECT_EQ(PlaceOf(box).bottom - PlaceOf(box).top, 44);
    EXPECT_EQ(FontHeightOf(button), 2 * FontHeightOf(smallButton));
    EXPECT_EQ(FontHeightOf(bar), FontHeightOf(button));
    EXPECT_EQ(FontHeightOf(label), -40);
    SetWindowPos(WindowOf(form), nullptr, 40, 60, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    EXPECT_EQ(form.Left, 300);
    EXPECT_EQ(form.Top, 450);
}

TEST_F(LargeScaleTest, PicturesAreDrawnAndClickedAtTheirSize) {
    Picture picture(&form);
    picture.Move(0, 0, 3000, 1500);
    picture.BackColor = 0x202020U;
    Shape lamp(&picture);
    lamp.Move(300, 300, 600, 600);
    lamp.FillColor = 0x00FFFFU;
    lamp.BorderWidth = 0;
    Count(lamp);
    Show();
    for (const int inside : {41, 118}) EXPECT_EQ(PixelOf(picture, inside, inside), 0x00FFFFu);
    for (const int outside : {38, 121}) EXPECT_EQ(PixelOf(picture, outside, 60), 0x202020u);
    Tell(picture, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(118, 118));
    Tell(picture, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(121, 118));
    EXPECT_EQ(clicks, 1);
}
