#pragma once

#include <windows.h>

#include <atomic>
#include <chrono>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "bench/panels/VirtualPanel.h"

namespace bench {

// A panel's device file: a message pipe with a few seats, one for each that has it open at a time.
// Requests and answers are in dll/hid.cpp.
class PipeDevice {
  public:
    PipeDevice(std::shared_ptr<VirtualPanel> panel, std::string path);
    PipeDevice(const PipeDevice&) = delete;
    PipeDevice& operator=(const PipeDevice&) = delete;
    ~PipeDevice();

    const std::string& Path() const { return path_; }
    const VirtualPanel& Panel() const { return *panel_; }

    // A reader with 512 unread reports, which is what Orvo asks the system to keep, loses this one.
    // Gives how many did.
    int Send(const VirtualPanel::Report& report);
    int Readers();
    // What a feature report takes from now on, on each handle for itself; input reports flow on.
    void SetAnswerTime(std::chrono::milliseconds time) { answerTime_ = time; }

  private:
    struct Seat {
        HANDLE pipe = INVALID_HANDLE_VALUE;
        bool reading = false;
        std::thread thread;
    };

    void Run(Seat& seat);
    void Talk(Seat& seat);
    bool AwaitAnswerTime(HANDLE pipe) const;
    std::vector<uint8_t> Handle(Seat& seat, const std::vector<uint8_t>& request);
    bool Finish(HANDLE pipe, OVERLAPPED& work, bool begun, DWORD& count) const;

    std::shared_ptr<VirtualPanel> panel_;
    std::string path_;
    HANDLE stop_;
    std::atomic<std::chrono::milliseconds> answerTime_ = std::chrono::milliseconds(0);
    std::mutex lock_;
    std::vector<std::unique_ptr<Seat>> seats_;
};

}  // namespace bench
