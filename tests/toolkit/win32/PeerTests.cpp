#include <gtest/gtest.h>

#include "base/Number.h"
#include "toolkit/ComboBox.h"
#include "toolkit/CommandButton.h"
#include "toolkit/Form.h"
#include "toolkit/Frame.h"
#include "toolkit/Picture.h"
#include "toolkit/StatusBar.h"
#include "toolkit/TabStrip.h"
#include "toolkit/win32/Canvas.h"
#include "toolkit/win32/CommonControls.h"
#include "toolkit/win32/SevenSegment.h"
#include "toolkit/win32/WideText.h"
#include "toolkit/win32/Win32Ui.h"
#include "toolkit/win32/WindowPeer.h"

namespace {

HWND WindowOf(const Control& control) { return WindowPeer::Of(control)->Window(); }

LRESULT Tell(const Control& control, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
    return SendMessageW(WindowOf(control), message, wParam, lParam);
}

std::string TextOf(const Control& control) {
    wchar_t text[100];
    const int length = GetWindowTextW(WindowOf(control), text, 100);
    return FromWide({text, static_cast<size_t>(length)});
}

void Pump() {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

void Focus(const Control& control) { SetFocus(WindowOf(control)); }

// `flags` as those of WM_KEYDOWN.
void Press(WPARAM key, LPARAM flags = 0) {
    PostMessageW(GetFocus(), WM_KEYDOWN, key, flags);
    Pump();
}

RECT ClientOf(const Control& control) {
    RECT client;
    GetClientRect(WindowOf(control), &client);
    return client;
}

RECT PlaceOf(const Control& control) {
    RECT place;
    GetWindowRect(WindowOf(control), &place);
    return place;
}

COLORREF PixelOf(const Control& control, int x, int y) {
    const HDC dc = GetDC(WindowOf(control));
    const COLORREF color = GetPixel(dc, x, y);
    ReleaseDC(WindowOf(control), dc);
    return color;
}

// What a parent answers when its control asks how to paint itself, and the color of its text then.
LRESULT AskColors(UINT message, const Control& parent, const Control& control, COLORREF& text) {
    const HDC dc = GetDC(WindowOf(control));
    const LRESULT brush = Tell(parent, message, reinterpret_cast<WPARAM>(dc),
                               reinterpret_cast<LPARAM>(WindowOf(control)));
    text = GetTextColor(dc);
    ReleaseDC(WindowOf(control), dc);
    return brush;
}

using Pixels = std::vector<COLORREF>;
constexpr RECT kDisplay{0, 0, 167, 40};  // of five places

Pixels AllOf(HDC dc) {
    Pixels pixels;
    for (int y = 0; y < kDisplay.bottom; ++y)
        for (int x = 0; x < kDisplay.right - 1; ++x) pixels.push_back(GetPixel(dc, x, y));
    return pixels;
}

// What a display shows of a text.
Pixels Drawn(const std::string& text, Alignment align, bool hasPoints = true) {
    Canvas canvas(kDisplay);
    DrawSevenSegment(canvas.Dc(), kDisplay, ToSegmentCells(text, hasPoints), align, 40, 0xFFFFFF);
    return AllOf(canvas.Dc());
}

struct PeerTest : testing::Test {
    PeerTest() { form.Move(1500, 1500, 6000, 4208); }

    void Show() {
        form.Load();
        form.Show();
        Pump();
    }
    void Count(CommandButton& button) {
        button.Click.Connect([this] { ++clicks; });
    }

    Win32Ui ui;
    Form form{ui};
    int clicks = 0;
    std::vector<int32_t> seen;
};

struct ListPeerTest : PeerTest {
    ListPeerTest() {
        for (int i = 0; i < 40; ++i) box.AddItem("Caf\xE9 " + FormatInteger(i));
        box.Click.Connect([this] { seen.push_back(box.ListIndex()); });
        box.Move(0, 0, 3000, 330);
        Show(), Focus(box);
    }
    HWND List() {
        COMBOBOXINFO parts{};
        parts.cbSize = sizeof parts;
        GetComboBoxInfo(WindowOf(box), &parts);
        return parts.hwndList;
    }
    void Drop(bool down = true) { Tell(box, CB_SHOWDROPDOWN, down); }

    ComboBox box{&form};
};

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

TEST_F(PeerTest, TabsFollowBothWaysAndClickOnce) {
    TabStrip tabs(&form);
    tabs.Move(0, 0, 5000, 400);
    for (const char* name : {"General", "Multi"}) tabs.AddTab(0, name, name);
    form.Load();
    tabs.Click.Connect([&] { seen.push_back(tabs.SelectedItem()); });
    tabs.Select(2);
    EXPECT_EQ(Tell(tabs, TCM_GETCURSEL), 1);
    tabs.AddTab(1, "Radio", "Radio");
    EXPECT_EQ(Tell(tabs, TCM_GETITEMCOUNT), 3);
    EXPECT_EQ(Tell(tabs, TCM_GETCURSEL), 2);
    RECT first;
    Tell(tabs, TCM_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&first));
    Tell(tabs, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(first.left + 5, first.top + 5));
    Pump();
    EXPECT_EQ(seen, (std::vector<int32_t>{2, 1}));
}

TEST_F(ListPeerTest, FollowsBothWaysAndClicksOnce) {
    box.AddItem("last");
    box.SetListIndex(40);
    EXPECT_EQ(TextOf(box), "last");
    Press(VK_UP);
    EXPECT_EQ(TextOf(box), "Caf\xE9 39");
    box.Click.Connect([this] {
        box.Clear();
        box.AddItem("new");
    });
    Press(VK_HOME);
    EXPECT_EQ(seen, (std::vector<int32_t>{40, 39, 0}));
    EXPECT_EQ(TextOf(box), "") << "refilled by the handler";
    EXPECT_EQ(Tell(box, CB_GETCOUNT), 1);
}

TEST_F(ListPeerTest, LeavingItSelectsWhatItShowsThen) {
    box.SetListIndex(0);
    for (const WPARAM shown : {1, 0}) {
        Drop(), Press(VK_DOWN);
        Tell(box, CB_SETCURSEL, shown);
        Press(VK_ESCAPE);
    }
    EXPECT_EQ(seen, (std::vector<int32_t>{0, 1, 2, 0}));
}

TEST_F(ListPeerTest, ChoosingTheSameEntryClicksOnce) {
    box.SetListIndex(0);
    Drop(), Press(VK_RETURN);
    EXPECT_EQ(seen, (std::vector<int32_t>{0, 0}));
    Drop();
    SendMessageW(List(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    SendMessageW(List(), WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
    Pump();
    EXPECT_EQ(seen, (std::vector<int32_t>{0, 0, 0}));
    Drop(), Press(VK_DOWN), Press(VK_RETURN);
    EXPECT_EQ(seen, (std::vector<int32_t>{0, 0, 0, 1})) << "a move has clicked already";
}

TEST_F(ListPeerTest, ClosedItHasItsHeightAndOpenRoomForTwelve) {
    for (const int height : {24, 30}) {
        box.Height = height * kTwipsPerPixel;
        RECT place = PlaceOf(box);
        EXPECT_EQ(place.bottom - place.top, height);
        Drop();
        GetClientRect(List(), &place);
        Drop(false);
        EXPECT_EQ(place.bottom / Tell(box, CB_GETITEMHEIGHT), 12);
    }
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

TEST_F(PeerTest, EndOfTheUsersSessionIsTold) {
    form.Load();
    std::string story;
    form.Unloaded.Connect([&] { story += "unloaded "; });
    form.SessionEnding.Connect([&] { story += "ending "; });
    Tell(form, WM_ENDSESSION, FALSE);
    EXPECT_EQ(story, "");
    Tell(form, WM_ENDSESSION, TRUE);
    EXPECT_EQ(story, "unloaded ending ");
}

TEST_F(PeerTest, EnterPressesTheFocusedButtonOnce) {
    TabStrip tabs(&form);
    CommandButton button(&form);
    button.Move(0, 600, 900, 330);
    Show();
    Count(button);
    Focus(button), Press(VK_RETURN), Press(VK_RETURN, LPARAM{KF_REPEAT} << 16);
    EXPECT_EQ(clicks, 1);
    Focus(tabs), Press(VK_RETURN);
    EXPECT_EQ(clicks, 1);
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

TEST_F(PeerTest, KeyboardAndStackGoByTheOrderOfChildren) {
    CommandButton first(&form);
    Container page(&form);
    page.Move(0, 0, 900, 900);
    CommandButton inner(&page);
    CommandButton skipped(&page);
    skipped.Enabled = false;
    form.Load();
    CommandButton last(&form);
    form.Load();
    EXPECT_EQ(GetWindow(WindowOf(form), GW_CHILD), WindowOf(last));
    form.Show();
    Focus(first);
    for (const Control* next : {&inner, &last, &first, &inner}) {
        Press(VK_TAB);
        EXPECT_EQ(GetFocus(), WindowOf(*next));
    }

    form.BringToFront(first);
    EXPECT_EQ(GetWindow(WindowOf(form), GW_CHILD), WindowOf(first));
    Focus(last), Press(VK_TAB);
    EXPECT_EQ(GetFocus(), WindowOf(first));
}

TEST_F(PeerTest, PictureIsPaintedWhereItChangedAndOnlyWhenSeen) {
    Picture picture(&form);
    picture.Move(0, 0, 3000, 1500);
    picture.BackColor = 0x202020U;
    Shape lamp(&picture);
    lamp.Move(300, 300, 600, 600);
    lamp.FillColor = 0x00FFFFU;
    form.Load();
    lamp.FillColor = 0x00FF00U;
    EXPECT_FALSE(GetUpdateRect(WindowOf(picture), nullptr, FALSE));
    form.Show();
    Pump();
    EXPECT_EQ(PixelOf(picture, 40, 40), 0x00FF00u);
    EXPECT_EQ(PixelOf(picture, 100, 40), 0x202020u);
    lamp.Left = 600;
    RECT changed;
    ASSERT_TRUE(GetUpdateRect(WindowOf(picture), &changed, FALSE));
    EXPECT_LT(changed.right, 110) << "no more than the old place and the new one";
    Pump();
    EXPECT_EQ(PixelOf(picture, 30, 40), 0x202020u);
    EXPECT_EQ(PixelOf(picture, 60, 40), 0x00FF00u);
}

TEST(SevenSegmentTest, FivePlacesAreDrawnAndAPointIsBlankWhereThereIsNone) {
    EXPECT_EQ(Drawn("123456.", Alignment::Right), Drawn("23456.", Alignment::Right));
    EXPECT_EQ(Drawn("123456", Alignment::Left), Drawn("12345", Alignment::Left));
    EXPECT_NE(Drawn("12345", Alignment::Right), Drawn("2345", Alignment::Right));
    for (const char* text : {"0.780", "10,780"})
        EXPECT_EQ(Drawn(text, Alignment::Right, false), Drawn("0 780", Alignment::Right));
    EXPECT_NE(Drawn("0.780", Alignment::Right), Drawn("0 780", Alignment::Right));
}

TEST(SevenSegmentTest, PointJoinsTheDigitBeforeItAndLettersAreBlank) {
    const SegmentCell blank{};
    EXPECT_EQ(ToSegmentCells("-1.8,", true),
              (std::vector<SegmentCell>{{0x40, false}, {0x06, true}, {0x7F, true}}));
    EXPECT_EQ(ToSegmentCells(" A", true), (std::vector<SegmentCell>{blank, blank}));
    EXPECT_EQ(ToSegmentCells("..", true).size(), 2u);
}

TEST_F(PeerTest, DisplayOfAPictureIsDrawnAnewWithoutItsPoints) {
    Picture picture(&form);
    picture.Move(0, 0, 3000, 1500);
    Label display(&picture);
    display.Move(0, 0, 2500, 600);
    display.Face = FontFace::SevenSegment;
    display.Align = Alignment::Right;
    display.FontHeight = 600;
    display.ForeColor = 0xFFFFFFU;
    Show();
    const auto shown = [&](const char* text, bool hasPoints) {
        display.Caption = text;
        display.HasPoints = hasPoints;
        Pump();
        const HDC dc = GetDC(WindowOf(picture));
        const Pixels pixels = AllOf(dc);
        ReleaseDC(WindowOf(picture), dc);
        return pixels;
    };
    EXPECT_NE(shown("0.780", false), shown("0.780", true));
    EXPECT_EQ(shown("0.780", false), shown("0 780", true));
}
