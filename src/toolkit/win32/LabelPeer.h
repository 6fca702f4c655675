#pragma once

#include "toolkit/Picture.h"
#include "toolkit/win32/WindowPeer.h"

class FontCache;

// A label that isn't part of a drawing.
class LabelPeer : public WindowPeer {
  public:
    LabelPeer(Label& label, FontCache& fonts);

    HBRUSH OnColor(HDC dc) override;

  protected:
    void FollowMore() override;

  private:
    Label& label_;
    FontCache& fonts_;
    HFONT font_ = nullptr;
    Color color_ = 0;
};
