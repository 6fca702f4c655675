#pragma once

#include "toolkit/CheckBox.h"
#include "toolkit/win32/WindowPeer.h"

class CheckBoxPeer : public WindowPeer {
  public:
    CheckBoxPeer(CheckBox& box, const PeerServices& services);

    void OnCommand(UINT code) override;

  protected:
    void FollowMore() override;

  private:
    CheckBox& box_;
};
