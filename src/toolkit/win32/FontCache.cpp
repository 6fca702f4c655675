#include "toolkit/win32/FontCache.h"

#include <cstdlib>
#include <cwchar>

#include "toolkit/win32/Units.h"

FontCache::FontCache() {
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof metrics;
    SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
    message_ = metrics.lfMessageFont;
    const HDC screen = GetDC(nullptr);
    message_.lfHeight = -MulDiv(std::abs(message_.lfHeight), USER_DEFAULT_SCREEN_DPI,
                                GetDeviceCaps(screen, LOGPIXELSY));
    ReleaseDC(nullptr, screen);
}

int FontCache::HeightOf(int32_t fontHeight, int scale) const {
    if (fontHeight == kDefaultHeight) return -message_.lfHeight * scale;
    return ToPixels(fontHeight, scale);
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
