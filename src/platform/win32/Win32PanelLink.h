#pragma once

#include "platform/Deckhub.h"
#include "platform/MessageLoop.h"

class Win32HidLibrary;
class Win32PanelReader;

class Win32PanelLink final : public PanelLink {
  public:
    Win32PanelLink(MessageLoop& loop, std::shared_ptr<const Win32HidLibrary> hid);
    ~Win32PanelLink() override;

    void StartReading() override;
    void StopReading() override;

  private:
    MessageLoop& loop_;
    std::shared_ptr<const Win32HidLibrary> hid_;
    std::unique_ptr<Win32PanelReader> reader_;
    // Whether reports of the reading under way are still wanted. Used on the loop's thread only.
    std::shared_ptr<bool> wanted_;
};
