#pragma once

#include "toolkit/Slider.h"
#include "toolkit/win32/WindowPeer.h"

class SliderPeer : public WindowPeer {
  public:
    SliderPeer(Slider& slider, const PeerServices& services);

    void OnScroll() override;

  protected:
    std::string Text() const override { return {}; }
    void FollowMore() override;

  private:
    int32_t Ask(UINT message) const;
    void FollowScale();

    Slider& slider_;
    int32_t ticks_ = 0;
};
