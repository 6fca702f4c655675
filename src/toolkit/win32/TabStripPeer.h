#pragma once

#include <vector>

#include "toolkit/TabStrip.h"
#include "toolkit/win32/WindowPeer.h"

class FontCache;

class TabStripPeer : public WindowPeer {
  public:
    TabStripPeer(TabStrip& tabs, FontCache& fonts);

    void OnNotify(const NMHDR& notice) override;

  protected:
    void FollowMore() override;

  private:
    void FollowTabs();

    TabStrip& tabs_;
    std::vector<std::string> captions_;
};
