#pragma once

#include <windows.h>

#include <map>
#include <utility>

#include "toolkit/Picture.h"
#include "toolkit/win32/GdiHandle.h"

// The fonts of the controls, made when first asked for. They follow the system's message font, at
// the fixed scale of the windows whatever the screen's own scaling is.
class FontCache {
  public:
    FontCache();

    HFONT Message() { return Get(FontFace::Normal, HeightOf(kDefaultHeight)); }
    HFONT Get(FontFace face, int height);

    // Pixels, of which `scale` make one of the screen, for a label's FontHeight. The height that a
    // label has from the start stands for the message font's.
    int HeightOf(int32_t fontHeight, int scale = 1) const;

  private:
    static constexpr int32_t kDefaultHeight = 195;

    LOGFONTW message_{};
    std::map<std::pair<FontFace, int>, GdiHandle<HFONT>> fonts_;
};
