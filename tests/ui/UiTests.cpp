#include <gtest/gtest.h>

#include "panels/multi/MultiPanelPicture.h"
#include "panels/radio/RadioPanelPicture.h"
#include "platform/virtual/VirtualScreen.h"
#include "platform/virtual/VirtualTray.h"
#include "toolkit/HeadlessUi.h"
#include "ui/PlaceForm.h"
#include "ui/ctlTrayArea.h"

namespace {

TEST(PlaceFormTest, SavedPlacesMustLieInsideTheWorkArea) {
    VirtualScreen screen;
    screen.monitors = {{{0, 0, 1280, 800}, {0, 0, 1280, 780}},
                       {{1280, 0, 2280, 1000}, {1280, 0, 2280, 1000}}};
    const auto monitors = screen.EnumDisplayMonitors();
    HeadlessUi ui;
    const struct {
        const char* what;
        int32_t left, top;
        int32_t placedLeft, placedTop;
    } cases[] = {
        {"nothing saved: centred on the first monitor", 0, 0, 7200, 4500},
        {"inside", 150, 300, 150, 300},
        {"on the second monitor", 20000, 300, 20000, 300},
        {"touching the edge", 0, 300, 7200, 4350},
        {"hanging over the bottom", 150, 9000, 7200, 4350},
        {"right of all monitors", 90000, 300, 24300, 6000},
        {"no position at all", INT32_MAX, INT32_MIN, 7200, 4350},
    };
    for (const auto& test : cases) {
        SCOPED_TRACE(test.what);
        Form form(ui);
        form.Width = 4800;
        form.Height = 3000;
        PlaceForm(form, test.left, test.top, monitors, screen);
        EXPECT_EQ(form.Left, test.placedLeft);
        EXPECT_EQ(form.Top, test.placedTop);
    }
}

TEST(PlaceFormTest, WithoutMonitorsAndAtAnotherScale) {
    VirtualScreen screen;
    HeadlessUi ui;
    Form form(ui);
    form.Move(1500, 1500, 4800, 3000);
    PlaceForm(form, 300, 300, {}, screen);
    EXPECT_TRUE(form.Left == 0 && form.Top == 0);
    ui.Dpi = 192;
    PlaceForm(form, 0, 0, screen.EnumDisplayMonitors(), screen);
    EXPECT_TRUE(form.Left == 4800 && form.Top == 2550) << "its 640 pixels stand at 640";
    PlaceForm(form, 9600, 300, screen.EnumDisplayMonitors(), screen);
    EXPECT_EQ(form.Left, 4800) << "1280 and 640 reach the edge";
}

TEST(PanelDrawingTest, OnlyTheRadioPanelsDisplaysHavePoints) {
    HeadlessUi ui;
    Form form(ui);
    Picture panel(&form);
    const MultiPanelPicture multi(panel);
    EXPECT_FALSE(multi.labUpperValue.HasPoints || multi.labLowerValue.HasPoints);
    const RadioPanelPicture radio(panel);
    for (const int side : {1, 2}) {
        EXPECT_TRUE(radio.At(side).labActive.HasPoints && radio.At(side).labStandby.HasPoints);
    }
}

TEST(TrayAreaTest, IconIsAddedChangedAndRemoved) {
    VirtualTray port;
    {
        ctlTrayArea tray(port);
        tray.SetIcon(TrayIcon::Yellow);
        tray.SetToolTip("  " + std::string(70, 'x') + "  ");
        tray.SetVisible(true);
        const auto& [message, record] = port.records.back();
        EXPECT_EQ(message, 0U);
        EXPECT_EQ(record.flags, 7U);
        EXPECT_EQ(record.callbackMessage, 512U);
        EXPECT_EQ(record.tip, std::string(63, 'x'));
        EXPECT_TRUE(record.id >= 1 && record.id <= 65535);
        tray.SetIcon(TrayIcon::Green);
        EXPECT_EQ(port.records.back().first, 1U);
        EXPECT_EQ(port.records.back().second.flags, 2U);
        tray.SetIcon(TrayIcon::None);
        EXPECT_FALSE(tray.Visible());
        EXPECT_EQ(port.records.back().first, 2U);
        tray.SetVisible(true);
        EXPECT_EQ(port.records.back().second.flags, 5U) << "no icon to show";
    }
    EXPECT_EQ(port.records.back().first, 2U) << "no dead icon stays behind";
}

TEST(TrayAreaTest, MouseActivityBecomesEvents) {
    VirtualTray port;
    ctlTrayArea tray(port);
    std::string log;
    tray.MouseMove.Connect([&] { log += "m"; });
    tray.MouseDown.Connect([&](int32_t button) { log += "d" + std::to_string(button); });
    tray.MouseUp.Connect([&](int32_t button) { log += "u" + std::to_string(button); });
    tray.DblClick.Connect([&] { log += "D"; });
    for (int32_t number = 510; number <= 520; ++number) port.MouseActivity.Raise(number);
    EXPECT_EQ(log, "md1u1Dd2u2D");
}

}  // namespace
