#pragma once

#include <windows.h>

#include <map>
#include <utility>

#include "toolkit/Picture.h"
#include "toolkit/Scale.h"
#include "toolkit/win32/GdiHandle.h"

// The fonts of the controls, made when first asked for. They follow the system's message font, at
// the scale of the windows.
class FontCache {
  public:
    explicit FontCache(Scale scale);

    HFONT Message() { return Get(FontFace::Normal, HeightOf(kDefaultHeight)); }
    HFONT Get(FontFace face, int height);

    // Pixels, of which `finer` make one of the screen, for a label's FontHeight. The height that a
    // label has from the start stands for the message font's.
    int HeightOf(int32_t fontHeight, int finer = 1) const;

    static int SystemDpi();

  private:
    static constexpr int32_t kDefaultHeight = 195;

    const Scale scale_;
    LOGFONTW message_{};
    std::map<std::pair<FontFace, int>, GdiHandle<HFONT>> fonts_;
};
