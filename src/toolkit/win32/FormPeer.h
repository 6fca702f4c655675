#pragma once

#include <vector>

#include "toolkit/Form.h"
#include "toolkit/win32/ContainerPeer.h"
#include "toolkit/win32/FormKeys.h"

// A top-level window.
class FormPeer : public ContainerPeer {
  public:
    FormPeer(Form& form, const PeerServices& services);

    // Nothing for a window that isn't a form of this thread.
    static FormPeer* Of(HWND window);
    using WindowPeer::Of;

    void Activate() override;

    bool TakeKey(MSG& message);

    // Pixels that border and title bar of a form that can't be resized take.
    static SIZE FrameSize();

  protected:
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void FollowPlace() override;
    void FollowEnabled() override;
    void FollowVisible() override;
    void FollowMore() override;

  private:
    void Report();
    // Pixels by which a window at `place` is too low for what it holds.
    int MissingHeight(const RECT& place) const;
    void OnActivate(bool active);
    HWND FirstStop() const;
    HWND NextStop(bool back) const;
    void GoTo(HWND control);
    void SetIcons();
    void FollowBoxes();
    void FollowStyle();
    void FollowDefaultButton();

    Form& form_;
    FormKeys keys_;
    HWND lastFocus_ = nullptr;
    int extraHeight_ = 0;
    std::vector<HWND> blockedBoxes_;
};
