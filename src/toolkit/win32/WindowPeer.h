#pragma once

#include <windows.h>

#include <memory>
#include <optional>
#include <string>

#include "toolkit/Control.h"
#include "toolkit/win32/PeerServices.h"
#include "toolkit/win32/ToolTip.h"

// A control as a native window, from the peer's construction to its end.
class WindowPeer : public Peer {
  public:
    ~WindowPeer() override;

    void Follow() final;

    HWND Window() const { return window_; }

    // The peer of a window within `parent`; nothing for a window that isn't one of ours.
    static WindowPeer* OfChild(HWND parent, HWND window);
    static WindowPeer* Of(const Control& control);

    // What the window has told its parent. Not called while the peer follows the control.
    virtual void OnCommand(UINT /*code*/) {}
    virtual void OnNotify(const NMHDR& /*notice*/) {}
    virtual void OnScroll() {}
    // Sets the colour of the window's text where it isn't the system's.
    virtual void OnColor(HDC /*dc*/) {}
    virtual void OnParentResized() {}
    // Pixels of its parent's height that it takes for itself along the bottom.
    virtual int HeightAtBottom() const { return 0; }

    bool IsFollowing() const { return following_; }

    // Whether the arrow keys go no further back than to this window.
    void FollowGroup();

  protected:
    WindowPeer(Control& control, const PeerServices& services)
        : control_(control), services_(services) {}

    // The window comes up hidden and without text; a call of Follow completes it.
    void Create(const wchar_t* className, DWORD style, DWORD extendedStyle);

    const PeerServices& Services() const { return services_; }
    int ToPixels(int32_t twips) const { return services_.scale.ToPixels(twips); }

    // What the window says; always empty for a kind whose text isn't a caption.
    virtual std::string Text() const { return control_.Caption; }
    // Gives the window a text when it isn't the one given last.
    void SetText(const std::string& text);

    virtual void FollowPlace();
    // Gives the window its place in the parent, in pixels.
    virtual void PutAt(const RECT& place);
    virtual void FollowEnabled();
    virtual void FollowVisible();
    // What this kind of control has beyond the others.
    virtual void FollowMore() {}

    // Enables the window or not when that is news; so what the system does to it meanwhile lasts.
    void Enable(bool enabled);

    static WindowPeer* Stored(HWND window);

    // Holds the peer in the state of following.
    class Following;

  private:
    void FollowToolTip();
    void PutInOrder();
    void GiveFocusAway();

    Control& control_;
    const PeerServices& services_;
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
