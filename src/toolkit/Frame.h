#pragma once

#include "toolkit/Container.h"

// A container with a border around what belongs together, and a caption that names it.
class Frame : public Container {
  public:
    using Container::Container;
};
