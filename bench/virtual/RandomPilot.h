#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "bench/panels/VirtualPanel.h"
#include "bench/virtual/Choices.h"
#include "bench/virtual/RandomUser.h"
#include "bench/virtual/VirtualCockpit.h"

// Flies a cockpit at random: works the panels and the windows, and lets happen around the program
// what can happen to it.
class RandomPilot {
  public:
    RandomPilot(VirtualCockpit& cockpit, Choices& choices);

    struct Panel {
        Panel(PanelKind panelKind, VirtualDevice& on, int number);

        PanelKind kind;
        VirtualDevice& device;
        bench::VirtualPanel controls;
        std::vector<const bench::PanelControl*> choice;
        const bench::PanelControl* turning = nullptr;
        uint32_t down = 0;  // bits that spring back
        uint32_t held = 0;  // reports until they do
    };
    // A panel that the pilot works; before the program's start.
    Panel& Plug(PanelKind kind);

    // 10 ms: every panel reports something, and things happen as often as they do.
    void Tick();
    // One thing happens, whichever; then as much time goes by as it takes.
    void Something();
    // 10 ms in which nothing happens, but what has been begun goes on.
    void Rest();
    // All is well from here on: the simulator is there and answers, nothing is refused, and no
    // button of a panel is down.
    void SetRight();

    std::function<void()> AfterTick;  // after each 10 ms, wherever the program is by then
    RandomUser User;

  private:
    struct Happening {
        uint32_t onceIn;  // ticks
        void (RandomPilot::*happen)();
    };
    static const Happening kHappenings[];

    void Report(Panel& panel);
    void Send(Panel& panel, const bench::VirtualPanel::Report& report);
    void ReportAll();
    void SendAnyReport();

    void ChangeValues();
    void FlyAircraft();
    void WorkMainWindow();
    void OpenWindow();
    void LoseSimulator();
    void FindSimulator();
    void FallSilent();
    void AnswerOddly();
    void DamageReply();
    void RefuseReports();
    void RefusePositions();
    void RefuseTrayIcon();
    void HoldFile();

    VirtualCockpit& cockpit_;
    VirtualPlatform& machine_;
    Choices& choices_;
    std::deque<Panel> panels_;
    ScopedConnection reading_;
    std::vector<uint32_t> readOffsets_;  // what the program reads, without what is fixed
    bool simulator_ = false;
};
