#pragma once

#include "toolkit/Picture.h"
#include "toolkit/win32/ContainerPeer.h"
#include "toolkit/win32/GdiHandle.h"
#include "toolkit/win32/PaintPace.h"

// A Picture's window: painted where it has changed, when that can be seen, at a pace.
class PicturePeer : public ContainerPeer {
  public:
    PicturePeer(Picture& picture, const PeerServices& services);

    // What is drawn in an area isn't true any more. Several calls make one painting.
    void Invalidate(const RECT& area);

    // A label shows something else: the window's text, which screen readers read, follows when it
    // is painted or asked for.
    void FollowLabels() { labelsChanged_ = true; }

    HBRUSH Ground() const override { return ground_.get(); }
    Scale ScaleOf() const { return Services().scale; }

  protected:
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    // That of its labels.
    std::string Text() const override;
    void FollowMore() override;

  private:
    void Paint();
    std::vector<RECT> ChangedAreas() const;
    void PaintWhatWaits();
    void BringTextUpToDate();
    void OnClick(LPARAM point);

    Picture& picture_;
    Color groundColor_ = 0;
    PaintPace pace_;
    GdiHandle<HRGN> waiting_;  // to be painted when the pace allows
    bool labelsChanged_ = false;
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
