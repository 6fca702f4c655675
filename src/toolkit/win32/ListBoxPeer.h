#pragma once

#include "toolkit/ListBox.h"
#include "toolkit/win32/ListControlPeer.h"

class ListBoxPeer : public ListControlPeer {
  public:
    ListBoxPeer(ListBox& box, const PeerServices& services);

    void OnCommand(UINT code) override;

  private:
    ListBox& box_;
};
