#include "toolkit/StatusBar.h"

StatusBar::Panel& StatusBar::AddPanel(std::string key, std::string toolTip, int weight) {
    panels_.push_back(std::make_unique<Panel>(*this, std::move(key), std::move(toolTip), weight));
    NotifyChanged();
    return *panels_.back();
}
