#pragma once

#include <memory>
#include <string>
#include <vector>

#include "bench/benchmarks/Allocations.h"
#include "bench/benchmarks/BareRecords.h"
#include "bench/benchmarks/Figures.h"
#include "bench/sim/AircraftModel.h"
#include "bench/virtual/VirtualCockpit.h"

// The virtual machine's channel, with an eye on the server's share.
class WatchedChannel final : public IpcChannel {
  public:
    explicit WatchedChannel(IpcChannel& channel) : channel_(channel) {}

    uintptr_t FindWindowExA(const std::string& name) override {
        return channel_.FindWindowExA(name);
    }
    uint32_t RegisterWindowMessageA(const std::string& name) override {
        return channel_.RegisterWindowMessageA(name);
    }
    uint32_t GetCurrentProcessId() override { return channel_.GetCurrentProcessId(); }
    uint16_t GlobalAddAtomA(const std::string& name) override {
        return channel_.GlobalAddAtomA(name);
    }
    void GlobalDeleteAtom(uint16_t atom) override { channel_.GlobalDeleteAtom(atom); }
    uintptr_t CreateFileMappingA(const std::string& name, uint32_t size) override {
        return channel_.CreateFileMappingA(name, size);
    }
    uint8_t* MapViewOfFile(uintptr_t mapping) override { return channel_.MapViewOfFile(mapping); }
    void UnmapViewOfFile(uint8_t* view) override { channel_.UnmapViewOfFile(view); }
    void CloseHandle(uintptr_t handle) override { channel_.CloseHandle(handle); }
    uint32_t GetLastError() override { return channel_.GetLastError(); }
    uintptr_t SendMessageTimeoutA(uintptr_t window, uint32_t message, uintptr_t wParam,
                                  intptr_t lParam, uint32_t flags, uint32_t timeoutMs,
                                  uintptr_t& reply) override;

    // The last message once more, whose block still holds the same records.
    void SendAgain();

    size_t exchanges = 0;
    // Nothing is served: the answer comes at once, and the block stays as it was sent.
    bool prompt = false;
    // The server's time, while it is measured.
    bool measures = false;
    BenchClock::duration served{};

  private:
    IpcChannel& channel_;
    uintptr_t window_ = 0;
    uint32_t message_ = 0;
    uintptr_t atom_ = 0;
};

// Hands out links on which a report can be raised directly.
class DirectDeckhub final : public Deckhub {
  public:
    explicit DirectDeckhub(Deckhub& deckhub) : deckhub_(deckhub) {}

    std::unique_ptr<PanelEnumerator> CreateEnumerator() override {
        return deckhub_.CreateEnumerator();
    }
    std::unique_ptr<PanelLink> CreateLink() override;

    PanelLink& LinkTo(const VirtualDevice& device);

  private:
    struct Link final : PanelLink {
        void StartReading() override {}
        void StopReading() override {}
    };

    Deckhub& deckhub_;
    std::vector<Link*> links_;
};

// The virtual machine's loop; what its timers allocate isn't the program's.
class QuietLoop final : public MessageLoop {
  public:
    explicit QuietLoop(MessageLoop& loop) : loop_(loop) {}

    void Run() override { loop_.Run(); }
    void RunPending() override { loop_.RunPending(); }
    void RunUntil(const std::function<bool()>& done) override { loop_.RunUntil(done); }
    void Post(std::function<void()> task) override { loop_.Post(std::move(task)); }
    TimerId StartTimer(uint32_t intervalMs, std::function<void()> tick) override {
        const Uncounted uncounted;
        return loop_.StartTimer(intervalMs, std::move(tick));
    }
    void StopTimer(TimerId timer) override { loop_.StopTimer(timer); }
    void Quit() override { loop_.Quit(); }

  private:
    MessageLoop& loop_;
};

// Panels that take every report and keep none.
class PromptHid final : public HidPort {
  public:
    explicit PromptHid(HidPort& hid) : hid_(hid) {}

    uintptr_t Open(const std::string& path) override { return hid_.Open(path); }
    bool SetFeature(uintptr_t, std::span<const uint8_t>) override {
        ++reports;
        return true;
    }
    bool GetFeature(uintptr_t handle, std::span<uint8_t> report) override {
        return hid_.GetFeature(handle, report);
    }
    void Close(uintptr_t handle) override { hid_.Close(handle); }

    size_t reports = 0;

  private:
    HidPort& hid_;
};

// So many panels of each kind, with all functions of tiles, in the mode that the profile "Default"
// names, connected for a second.
class BenchCockpit : public VirtualCockpit {
  public:
    explicit BenchCockpit(int panels, const std::string& mode = "none");

    void RunTick() { Window().timerFSUIPC.Tick.Raise(); }
    // The records of a tick.
    BareRecords RecordsOfATick();
    void Report(const VirtualDevice& device, int32_t state);

    // What the machine and the simulator keep for tests to look at.
    void ForgetLogs() {
        aircraft_.TakeWrites();
        machine.tray.records = {};
    }

    QuietLoop loop{machine.loop};
    WatchedChannel channel{machine.ipc};
    DirectDeckhub deckhub{machine.deckhub};
    PromptHid hid{machine.hid};
    // By number, from 0.
    std::vector<VirtualDevice*> radios;
    std::vector<VirtualDevice*> multis;
    std::vector<VirtualDevice*> switches;

  private:
    bench::AircraftModel aircraft_{machine.server};
};

// A profile that gives so many BIP Panels all functions there are, one after the other.
std::string BenchProfile(int panels, const std::string& mode);
