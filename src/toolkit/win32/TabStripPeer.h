#pragma once

#include <string>
#include <vector>

#include "toolkit/TabStrip.h"
#include "toolkit/win32/WindowPeer.h"

// The pages lie behind the native strip, which has a hole there.
class TabStripPeer : public WindowPeer {
  public:
    TabStripPeer(TabStrip& tabs, const PeerServices& services);

    void OnNotify(const NMHDR& notice) override;

  protected:
    std::string Text() const override { return "Pages"; }  // for screen readers
    void FollowMore() override;

  private:
    // What the native strip leaves to the pages.
    RECT DisplayArea() const;
    void FollowTabs();
    void FollowRows();
    void FollowHole();

    TabStrip& tabs_;
    std::vector<std::string> captions_;
    LONG oneRow_ = 0;  // pixels above the pages with one row of tabs
    RECT hole_{};
    SIZE holed_{};
};
