#pragma once

#include "toolkit/ListBox.h"
#include "toolkit/win32/ListControlPeer.h"

class ListBoxPeer : public ListControlPeer {
  public:
    ListBoxPeer(ListBox& box, const PeerServices& services);

    // Null for a window that isn't a list of a form.
    static ListBox* BoxOf(HWND window);

    void OnCommand(UINT code) override;

  private:
    ListBox& box_;
};
