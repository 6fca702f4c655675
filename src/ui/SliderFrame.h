#pragma once

#include "toolkit/Frame.h"
#include "toolkit/Picture.h"
#include "toolkit/Slider.h"
#include "ui/Layout.h"

// A slider in a frame that says what it sets, with a word at either end.
class SliderFrame : public Frame {
  public:
    static constexpr int32_t kWidth = 2700;  // twips
    static constexpr int32_t kHeight = 1320;

    struct End {
        int32_t value;
        const char* word;
    };

    SliderFrame(Container* parent, const End& low, const End& high)
        : Frame(parent), slider(this), labLow(this), labHigh(this) {
        PlaceControls({
            {slider, 120, 330, kWidth - 240, 540},
            {labLow, 180, 930, 1080, 240, low.word},
            {labHigh, kWidth - 1260, 930, 1080, 240, high.word},
        });
        labHigh.Align = Alignment::Right;
        slider.SetRange(low.value, high.value);
    }

    Slider slider;
    Label labLow;
    Label labHigh;
};
