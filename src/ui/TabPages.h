#pragma once

#include <vector>

#include "toolkit/TabStrip.h"

// The pages of a tab strip, of which the one of the selected tab is seen.
class TabPages {
  public:
    struct Row {
        const char* caption;
        Control& page;
    };

    // Adds a tab for each page. Strip and pages must outlive it.
    TabPages(TabStrip& tabs, const std::vector<Row>& rows);

  private:
    void Show(bool shown);

    TabStrip& tabs_;
    std::vector<Control*> pages_;
};
