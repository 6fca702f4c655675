#include "ui/TabPages.h"

TabPages::TabPages(TabStrip& tabs, const std::vector<Row>& rows) : tabs_(tabs) {
    for (const Row& row : rows) {
        tabs_.AddTab(0, row.caption, row.caption);
        if (row.page) row.page->Visible = false;
        pages_.push_back(row.page);
    }
    Show(true);
    tabs_.BeforeClick.Connect([this] { Show(false); });
    tabs_.Click.Connect([this] { Show(true); });
}

void TabPages::Show(bool shown) {
    const auto page = static_cast<size_t>(tabs_.SelectedItem() - 1);
    if (page < pages_.size() && pages_[page]) pages_[page]->Visible = shown;
}
