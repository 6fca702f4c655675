#pragma once

#include <string>
#include <vector>

#include "toolkit/StatusBar.h"
#include "toolkit/win32/WindowPeer.h"

// The bar keeps itself along the bottom of its parent; the control's own place means nothing.
class StatusBarPeer : public WindowPeer {
  public:
    StatusBarPeer(StatusBar& bar, const PeerServices& services);

    void OnParentResized() override;
    int HeightAtBottom() const override;

  protected:
    std::string Text() const override { return {}; }
    void FollowPlace() override {}
    void FollowMore() override;

  private:
    void SetParts();

    StatusBar& bar_;
    std::unique_ptr<ToolTip> tips_;
    std::vector<std::string> texts_;
};
