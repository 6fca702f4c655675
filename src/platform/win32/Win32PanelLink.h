#pragma once

#include "platform/Deckhub.h"
#include "platform/MessageLoop.h"

class ReportInbox;
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
    std::shared_ptr<ReportInbox> inbox_;  // of the reading under way
};
