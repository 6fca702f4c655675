#pragma once

#include <windows.h>

#include <memory>
#include <type_traits>

struct GdiDeleter {
    void operator()(HGDIOBJ object) const { DeleteObject(object); }
};

// Owns a pen, brush, font or bitmap.
template <class Handle>
using GdiHandle = std::unique_ptr<std::remove_pointer_t<Handle>, GdiDeleter>;

// Has an object selected into a device context as long as it lives.
class GdiSelection {
  public:
    GdiSelection(HDC dc, HGDIOBJ object) : dc_(dc), before_(SelectObject(dc, object)) {}
    GdiSelection(const GdiSelection&) = delete;
    GdiSelection& operator=(const GdiSelection&) = delete;
    ~GdiSelection() { SelectObject(dc_, before_); }

  private:
    HDC dc_;
    HGDIOBJ before_;
};
