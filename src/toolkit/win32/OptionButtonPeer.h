#pragma once

#include "toolkit/OptionButton.h"
#include "toolkit/win32/WindowPeer.h"

class OptionButtonPeer : public WindowPeer {
  public:
    OptionButtonPeer(OptionButton& option, const PeerServices& services);

    void OnCommand(UINT code) override;

  protected:
    void FollowMore() override;

  private:
    bool IsChecked() const { return SendMessageW(Window(), BM_GETCHECK, 0, 0) == BST_CHECKED; }
    void FollowStops();
    void SetStop(bool stop);

    OptionButton& option_;
};
