#pragma once

#include <windows.h>

#include <latch>
#include <string>
#include <thread>

namespace bench {

// A field of this program to type into, in a window with no other purpose. It has a thread of its
// own, so that other programs don't have to wait for it while this one waits for them.
class TypingField {
  public:
    // Shows it in front of all others.
    TypingField();
    TypingField(const TypingField&) = delete;
    TypingField& operator=(const TypingField&) = delete;
    ~TypingField();

    // Brings it to the front. False when the keys don't come here within a few seconds.
    bool TakeFocus() const;
    // Whether keys come here.
    bool HasFocus() const;

    // What it holds after all keystrokes that were sent so far. ENTER gives CR LF, TAB a tab.
    std::string Text() const;
    // Virtual key codes that went down and up since Clear, in order: "+16 +65 -65 -16".
    std::string Keys() const;
    // Drops both, with the keystrokes that were sent so far.
    void Clear() const;

  private:
    void Run();
    LRESULT Take(UINT message, WPARAM wParam, LPARAM lParam);
    static LRESULT CALLBACK TakeMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    HWND field_ = nullptr;
    std::latch made_{1};
    // The thread's own.
    WNDPROC edit_ = nullptr;
    std::string keys_;
    std::thread thread_;
};

}  // namespace bench
