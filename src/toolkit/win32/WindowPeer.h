#pragma once

#include <windows.h>

#include <memory>
#include <optional>
#include <string>

#include "toolkit/Control.h"
#include "toolkit/win32/ToolTip.h"

// A control as a native window, from the peer's construction to its end.
class WindowPeer : public Peer {
  public:
    ~WindowPeer() override;

    void Follow() final;

    HWND Window() const { return window_; }

    // The peer of a child window of `parent`; nothing for a window that isn't one of ours.
    static WindowPeer* OfChild(HWND parent, HWND window);
    static WindowPeer* Of(const Control& control);

    // What the window has told its parent. Not called while the peer follows the control.
    virtual void OnCommand(UINT /*code*/) {}
    virtual void OnNotify(const NMHDR& /*notice*/) {}
    // Colours to draw with; null for the system's.
    virtual HBRUSH OnColor(HDC /*dc*/) { return nullptr; }
    virtual void OnParentResized() {}
    // Pixels of its parent's height that it takes for itself along the bottom.
    virtual int HeightAtBottom() const { return 0; }

    bool IsFollowing() const { return following_; }

  protected:
    explicit WindowPeer(Control& control) : control_(control) {}

    // The window comes up hidden and without text; a call of Follow completes it.
    void Create(const wchar_t* className, DWORD style, DWORD extendedStyle);

    // The window's text, given to it when it isn't the one given last.
    void SetText(const std::string& text);

    virtual void FollowPlace();
    // Gives the window its place in the parent, in pixels.
    virtual void PutAt(const RECT& place);
    virtual void FollowVisible();
    // What this kind of control has beyond the others.
    virtual void FollowMore() {}

    static WindowPeer* Stored(HWND window);

    // Holds the peer in the state of following.
    class Following;

  private:
    void FollowEnabled();
    void FollowToolTip();
    void PutInOrder();
    void GiveFocusAway();

    Control& control_;
    HWND window_ = nullptr;
    bool following_ = false;
    bool enabled_ = true;
    std::optional<RECT> placed_;
    std::string text_;
    std::unique_ptr<ToolTip> toolTip_;
    std::string tipText_;
};

class WindowPeer::Following {
  public:
    explicit Following(WindowPeer& peer) : peer_(peer), before_(peer.following_) {
        peer_.following_ = true;
    }
    Following(const Following&) = delete;
    Following& operator=(const Following&) = delete;
    ~Following() { peer_.following_ = before_; }

  private:
    WindowPeer& peer_;
    bool before_;
};
