#pragma once

#include "toolkit/Container.h"
#include "toolkit/win32/WindowPeer.h"

// A plain area with child windows. It hands to the children's peers what their windows report.
class ContainerPeer : public WindowPeer {
  public:
    explicit ContainerPeer(Container& container);

    // Window classes of this process; once more does no harm.
    static void RegisterClasses();

  protected:
    ContainerPeer(Container& container, const wchar_t* className, DWORD style);

    static constexpr const wchar_t* kFormClass = L"OrvoForm";
    static constexpr const wchar_t* kPlainClass = L"OrvoContainer";
    static constexpr const wchar_t* kPictureClass = L"OrvoPicture";

    // Messages of the peer's own window.
    virtual LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam);
    // Those left to the window's class.
    virtual LRESULT OnOther(UINT message, WPARAM wParam, LPARAM lParam);
    void FollowMore() override;

  private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    Container& container_;
};
