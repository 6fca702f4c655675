#pragma once

#include <windows.h>

#include <condition_variable>
#include <memory>
#include <mutex>
#include <string>

#include "bench/sim/Lies.h"
#include "bench/sim/SimState.h"

namespace bench {

// The window that clients of the FSUIPC channel send their batches to, and the thread's message
// loop. The state is shared with the console's thread under one lock.
class ServerWindow {
  public:
    ServerWindow(SimState& state, std::mutex& lock, std::string className);
    ServerWindow(const ServerWindow&) = delete;
    ServerWindow& operator=(const ServerWindow&) = delete;

    // Makes the window and serves until Stop. False when the window can't be made.
    bool Run();

    // The rest is for any other thread, and all but the first for after WaitUntilUp.
    void WaitUntilUp();
    // False when nothing has changed.
    bool Show(bool visible);
    void EndSilence() { silenceEnded_.notify_all(); }
    void Stop();

  private:
    static LRESULT CALLBACK ServeMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    static LRESULT CALLBACK OrderMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    bool Create();
    LRESULT Serve(WPARAM wParam);

    SimState& state_;
    std::mutex& lock_;
    std::string className_;
    UINT exchange_ = 0;
    HWND window_ = nullptr;
    HWND orders_ = nullptr;
    std::condition_variable silenceEnded_;
    std::condition_variable up_;
    bool stopping_ = false;
    std::unique_ptr<Scribbler> scribbler_;  // the last one
};

}  // namespace bench
