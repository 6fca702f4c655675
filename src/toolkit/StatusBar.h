#pragma once

#include <memory>
#include <vector>

#include "toolkit/Control.h"

// A row of texts along the bottom of a form, which share its width in proportion to their weights.
class StatusBar : public Control {
  public:
    struct Panel {
        Panel(StatusBar& bar, std::string panelKey, std::string panelTip, int panelWeight)
            : key(std::move(panelKey)),
              toolTip(std::move(panelTip)),
              weight(panelWeight),
              Text{bar, {}} {}

        const std::string key;
        const std::string toolTip;
        const int weight;
        Property<std::string, Control> Text;
    };

    using Control::Control;

    // The panel stays where it is as long as the bar lives.
    Panel& AddPanel(std::string key, std::string toolTip, int weight);

    const std::vector<std::unique_ptr<Panel>>& Panels() const { return panels_; }

  private:
    std::vector<std::unique_ptr<Panel>> panels_;
};
