#pragma once

#include "toolkit/Frame.h"
#include "ui/ctlEventSelector.h"

// An event selector in a frame that says when its event is sent. It keeps its size.
class SelectorFrame : public Frame {
  public:
    static constexpr int32_t kWidth = 5925;  // twips
    static constexpr int32_t kHeight = 1740;

    SelectorFrame(Container* parent, const SelectorServices& services)
        : Frame(parent), selector(this, services) {
        selector.Move(180, 330, 0, 0);
        KeepSize();
    }

    ctlEventSelector selector;

  protected:
    void Resized() override { KeepSize(); }

  private:
    void KeepSize() {
        Width = kWidth;
        Height = kHeight;
    }
};
