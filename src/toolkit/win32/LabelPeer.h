#pragma once

#include "toolkit/Picture.h"
#include "toolkit/win32/WindowPeer.h"

// A label that isn't part of a drawing.
class LabelPeer : public WindowPeer {
  public:
    LabelPeer(Label& label, const PeerServices& services);
    ~LabelPeer() override;

    void OnColor(HDC dc) override;

  protected:
    void FollowMore() override;

  private:
    static LRESULT CALLBACK Subclass(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                                     UINT_PTR id, DWORD_PTR label);
    DWORD Style() const;

    Label& label_;
    HFONT font_ = nullptr;
    Color color_ = 0;
};
