#pragma once

#include <string>
#include <vector>

#include "toolkit/ComboBox.h"
#include "toolkit/win32/WindowPeer.h"

class FontCache;

class ComboBoxPeer : public WindowPeer {
  public:
    ComboBoxPeer(ComboBox& box, FontCache& fonts);

    void OnCommand(UINT code) override;

  protected:
    void PutAt(const RECT& place) override;
    void FollowMore() override;

  private:
    int32_t Selected() const;
    void FollowItems();
    void CloseUp();

    ComboBox& box_;
    std::vector<std::string> shown_;
    // Since the list was dropped down.
    bool cancelled_ = false;
    bool chosen_ = false;  // without a move before
    bool moved_ = false;
    bool setByProgram_ = false;
};
