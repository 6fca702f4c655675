// Orvo.exe among programs that lie, say nothing, or hold its files.

#include <windows.h>

#include <filesystem>
#include <string>

#include "tests/e2e/EndToEnd.h"

using namespace bench;

namespace {

constexpr char kShown[] = R"(upper "05000" lower "    0" lights none)";

class Hostile : public EndToEnd {
  protected:
    // Of a processor, in percent.
    double LoadWithin(uint32_t milliseconds) {
        const auto used = [this] {
            ULARGE_INTEGER kernel{}, user{};
            FILETIME made{}, ended{};
            const HANDLE process =
                OpenProcess(PROCESS_QUERY_INFORMATION, FALSE, cockpit_->Orvo().Id());
            GetProcessTimes(process, &made, &ended, reinterpret_cast<FILETIME*>(&kernel),
                            reinterpret_cast<FILETIME*>(&user));
            CloseHandle(process);
            return static_cast<double>(kernel.QuadPart + user.QuadPart) / 1e4;
        };
        const double before = used();
        ::Sleep(milliseconds);
        return 100 * (used() - before) / milliseconds;
    }
};

// Another program has the file open, and shares it with nobody.
class HeldFile {
  public:
    HeldFile(const Cockpit& cockpit, const std::string& name)
        : file_(CreateFileA((cockpit.Folder() + '\\' + name).c_str(), GENERIC_READ, 0, nullptr,
                            OPEN_EXISTING, 0, nullptr)) {
        EXPECT_NE(file_, INVALID_HANDLE_VALUE);
    }
    HeldFile(const HeldFile&) = delete;
    HeldFile& operator=(const HeldFile&) = delete;
    ~HeldFile() { CloseHandle(file_); }

