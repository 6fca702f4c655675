#pragma once

#include <vector>

#include "base/Event.h"
#include "toolkit/Control.h"

// A drop-down list to choose one entry from. Height is that of the closed box.
class ComboBox : public Control {
  public:
    using Control::Control;

    Event<> Click;  // an entry was selected, the selected one again included

    // Without Click, as is adding.
    void Clear();
    void AddItem(std::string item);

    const std::vector<std::string>& Items() const { return items_; }
    int32_t ListCount() const { return static_cast<int32_t>(items_.size()); }

    // From 0; -1 while none is selected.
    int32_t ListIndex() const { return selected_; }

    // -1 selects none, without Click. Another number without an entry is ignored.
    void SetListIndex(int32_t index);

    // That of the selected entry, empty without one.
    std::string Text() const;

    void Accept(ControlVisitor& visitor) override;

  private:
    std::vector<std::string> items_;
    int32_t selected_ = -1;
};
