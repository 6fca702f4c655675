#include "toolkit/win32/FontCache.h"

#include <cstdlib>
#include <cwchar>

FontCache::FontCache(Scale scale) : scale_(scale) {
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof metrics;
    SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
    message_ = metrics.lfMessageFont;
    message_.lfHeight = -MulDiv(std::abs(message_.lfHeight), scale.Dpi(), SystemDpi());
}

int FontCache::SystemDpi() {
    const HDC screen = GetDC(nullptr);
    const int dpi = GetDeviceCaps(screen, LOGPIXELSY);
    ReleaseDC(nullptr, screen);
    return dpi;
}

int FontCache::HeightOf(int32_t fontHeight, int finer) const {
    if (fontHeight == kDefaultHeight) return -message_.lfHeight * finer;
    return scale_.ToPixels(fontHeight, finer);
}

HFONT FontCache::Get(FontFace face, int height) {
    GdiHandle<HFONT>& font = fonts_[{face, height}];
    if (!font) {
        LOGFONTW wanted = message_;
        wanted.lfHeight = -height;
        if (face == FontFace::Bold) wanted.lfWeight = FW_BOLD;
        if (face == FontFace::SevenSegment) {
            wanted.lfPitchAndFamily = FIXED_PITCH | FF_MODERN;
            std::wcscpy(wanted.lfFaceName, L"Courier New");
        }
        font.reset(CreateFontIndirectW(&wanted));
    }
    return font.get();
}
