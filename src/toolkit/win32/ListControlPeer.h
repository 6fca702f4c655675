#pragma once

#include <string>
#include <vector>

#include "toolkit/ListControl.h"
#include "toolkit/win32/WindowPeer.h"

// What the peers of lists have in common: entries, of which one may be selected.
class ListControlPeer : public WindowPeer {
  protected:
    // Each kind of native list has its own numbers for the same messages.
    struct Messages {
        UINT add;
        UINT clear;
        UINT getSelected;
        UINT select;
    };

    ListControlPeer(ListControl& list, const PeerServices& services, const Messages& messages)
        : WindowPeer(list, services), list_(list), messages_(messages) {}

    std::string Text() const override { return {}; }
    void FollowMore() override;

    int32_t Selected() const;
    // The native list had another entry selected.
    virtual void SelectedAnew() {}

  private:
    void FollowItems();

    ListControl& list_;
    const Messages messages_;
    std::vector<std::string> shown_;
};
