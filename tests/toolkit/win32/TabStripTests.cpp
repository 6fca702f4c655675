#include "PeerTest.h"
#include "toolkit/Picture.h"
#include "toolkit/TabStrip.h"

namespace {

// The strip with a page on it, and a form as high as they need.
struct TabStripTest : PeerTest {
    TabStripTest() {
        form.SetContentSize(11300, 3400);
        tabs.Move(30, 30, 11160, 3360);
        page.Move(120, 420, 10995, 2895);
        tabs.BeforeClick.Connect([this] { seen.push_back(-tabs.SelectedItem()); });
        tabs.Click.Connect([this] { seen.push_back(tabs.SelectedItem()); });
    }

    void Add(int count) {
        for (int i = 0; i < count; ++i) tabs.AddTab(0, "", "Switch Panel " + FormatInteger(i + 1));
    }
    RECT RectOf(int number) {
        RECT rect;
        Tell(tabs, TCM_GETITEMRECT, static_cast<WPARAM>(number - 1),
             reinterpret_cast<LPARAM>(&rect));
        return rect;
    }
    void Click(int number) {
        const RECT rect = RectOf(number);
        Tell(tabs, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(rect.left + 5, rect.top + 5));
        Tell(tabs, WM_LBUTTONUP, 0, MAKELPARAM(rect.left + 5, rect.top + 5));
    }
    HWND WindowAt(const Control& control, int x, int y) {
        const RECT place = PlaceOf(control);
        return WindowFromPoint({place.left + x, place.top + y});
    }

    TabStrip tabs{&form};
    Picture page{&form};
};

}  // namespace

TEST_F(TabStripTest, FollowsBothWaysAndClicksOnce) {
    for (const char* name : {"General", "B & C"}) tabs.AddTab(0, name, name);
    Show();
    tabs.Select(2);
    EXPECT_EQ(Tell(tabs, TCM_GETCURSEL), 1);
    tabs.AddTab(1, "Radio", "Radio");
    EXPECT_EQ(Tell(tabs, TCM_GETITEMCOUNT), 3);
    EXPECT_EQ(Tell(tabs, TCM_GETCURSEL), 2);
    seen.clear();
    Click(1);
    Focus(tabs), Press(VK_RIGHT);
    EXPECT_EQ(seen, (std::vector<int32_t>{-3, 1, -1, 2}));
    EXPECT_EQ(Tell(tabs, TCM_GETCURSEL), 1);
}

TEST_F(TabStripTest, PageBehindItIsSeenAndGetsTheMouse) {
    page.BackColor = 0x102030U;
    Count(page);
    Add(3);
    tabs.Height = 600;
    Show();
    EXPECT_EQ(WindowAt(page, 300, 100), WindowOf(page));
    tabs.Height = 3360;
    EXPECT_EQ(GetWindow(WindowOf(form), GW_CHILD), WindowOf(tabs));
    EXPECT_EQ(PixelOf(page, 5, 5), 0x102030u);
    EXPECT_EQ(PixelOf(page, 700, 180), 0x102030u);
    EXPECT_EQ(WindowAt(page, 300, 100), WindowOf(page));
    EXPECT_EQ(WindowAt(tabs, 20, 10), WindowOf(tabs));
    Tell(page, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    EXPECT_EQ(clicks, 1);
}

TEST_F(TabStripTest, TwentyTabsStandInRowsAndCoverNothing) {
    Show();
    const int32_t height = form.Height;
    Add(20);
    const int width = ClientOf(tabs).right;
    const HDC dc = GetDC(WindowOf(tabs));
    SelectObject(dc, reinterpret_cast<HGDIOBJ>(Tell(tabs, WM_GETFONT)));
    SIZE text;
    GetTextExtentPoint32W(dc, L"Switch Panel 20", 15, &text);
    ReleaseDC(WindowOf(tabs), dc);
    for (int number = 1; number <= 20; ++number) {
        RECT rect = RectOf(number);
        EXPECT_GE(rect.left, 0);
        EXPECT_LE(rect.right, width);
        EXPECT_GT(rect.right - rect.left, number < 10 ? text.cx * 9 / 10 : text.cx);
        MapWindowPoints(WindowOf(tabs), nullptr, reinterpret_cast<POINT*>(&rect), 2);
        EXPECT_LT(rect.bottom, PlaceOf(page).top + 2);
    }
    const auto rows = static_cast<int32_t>(Tell(tabs, TCM_GETROWCOUNT));
    ASSERT_GE(rows, 2);
    EXPECT_GT(tabs.MoreRows(), (rows - 1) * 240);
    EXPECT_EQ(form.Height, height + tabs.MoreRows());
    EXPECT_EQ(page.Top, 420 + tabs.MoreRows());
    EXPECT_EQ(ClientOf(tabs).bottom, (3360 + tabs.MoreRows()) / 15);
    EXPECT_EQ(WindowAt(page, 300, 2), WindowOf(page));
    for (const int32_t number : {20, 1, 9}) {
        Click(number);
        EXPECT_EQ(tabs.SelectedItem(), number);
    }
    tabs.Width = 22000;
    EXPECT_LT(Tell(tabs, TCM_GETROWCOUNT), rows);
    EXPECT_EQ(page.Top, 420 + tabs.MoreRows()) << "up again with fewer rows";
}
