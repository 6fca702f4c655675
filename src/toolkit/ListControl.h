#pragma once

#include <string>
#include <vector>

#include "base/Event.h"
#include "toolkit/Control.h"

// What the kinds of list have in common: entries, of which one may be selected.
class ListControl : public Control {
  public:
    using Control::Control;

    Event<> Click;  // an entry was selected, the selected one again included

    // Without Click, as is adding.
    virtual void Clear();
    void AddItem(std::string item);
    // Puts these in the place of all entries; none is selected.
    void SetItems(const std::vector<std::string>& items);

    const std::vector<std::string>& Items() const { return items_; }
    int32_t ListCount() const { return static_cast<int32_t>(items_.size()); }

    // From 0; -1 while none is selected.
    int32_t ListIndex() const { return selected_; }

    // -1 selects none, without Click. Another number without an entry is ignored.
    void SetListIndex(int32_t index);

    // The user selects an entry.
    void Choose(int32_t index) {
        if (TakesActs()) SetListIndex(index);
    }

  protected:
    // Selects silently; the peer follows later.
    void Select(int32_t index) { selected_ = index; }
    // An entry has been selected, or none; Click comes after it.
    virtual void Selected() {}
    std::string SelectedItem() const;

  private:
    std::vector<std::string> items_;
    int32_t selected_ = -1;
};
