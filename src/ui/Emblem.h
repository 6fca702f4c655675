#pragma once

#include <memory>
#include <vector>

#include "toolkit/Picture.h"

// Draws the program's emblem on a picture, an aircraft over the dial of a compass, as large as the
// picture has room for.
class Emblem {
  public:
    explicit Emblem(Picture& picture);

  private:
    void AddDisc(Picture& picture, double radius, Color color);
    void AddBar(Picture& picture, double x1, double y1, double x2, double y2, double width);

    double unit_;  // twips; the dial has a diameter of 64
    std::vector<std::unique_ptr<Control>> parts_;
};
