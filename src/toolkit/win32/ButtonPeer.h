#pragma once

#include "toolkit/CommandButton.h"
#include "toolkit/win32/WindowPeer.h"

class FontCache;

class ButtonPeer : public WindowPeer {
  public:
    ButtonPeer(CommandButton& button, FontCache& fonts);

    void OnCommand(UINT code) override;

  protected:
    void FollowMore() override;

  private:
    CommandButton& button_;
};
