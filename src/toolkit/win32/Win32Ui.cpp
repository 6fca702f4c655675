#include "toolkit/win32/Win32Ui.h"

#include "toolkit/ComboBox.h"
#include "toolkit/CommandButton.h"
#include "toolkit/Form.h"
#include "toolkit/Frame.h"
#include "toolkit/Picture.h"
#include "toolkit/StatusBar.h"
#include "toolkit/TabStrip.h"
#include "toolkit/win32/ButtonPeer.h"
#include "toolkit/win32/ComboBoxPeer.h"
#include "toolkit/win32/CommonControls.h"
#include "toolkit/win32/FontCache.h"
#include "toolkit/win32/FormPeer.h"
#include "toolkit/win32/FramePeer.h"
#include "toolkit/win32/LabelPeer.h"
#include "toolkit/win32/PicturePeer.h"
#include "toolkit/win32/StatusBarPeer.h"
#include "toolkit/win32/TabStripPeer.h"
#include "toolkit/win32/WideText.h"

namespace {

PicturePeer* PictureAround(const Control& control) {
    return control.Parent() ? dynamic_cast<PicturePeer*>(control.Parent()->GetPeer()) : nullptr;
}

class PeerMaker : public ControlVisitor {
  public:
    explicit PeerMaker(FontCache& fonts) : fonts_(fonts) {}

    void Visit(Form& form) override { made = std::make_unique<FormPeer>(form); }
    void Visit(Container& container) override { made = std::make_unique<ContainerPeer>(container); }
    void Visit(Frame& frame) override { made = std::make_unique<FramePeer>(frame, fonts_); }
    void Visit(Picture& picture) override { made = std::make_unique<PicturePeer>(picture, fonts_); }
    void Visit(CommandButton& button) override {
        made = std::make_unique<ButtonPeer>(button, fonts_);
    }
    void Visit(ComboBox& box) override { made = std::make_unique<ComboBoxPeer>(box, fonts_); }
    void Visit(Label& label) override {
        if (PicturePeer* picture = PictureAround(label)) {
            made = std::make_unique<DrawnPeer>(label, *picture);
        } else {
            made = std::make_unique<LabelPeer>(label, fonts_);
        }
    }
    void Visit(Shape& shape) override { MakeDrawn(shape); }
    void Visit(Line& line) override { MakeDrawn(line); }
    void Visit(TabStrip& tabs) override { made = std::make_unique<TabStripPeer>(tabs, fonts_); }
    void Visit(StatusBar& bar) override { made = std::make_unique<StatusBarPeer>(bar, fonts_); }

    std::unique_ptr<Peer> made;

  private:
    void MakeDrawn(Control& control) {
        if (PicturePeer* picture = PictureAround(control)) {
            made = std::make_unique<DrawnPeer>(control, *picture);
        }
    }

    FontCache& fonts_;
};

bool IsPushButton(HWND window) {
    const LRESULT kind = SendMessageW(window, WM_GETDLGCODE, 0, 0);
    return (kind & (DLGC_DEFPUSHBUTTON | DLGC_UNDEFPUSHBUTTON)) != 0;
}

// A click takes the message's place, so that the loop delivers it: what it opens must not run
// within the hook. A key that is held down clicks once.
void TakeEnter(MSG& message) {
    const bool held = (HIWORD(message.lParam) & KF_REPEAT) != 0;
    message.message = held ? WM_NULL : BM_CLICK;
    message.wParam = 0;
    message.lParam = 0;
}

void TakeKey(MSG& message) {
    FormPeer* form = FormPeer::Of(GetAncestor(message.hwnd, GA_ROOT));
    if (!form) return;
    if (message.wParam == VK_TAB) {
        form->MoveFocus(GetKeyState(VK_SHIFT) < 0);
        message.message = WM_NULL;
    } else if (message.wParam == VK_RETURN && IsPushButton(message.hwnd)) {
        TakeEnter(message);
    }
}

// The loop knows nothing of forms, so Tab and Enter are taken out of its messages here.
LRESULT CALLBACK FilterKeys(int code, WPARAM removed, LPARAM data) {
    auto& message = *reinterpret_cast<MSG*>(data);
    if (code == HC_ACTION && removed == PM_REMOVE && message.message == WM_KEYDOWN) {
        TakeKey(message);
    }
    return CallNextHookEx(nullptr, code, removed, data);
}

BOOL CALLBACK TakeVisibleForm(HWND window, LPARAM found) {
    if (!IsWindowVisible(window) || !FormPeer::Of(window)) return TRUE;
    *reinterpret_cast<HWND*>(found) = window;
    return FALSE;
}

HWND BoxOwner() {
    HWND owner = GetActiveWindow();
    if (owner && IsWindowVisible(owner)) return owner;
    owner = nullptr;
    EnumThreadWindows(GetCurrentThreadId(), TakeVisibleForm, reinterpret_cast<LPARAM>(&owner));
    return owner;
}

UINT BoxIcon(MsgBoxIcon icon) {
    switch (icon) {
        case MsgBoxIcon::None:
            return 0;
        case MsgBoxIcon::Critical:
            return MB_ICONERROR;
        case MsgBoxIcon::Question:
            return MB_ICONQUESTION;
        case MsgBoxIcon::Exclamation:
            return MB_ICONWARNING;
        case MsgBoxIcon::Information:
            return MB_ICONINFORMATION;
    }
    return 0;
}

}  // namespace

Win32Ui::Win32Ui() : fonts_(std::make_unique<FontCache>()) {
    INITCOMMONCONTROLSEX controls{sizeof controls,
                                  ICC_STANDARD_CLASSES | ICC_TAB_CLASSES | ICC_BAR_CLASSES};
    InitCommonControlsEx(&controls);
    ContainerPeer::RegisterClasses();
    keyHook_ = SetWindowsHookExW(WH_GETMESSAGE, FilterKeys, nullptr, GetCurrentThreadId());
}

Win32Ui::~Win32Ui() { UnhookWindowsHookEx(static_cast<HHOOK>(keyHook_)); }

std::unique_ptr<Peer> Win32Ui::MakePeer(Control& control) {
    PeerMaker maker(*fonts_);
    control.Accept(maker);
    return std::move(maker.made);
}

MsgBoxResult Win32Ui::MsgBox(const MsgBoxRequest& request) {
    const bool cancellable = request.buttons == MsgBoxButtons::OkCancel;
    const UINT flags =
        (cancellable ? MB_OKCANCEL : MB_OK) | BoxIcon(request.icon) | MB_SETFOREGROUND;
    const int pressed =
        MessageBoxW(BoxOwner(), ToWide(request.text).c_str(), ToWide(request.title).c_str(), flags);
    return cancellable && pressed != IDOK ? MsgBoxResult::Cancel : MsgBoxResult::Ok;
}
