#pragma once

#include "toolkit/ComboBox.h"
#include "toolkit/win32/ListControlPeer.h"

class ComboBoxPeer : public ListControlPeer {
  public:
    ComboBoxPeer(ComboBox& box, const PeerServices& services);

    void OnCommand(UINT code) override;

  protected:
    void PutAt(const RECT& place) override;
    void FollowMore() override;
    void SelectedAnew() override { setByProgram_ = true; }

  private:
    void OnTyped();
    void Choose();
    void CloseUp();

    ComboBox& box_;
    HWND edit_ = nullptr;  // of an editable one
    // Since the list was dropped down.
    bool cancelled_ = false;
    bool chosen_ = false;  // without a move before
    bool moved_ = false;
    bool setByProgram_ = false;
};
