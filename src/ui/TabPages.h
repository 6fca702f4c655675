#pragma once

#include <vector>

#include "toolkit/TabStrip.h"

// The pages of a tab strip, of which the one of the selected tab is seen. A tab may have none.
class TabPages {
  public:
    struct Row {
        const char* caption;
        Control* page = nullptr;
    };

    // Adds a tab for each row. Strip and pages must outlive it.
    TabPages(TabStrip& tabs, const std::vector<Row>& rows);

  private:
    void Show(bool shown);

    TabStrip& tabs_;
    std::vector<Control*> pages_;
};
