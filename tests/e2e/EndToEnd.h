#pragma once

#include <windows.h>

#include <cstdio>
#include <filesystem>
#include <gtest/gtest.h>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "bench/driver/Cockpit.h"
#include "bench/driver/Until.h"
#include "bench/flight/Pilot.h"

namespace bench {

inline constexpr uint32_t kSoonMs = 10000;
// A silent server holds the program for eleven calls of two seconds.
inline constexpr uint32_t kAfterSilenceMs = 40000;
inline constexpr char kConnected[] = "FSUIPC Status: Connected";

// Orvo.exe in a folder of its own, with the bench around it.
class EndToEnd : public testing::Test {
  protected:
    static std::unique_ptr<Cockpit> MakeCockpit(const std::string& folder) {
        char self[MAX_PATH] = "";
        GetModuleFileNameA(nullptr, self, MAX_PATH);
        const auto bench = std::filesystem::path(self).parent_path();
        return std::make_unique<Cockpit>((bench.parent_path() / "Orvo.exe").string(),
                                         (bench / "e2e" / folder).string());
    }

    void SetUp() override { ASSERT_TRUE(cockpit_->IsReady()); }

    void PlugIn(const std::string& panel) {
        EXPECT_EQ(cockpit_->Panels("add " + panel.substr(0, panel.size() - 1)), panel);
    }

    void StartConnected(const std::vector<std::string>& panels = {"multi1"}) {
        cockpit_->StartSimulator();
        cockpit_->StartPanels();
        for (const std::string& panel : panels) PlugIn(panel);
        cockpit_->StartOrvo();
        // The last that is read of a simulator; the profile comes into force with it.
        ASSERT_TRUE(cockpit_->StatusBecomes(3, "Aircraft in use: Bench Trainer", kSoonMs))
            << "batches: " << cockpit_->Simulator("batches")
            << ", window: " << (cockpit_->MainWindow() != nullptr);
    }

    bool Fly(const std::vector<Step>& steps) {
        return Pilot(*cockpit_, FlightLog(false)).Fly(steps);
    }

    // Another aircraft is loaded, and its profile comes into force.
    bool ChangeAircraft(const std::string& title, const std::string& profile) {
        cockpit_->Simulator("title \"" + title + '"');
        return cockpit_->StatusBecomes(3, "Aircraft in use: " + title, kSoonMs) &&
               Fly({{"profile", "", profile}});
    }

    void ExpectQuits() {
        EXPECT_TRUE(cockpit_->QuitByUser());
        EXPECT_EQ(cockpit_->Orvo().WaitForEnd(0), 0u);
    }

    // The user has pressed the button that ends the program, and is asked about it.
    HWND QuitBox() {
        PressButton(FindChild(cockpit_->MainWindow(), "Button", "Quit"));
        HWND box = nullptr;
        EXPECT_TRUE(Until(
            kSoonMs, [&] { return (box = cockpit_->Box(" ORVO - Quit request")) != nullptr; }));
        return box;
    }

    HWND OpenOptions() {
        const HWND window = cockpit_->OpenGeneralOptions();
        EXPECT_TRUE(window);
        return window;
    }

    // A label in the window on top.
    bool FrontComesToSay(const char* text) {
        return Until(kSoonMs, [&] {
            return FindShownChild(cockpit_->FrontWindow(), "Static", text) != nullptr;
        });
    }

    // The window closes, and the main window is back.
    void ExpectCloses(HWND window, const char* button) {
        PressButton(FindShownChild(window, "Button", button));
        const HWND main = cockpit_->MainWindow();
        EXPECT_TRUE(Until(kSoonMs, [&] { return cockpit_->FrontWindow() == main; }));
    }

    void ExpectTicksKeepTheirPace() {
        cockpit_->Simulator("pace 1");
        std::string pace = "none";
        EXPECT_TRUE(
            Until(kSoonMs, [&] { return (pace = cockpit_->Simulator("pace 300")) != "none"; }));
        double median = 0;
        EXPECT_EQ(std::sscanf(pace.c_str(), "median %lf", &median), 1) << pace;
        EXPECT_NEAR(median, 10, 2) << pace;
    }

    std::unique_ptr<Cockpit> cockpit_ =
        MakeCockpit(testing::UnitTest::GetInstance()->current_test_info()->name());
};

inline HWND Child(HWND parent, const char* className, const std::optional<std::string>& text = {}) {
    return FindShownChild(parent, className, text);
}

// Waits for a box of this title, reads it and presses the button.
inline std::string AnswerBox(const Cockpit& cockpit, const std::string& title, int button = IDOK) {
    HWND box = nullptr;
    if (!Until(kSoonMs, [&] { return (box = cockpit.Box(title)) != nullptr; })) return "no box";
    const std::string text = BoxText(box);
    PressBoxButton(box, button);
    return text;
}

}  // namespace bench
