#pragma once

#include "toolkit/TextBox.h"
#include "toolkit/win32/WindowPeer.h"

class TextBoxPeer : public WindowPeer {
  public:
    TextBoxPeer(TextBox& box, const PeerServices& services);

    void OnCommand(UINT code) override;

  protected:
    std::string Text() const override { return {}; }
    void FollowMore() override;

  private:
    TextBox& box_;
};
