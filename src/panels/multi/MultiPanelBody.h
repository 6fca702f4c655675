#pragma once

#include <memory>
#include <vector>

#include "toolkit/Picture.h"

// What never changes in the drawing of the Multi Panel: the body, dials, scales and captions.
class MultiPanelBody {
  public:
    explicit MultiPanelBody(Picture& panel);

  private:
    void AddShapes(Picture& panel);
    void AddCaptions(Picture& panel);

    std::vector<std::unique_ptr<Control>> parts_;
};
