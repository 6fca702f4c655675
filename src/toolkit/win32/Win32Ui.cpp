#include "toolkit/win32/Win32Ui.h"

#include "toolkit/Form.h"
#include "toolkit/win32/ButtonPeer.h"
#include "toolkit/win32/Canvas.h"
#include "toolkit/win32/CheckBoxPeer.h"
#include "toolkit/win32/ComboBoxPeer.h"
#include "toolkit/win32/CommonControls.h"
#include "toolkit/win32/FontCache.h"
#include "toolkit/win32/FormPeer.h"
#include "toolkit/win32/FramePeer.h"
#include "toolkit/win32/LabelPeer.h"
#include "toolkit/win32/ListBoxPeer.h"
#include "toolkit/win32/OptionButtonPeer.h"
#include "toolkit/win32/PicturePeer.h"
#include "toolkit/win32/SliderPeer.h"
#include "toolkit/win32/StatusBarPeer.h"
#include "toolkit/win32/TabStripPeer.h"
#include "toolkit/win32/TextBoxPeer.h"
#include "toolkit/win32/WideText.h"

namespace {

PicturePeer* PictureAround(const Control& control) {
    return control.Parent() ? dynamic_cast<PicturePeer*>(control.Parent()->GetPeer()) : nullptr;
}

std::unique_ptr<Peer> MakeDrawn(Control& control, const PeerServices&) {
    PicturePeer* picture = PictureAround(control);
    if (!picture || !dynamic_cast<PicturePart*>(&control)) return nullptr;
    return std::make_unique<DrawnPeer>(control, *picture);
}

template <class Kind, class KindPeer>
std::unique_ptr<Peer> Make(Control& control, const PeerServices& services) {
    auto* kind = dynamic_cast<Kind*>(&control);
    return kind ? std::make_unique<KindPeer>(*kind, services) : nullptr;
}

using Maker = std::unique_ptr<Peer> (*)(Control&, const PeerServices&);

// The first that makes something counts, so a kind comes before the one that it is derived from.
constexpr Maker kMakers[] = {
    Make<Form, FormPeer>,
    Make<Frame, FramePeer>,
    Make<Picture, PicturePeer>,
    Make<Container, ContainerPeer>,
    MakeDrawn,
    Make<Label, LabelPeer>,
    Make<CommandButton, ButtonPeer>,
    Make<CheckBox, CheckBoxPeer>,
    Make<OptionButton, OptionButtonPeer>,
    Make<TextBox, TextBoxPeer>,
    Make<ListBox, ListBoxPeer>,
    Make<ComboBox, ComboBoxPeer>,
    Make<Slider, SliderPeer>,
    Make<TabStrip, TabStripPeer>,
    Make<StatusBar, StatusBarPeer>,
};

// A hidden one when no other is there: it can't be shown in front of the box then.
BOOL CALLBACK TakeForm(HWND window, LPARAM found) {
    if (!FormPeer::Of(window)) return TRUE;
    *reinterpret_cast<HWND*>(found) = window;
    return !IsWindowVisible(window);
}

// A box that is open already owns the next one.
HWND BoxOwner(const Form* modal) {
    if (modal && modal->Visible && WindowPeer::Of(*modal)) {
        const HWND window = WindowPeer::Of(*modal)->Window();
        const HWND last = GetLastActivePopup(window);
        return IsWindowVisible(last) ? last : window;
    }
    HWND owner = GetActiveWindow();
    if (owner && IsWindowVisible(owner)) return owner;
    owner = nullptr;
    EnumThreadWindows(GetCurrentThreadId(), TakeForm, reinterpret_cast<LPARAM>(&owner));
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

Win32Ui::Win32Ui() : Win32Ui(FontCache::SystemDpi()) {}

Win32Ui::Win32Ui(int dotsPerInch)
    : fonts_(std::make_unique<FontCache>(Scale(dotsPerInch))),
      canvas_(std::make_unique<Canvas>()),
      services_(std::make_unique<PeerServices>(
          PeerServices{*this, *fonts_, *canvas_, Scale(dotsPerInch)})) {
    INITCOMMONCONTROLSEX controls{sizeof controls,
                                  ICC_STANDARD_CLASSES | ICC_TAB_CLASSES | ICC_BAR_CLASSES};
    InitCommonControlsEx(&controls);
    ContainerPeer::RegisterClasses();
}

Win32Ui::~Win32Ui() = default;

Scale Win32Ui::ScreenScale() const { return services_->scale; }

UiBackend::FrameSize Win32Ui::FormFrame() const {
    const SIZE frame = FormPeer::FrameSize();
    return {services_->scale.ToTwips(frame.cx), services_->scale.ToTwips(frame.cy)};
}

std::unique_ptr<Peer> Win32Ui::MakePeer(Control& control) {
    for (const Maker make : kMakers) {
        if (auto peer = make(control, *services_)) return peer;
    }
    return nullptr;
}

bool Win32Ui::TakeKey(void* message) {
    auto& key = *static_cast<MSG*>(message);
    const HWND top = GetAncestor(key.hwnd, GA_ROOT);
    if (!top) return false;
    if (FormPeer* form = FormPeer::Of(top)) return form->TakeKey(key);
    // A box's, when the loop runs while one is open.
    return IsDialogMessageW(top, &key) != FALSE;
}

MsgBoxResult Win32Ui::ShowBox(const MsgBoxRequest& request) {
    const bool cancellable = request.buttons == MsgBoxButtons::OkCancel;
    const UINT flags =
        (cancellable ? MB_OKCANCEL : MB_OK) | BoxIcon(request.icon) | MB_SETFOREGROUND;
    if (BeforeBox) BeforeBox();
    const int pressed = MessageBoxW(BoxOwner(ModalForm()), ToWide(request.text).c_str(),
                                    ToWide(request.title).c_str(), flags);
    return cancellable && pressed != IDOK ? MsgBoxResult::Cancel : MsgBoxResult::Ok;
}
