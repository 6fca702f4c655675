#pragma once

#include "toolkit/Picture.h"
#include "toolkit/win32/ContainerPeer.h"
#include "toolkit/win32/GdiHandle.h"

// A Picture's window: painted as a whole when it has changed and can be seen.
class PicturePeer : public ContainerPeer {
  public:
    PicturePeer(Picture& picture, const PeerServices& services);

    // What is drawn in an area isn't true any more. Several calls make one painting.
    void Invalidate(const RECT& area) { InvalidateRect(Window(), &area, FALSE); }

    // A label shows something else: the window's text, which screen readers read, follows.
    void FollowLabels() { SetText(Text()); }

    HBRUSH Ground() const override { return ground_.get(); }
    Scale ScaleOf() const { return Services().scale; }

  protected:
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    // That of its labels.
    std::string Text() const override;
    void FollowMore() override;

  private:
    void Paint();
    void OnClick(LPARAM point);

    Picture& picture_;
    Color groundColor_ = 0;
    GdiHandle<HBRUSH> ground_;
};

// The peer of what is drawn on a Picture.
class DrawnPeer : public Peer {
  public:
    DrawnPeer(const Control& control, PicturePeer& picture);
    ~DrawnPeer() override { picture_.Invalidate(area_); }

    void Follow() override;

  private:
    void FollowCaption();

    const Control& control_;
    const Label* const label_;  // none for what is no label
    PicturePeer& picture_;
    RECT area_{};
    std::string shown_;  // the label's caption, empty while it is hidden
};
