#pragma once

#include "platform/Deckhub.h"
#include "platform/MessageLoop.h"

class Win32HidLibrary;

class Win32Deckhub final : public Deckhub {
  public:
    // The links deliver on `loop`.
    Win32Deckhub(MessageLoop& loop, std::shared_ptr<const Win32HidLibrary> hid);

    std::unique_ptr<PanelEnumerator> CreateEnumerator() override;
    std::unique_ptr<PanelLink> CreateLink() override;

  private:
    MessageLoop& loop_;
    std::shared_ptr<const Win32HidLibrary> hid_;
};
