#pragma once

#include "toolkit/UiBackend.h"

class FontCache;

// Shows controls as native windows and boxes as the system's. To be made on the thread of the
// message loop; it must outlive the forms.
class Win32Ui : public UiBackend {
  public:
    Win32Ui();
    ~Win32Ui() override;

    std::unique_ptr<Peer> MakePeer(Control& control) override;
    MsgBoxResult MsgBox(const MsgBoxRequest& request) override;

  private:
    std::unique_ptr<FontCache> fonts_;
    void* keyHook_;
};
