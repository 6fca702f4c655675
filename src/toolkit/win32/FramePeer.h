#pragma once

#include "toolkit/Frame.h"
#include "toolkit/win32/ContainerPeer.h"

// A native group box that is also the parent of what it frames: so screen readers name the group.
class FramePeer : public ContainerPeer {
  public:
    FramePeer(Frame& frame, const PeerServices& services);
    ~FramePeer() override;

    HBRUSH Ground() const override;

  protected:
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    LRESULT OnOther(UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    static LRESULT CALLBACK Subclass(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                                     UINT_PTR id, DWORD_PTR peer);

    Frame& frame_;
};
