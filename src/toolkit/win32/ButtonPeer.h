#pragma once

#include "toolkit/CommandButton.h"
#include "toolkit/win32/WindowPeer.h"

class ButtonPeer : public WindowPeer {
  public:
    ButtonPeer(CommandButton& button, const PeerServices& services);

    // Null for a window that isn't a push button of a form.
    static CommandButton* ButtonOf(HWND window);

    void OnCommand(UINT code) override;

  protected:
    void FollowMore() override;

  private:
    CommandButton& button_;
};