  private:
    HANDLE file_;
};

TEST_F(Hostile, ASimulatorThatLiesGetsNothingWrongOnThePanel) {
    StartConnected();
    ASSERT_TRUE(cockpit_->PanelBecomes("multi1", kShown, kSoonMs));
    for (const char* lie : {"counts", "tokens", "scribble", "garbage"}) {
        SCOPED_TRACE(lie);
        EXPECT_EQ(cockpit_->Simulator(lie), "ok");
        Until(2500, [&] {
            const std::string shown = cockpit_->Panels("show multi1");
            EXPECT_TRUE(shown == kShown || shown == kMultiDark) << shown;
            return false;
        });
        EXPECT_TRUE(cockpit_->Orvo().IsRunning());
        cockpit_->Simulator("normal");
        EXPECT_TRUE(cockpit_->StatusBecomes(0, kConnected, kSoonMs));
        EXPECT_TRUE(cockpit_->PanelBecomes("multi1", kShown, kSoonMs));
    }
    ExpectQuits();
}

// While it looks for a simulator, Orvo comes to what the user does within one message's time.
TEST_F(Hostile, AServerThatAnswersNothingOrNonsenseDoesNotKeepTheUserFromQuitting) {
    cockpit_->WriteIni("[GeneralSetup]\r\nLoadWithoutPanels=1\r\n");
    cockpit_->StartSimulator();
    for (const char* fault : {"reply 0", "reply 4294967295", "silent"}) {
        SCOPED_TRACE(fault);
        cockpit_->Simulator("normal");
        cockpit_->Simulator("hide");
        cockpit_->StartOrvo();
        DoubleClickTrayIcon();
        HWND quit = nullptr;
        ASSERT_TRUE(Until(kSoonMs, [&] {
            if (!cockpit_->FrontWindow()) DoubleClickTrayIcon();
            return (quit = Child(cockpit_->FrontWindow(), "Button", "Quit")) != nullptr;
        }));
        EXPECT_EQ(cockpit_->Simulator("show"), "ok");
        EXPECT_EQ(cockpit_->Simulator(fault), "ok");
        EXPECT_LT(LoadWithin(4000), 3);
        const ULONGLONG start = GetTickCount64();
        ClickByMouse(quit);
        HWND box = nullptr;
        // Found without a message to Orvo, which may be busy again.
        EXPECT_TRUE(Until(kSoonMs, [&] {
            box = FindWindowA("#32770", " ORVO - Quit request");
            return box && IsWindowVisible(box);
        }));
        ClickByMouse(GetDlgItem(box, IDOK));
        EXPECT_EQ(cockpit_->Orvo().WaitForEnd(kSoonMs), 0u);
        EXPECT_LT(GetTickCount64() - start, 9000u);
    }
}

TEST_F(Hostile, FilesThatAreHeldCostNoTickAndComeLater) {
    const std::string options = "[GeneralSetup]\r\nClickThreshold=700\r\n[Profiles]\r\nSecond=\r\n";
    std::string aircraft = "[Aircrafts]\r\nBench Trainer=Default\r\nBench Jet=Second\r\n";
    cockpit_->WriteIni(options + aircraft);
    cockpit_->WriteFile("Second.ini", "[MultiPanel1]\r\nButtonActionHDG=VButton,72,32\r\n");
    {
        const HeldFile held(*cockpit_, "Orvo.ini");
        cockpit_->StartSimulator();
        cockpit_->StartPanels();
        PlugIn("multi1");
        cockpit_->StartOrvo();
        ASSERT_TRUE(cockpit_->StatusBecomes(0, kConnected, kSoonMs));
        ExpectTicksKeepTheirPace();
    }
    EXPECT_TRUE(Fly({{"profile", "", "Default"}}));
    {
        const HeldFile held(*cockpit_, "Second.ini");
        cockpit_->Simulator("title \"Bench Jet\"");
        EXPECT_TRUE(Fly({{"profile", "", "Second"}}));
        ExpectTicksKeepTheirPace();
    }
    EXPECT_TRUE(Until(kSoonMs, [&] {
        cockpit_->Panels("press multi1 HDG");
        return cockpit_->Simulator("writes").find("3360:00000080") != std::string::npos;
    }));
    {
        const HeldFile held(*cockpit_, "Orvo.ini");
        cockpit_->Simulator("title \"Bench Glider\"");
        EXPECT_TRUE(Fly({{"profile", "", "Default"}}));
        ExpectTicksKeepTheirPace();
    }
    aircraft += "Bench Glider=Default\r\n";
    EXPECT_TRUE(Until(kSoonMs, [&] {
        return cockpit_->ReadFile("Orvo.ini") == options + aircraft;
    })) << cockpit_->ReadFile("Orvo.ini").value_or("");
    ExpectQuits();
}

// Folders stand where the copies of a save would.
TEST_F(Hostile, WhereNoFileCanBeMadeSavesAreRefusedAndAllElseGoesOn) {
    const std::string before =
        "[GeneralSetup]\r\nSplash=0\r\n[Aircrafts]\r\nBench Trainer=Default\r\n";
    cockpit_->WriteIni(before);
    for (int i = 1; i <= 9; ++i) {
        const std::string copy = "\\Orvo.ini.new" + (i > 1 ? std::to_string(i) : "");
        std::filesystem::create_directory(cockpit_->Folder() + copy);
    }
    StartConnected();
    const HWND window = OpenOptions();
    PressButton(Child(window, "Button", "OK"));
    EXPECT_NE(AnswerBox(*cockpit_, "  ORVO").find("can't be saved"), std::string::npos);
    EXPECT_TRUE(Until(kSoonMs, [&] { return cockpit_->FrontWindow() == window; }));
    ExpectCloses(window, "Cancel");
    EXPECT_TRUE(ChangeAircraft("Bench Jet", "Default"));
    ExpectTicksKeepTheirPace();
    ExpectQuits();
    EXPECT_EQ(cockpit_->ReadFile("Orvo.ini"), before);
}

}  // namespace
