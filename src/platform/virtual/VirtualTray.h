#pragma once

#include <utility>
#include <vector>

#include "platform/TrayPort.h"
#include "platform/virtual/Faults.h"

// Keeps what the notification area is told; a test raises MouseActivity itself.
class VirtualTray : public TrayPort {
  public:
    bool NotifyIcon(uint32_t message, const TrayRecord& record) override {
        if (faults_.Take(0)) return false;
        records.emplace_back(message, record);
        return true;
    }

    void Refuse(int times = Faults<int>::kAlways) { faults_.Refuse(0, times); }

    std::vector<std::pair<uint32_t, TrayRecord>> records;  // message and record, in order

  private:
    Faults<int> faults_;
};
