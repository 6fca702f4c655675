#pragma once

#include "toolkit/Form.h"
#include "toolkit/win32/ContainerPeer.h"

// A top-level window.
class FormPeer : public ContainerPeer {
  public:
    explicit FormPeer(Form& form);

    // Nothing for a window that isn't a form of this thread.
    static FormPeer* Of(HWND window);

    void Activate() override;

    // Gives the keyboard to the next control in the order, or the one before.
    void MoveFocus(bool back);

  protected:
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void FollowPlace() override;
    void FollowVisible() override;
    void FollowMore() override;

  private:
    void Report();
    // Pixels by which a window at `place` is too low for what it holds.
    int MissingHeight(const RECT& place) const;
    void OnActivate(bool active);
    void SetIcons();

    Form& form_;
    HWND lastFocus_ = nullptr;
    int extraHeight_ = 0;
};
