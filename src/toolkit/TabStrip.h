#pragma once

#include <vector>

#include "base/Event.h"
#include "toolkit/Control.h"

// A row of tabs, numbered from 1. The pages are the owner's affair.
class TabStrip : public Control {
  public:
    struct Tab {
        std::string key;
        std::string caption;
    };

    using Control::Control;

    Event<> Click;  // a tab was selected, the selected one again included

    // Inserts a tab so that it becomes number `position` (1 to the count plus 1; anything else adds
    // at the end). The selection stays on its tab; the first tab added is selected, without Click.
    void AddTab(int32_t position, std::string key, std::string caption);

    const std::vector<Tab>& Tabs() const { return tabs_; }

    // 0 while there is no tab.
    int32_t SelectedItem() const { return selected_; }

    // A number without a tab is ignored.
    void Select(int32_t number);

    void Accept(ControlVisitor& visitor) override;

  private:
    std::vector<Tab> tabs_;
    int32_t selected_ = 0;
};
