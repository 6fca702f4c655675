#pragma once

#include "toolkit/Container.h"
#include "toolkit/win32/WindowPeer.h"

// A plain area with child windows. It hands to the children's peers what their windows report.
class ContainerPeer : public WindowPeer {
  public:
    ContainerPeer(Container& container, const PeerServices& services);

    // Window classes of this process; once more does no harm.
    static void RegisterClasses();

    // What the controls on it are drawn on; null for the face of the system's buttons.
    virtual HBRUSH Ground() const { return nullptr; }

  protected:
    ContainerPeer(Container& container, const PeerServices& services, const wchar_t* className,
                  DWORD style);

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

    // The child that reports, unless it only echoes what its peer does.
    WindowPeer* Reporting(HWND child) const;
    LRESULT ColorsOf(UINT message, WPARAM dc, LPARAM child);

    Container& container_;
};
