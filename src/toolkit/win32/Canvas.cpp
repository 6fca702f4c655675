#include "toolkit/win32/Canvas.h"

#include <algorithm>

namespace {

BITMAPINFO TopDown(int width, int height) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    return info;
}

// Mean of four pixels; red and blue are summed side by side in one word.
uint32_t Mean(uint32_t a, uint32_t b, uint32_t c, uint32_t d) {
    constexpr uint32_t kOuter = 0xFF00FF;
    constexpr uint32_t kInner = 0x00FF00;
    const uint32_t outer = (a & kOuter) + (b & kOuter) + (c & kOuter) + (d & kOuter) + 0x020002;
    const uint32_t inner = (a & kInner) + (b & kInner) + (c & kInner) + (d & kInner) + 0x000200;
    return ((outer >> 2) & kOuter) | ((inner >> 2) & kInner);
}

// Of the bitmap; enough for the displays of a panel, but not for a whole one.
constexpr int kMostKept = 1 << 18;

}  // namespace

HDC Canvas::Begin(const RECT& area) {
    area_ = area;
    width_ = area.right - area.left;
    height_ = area.bottom - area.top;
    if (width_ <= 0 || height_ <= 0) return nullptr;
    if (width_ * kScale > roomWidth_ || height_ * kScale > roomHeight_) MakeRoom();
    if (!bitmap_) return nullptr;
    SetViewportOrgEx(dc_, -area.left * kScale, -area.top * kScale, nullptr);
    SelectClipRgn(dc_, nullptr);
    IntersectClipRect(dc_, area.left * kScale, area.top * kScale, area.right * kScale,
                      area.bottom * kScale);
    return dc_;
}

void Canvas::MakeRoom() {
    const int width = std::max(width_ * kScale, roomWidth_);
    const int height = std::max(height_ * kScale, roomHeight_);
    Drop();
    dc_ = CreateCompatibleDC(nullptr);
    const BITMAPINFO info = TopDown(width, height);
    void* bits = nullptr;
    bitmap_.reset(CreateDIBSection(dc_, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
    pixels_ = static_cast<uint32_t*>(bits);
    if (!bitmap_) return;
    before_ = SelectObject(dc_, bitmap_.get());
    roomWidth_ = width;
    roomHeight_ = height;
}

void Canvas::Drop() {
    if (before_) SelectObject(dc_, before_);
    if (dc_) DeleteDC(dc_);
    before_ = nullptr;
    dc_ = nullptr;
    bitmap_.reset();
    roomWidth_ = roomHeight_ = 0;
}

void Canvas::CopyTo(HDC target) {
    GdiFlush();
    Reduce();
    const BITMAPINFO info = TopDown(width_, height_);
    SetDIBitsToDevice(target, area_.left, area_.top, static_cast<DWORD>(width_),
                      static_cast<DWORD>(height_), 0, 0, 0, static_cast<UINT>(height_), pixels_,
                      &info, DIB_RGB_COLORS);
    if (roomWidth_ * roomHeight_ > kMostKept) Drop();
}

// In place: a reduced row never reaches the rows still to be read.
void Canvas::Reduce() {
    static_assert(kScale == 2);
    uint32_t* out = pixels_;
    for (int y = 0; y < height_; ++y) {
        const uint32_t* upper = pixels_ + static_cast<ptrdiff_t>(y) * 2 * roomWidth_;
        const uint32_t* lower = upper + roomWidth_;
        for (int x = 0; x < width_; ++x, upper += 2, lower += 2) {
            *out++ = Mean(upper[0], upper[1], lower[0], lower[1]);
        }
    }
}
