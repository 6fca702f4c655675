#include "PeerTest.h"
#include "toolkit/Picture.h"
#include "toolkit/win32/Canvas.h"
#include "toolkit/win32/SevenSegment.h"

namespace {

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
    Canvas canvas;
    const HDC dc = canvas.Begin(kDisplay);
    DrawSevenSegment(dc, kDisplay, ToSegmentCells(text, hasPoints), align, 40, 0xFFFFFF);
    return AllOf(dc);
}

}  // namespace

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

TEST_F(PeerTest, PictureThatChangesAllTheTimeIsPaintedAtAPaceAndInTheEndAsItIs) {
    Picture picture(&form);
    picture.Move(0, 0, 3000, 1500);
    Shape lamp(&picture);
    lamp.Move(300, 300, 600, 600);
    Label label(&picture);
    Show();
    int paints = 0;
    const auto count = [](HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                          DWORD_PTR counter) -> LRESULT {
        if (message == WM_PAINT) ++*reinterpret_cast<int*>(counter);
        return DefSubclassProc(window, message, wParam, lParam);
    };
    SetWindowSubclass(WindowOf(picture), count, 1, reinterpret_cast<DWORD_PTR>(&paints));
    int changes = 0;
    const auto timer = loop.StartTimer(5, [&] {
        lamp.FillColor = ++changes % 2 ? 0x0000FFU : 0x00FF00U;
        label.Caption = FormatInteger(changes);
    });
    loop.RunUntil([&] { return changes == 100; });
    loop.StopTimer(timer);
    EXPECT_GE(paints, 10);
    EXPECT_LE(paints, 35) << "of 100 changes";
    const ULONGLONG end = GetTickCount64() + 2000;
    const auto wake = loop.StartTimer(10, [] {});
    const auto green = [&] { return PixelOf(picture, 40, 40) == 0x00FF00u; };
    loop.RunUntil([&] { return green() || GetTickCount64() > end; });
    loop.StopTimer(wake);
    EXPECT_TRUE(green());
    EXPECT_EQ(TextOf(picture), "100");
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

TEST_F(PeerTest, PartsOfAPictureAreClickedWhereTheyAreSeen) {
    Picture picture(&form);
    picture.Move(0, 0, 3000, 1500);
    Shape lamp(&picture);
    lamp.Move(300, 300, 600, 600);
    lamp.Click.Connect([this] { story += "lamp "; });
    picture.Click.Connect([this] { story += "picture "; });
    Show();
    Tell(picture, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(59, 59));
    Tell(picture, WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(60, 59));
    EXPECT_EQ(story, "lamp picture picture ");
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
