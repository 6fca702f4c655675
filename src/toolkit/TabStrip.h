#pragma once

#include <string>
#include <vector>

#include "base/Event.h"
#include "toolkit/Control.h"

// Tabs, numbered from 1, in as many rows as their captions need. The pages are the owner's affair:
// they lie on the strip, as siblings of it.
class TabStrip : public Control {
  public:
    struct Tab {
        std::string key;
        std::string caption;
    };

    using Control::Control;

    Event<> BeforeClick;  // a tab is about to be selected; the one before still is
    Event<> Click;        // a tab was selected, the selected one again included

    // Inserts a tab so that it becomes number `position` (1 to the count plus 1; anything else adds
    // at the end). The selection stays on its tab; the first tab added is selected, silently.
    void AddTab(int32_t position, std::string key, std::string caption);

    const std::vector<Tab>& Tabs() const { return tabs_; }

    // 0 while there is no tab.
    int32_t SelectedItem() const { return selected_; }

    // A number without a tab is ignored.
    void Select(int32_t number);

    // The user clicks a tab.
    void Choose(int32_t number) {
        if (TakesActs()) Select(number);
    }

    // Twips that the rows behind the first take, as the peer finds. The strip grows by them, and so
    // does a strip on which it lies. What lies below the first row moves down: so does, in turn,
    // what lies below the parent.
    void SetMoreRows(int32_t height);
    int32_t MoreRows() const { return moreRows_; }

  private:
    std::vector<Tab> tabs_;
    int32_t selected_ = 0;
    int32_t moreRows_ = 0;
};
