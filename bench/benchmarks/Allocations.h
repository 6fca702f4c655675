#pragma once

#include <cstddef>

// Calls of malloc, calloc, realloc and what is built on them, such as new, in this program.
size_t Allocations();

// What is allocated while it lives doesn't count: it is the virtual machine's.
class Uncounted {
  public:
    Uncounted();
    Uncounted(const Uncounted&) = delete;
    Uncounted& operator=(const Uncounted&) = delete;
    ~Uncounted();

  private:
    const bool before_;
};
