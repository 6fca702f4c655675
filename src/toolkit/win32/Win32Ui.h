#pragma once

#include <functional>
#include <memory>

#include "toolkit/UiBackend.h"

class Canvas;
class FontCache;
struct PeerServices;

// Shows controls as native windows and boxes as the system's. To be made on the thread of the
// message loop; it must outlive the forms.
class Win32Ui : public UiBackend {
  public:
    // At the resolution that the system has for its screens.
    Win32Ui();
    explicit Win32Ui(int dotsPerInch);
    ~Win32Ui() override;

    std::unique_ptr<Peer> MakePeer(Control& control) override;
    Scale ScreenScale() const override;
    FrameSize FormFrame() const override;

    // The message loop asks it for each message of the keyboard, before it is translated and
    // dispatched: whether it has been dealt with.
    bool TakeKey(void* message);

    // Called before a box opens: a loop of the system's takes the messages until it is closed.
    std::function<void()> BeforeBox;

  protected:
    MsgBoxResult ShowBox(const MsgBoxRequest& request) override;

  private:
    std::unique_ptr<FontCache> fonts_;
    std::unique_ptr<Canvas> canvas_;
    std::unique_ptr<PeerServices> services_;
};
