#include "toolkit/win32/PicturePeer.h"

#include <windowsx.h>

#include "toolkit/win32/Canvas.h"
#include "toolkit/win32/Colors.h"
#include "toolkit/win32/Painter.h"

PicturePeer::PicturePeer(Picture& picture, const PeerServices& services)
    : ContainerPeer(picture, services, kPictureClass, 0), picture_(picture) {
    Follow();
}

LRESULT PicturePeer::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_PAINT:
            Paint();
            return 0;
        case WM_ERASEBKGND:
            return 1;
        // What is seen through and around the controls on it.
        case WM_PRINTCLIENT: {
            RECT area;
            GetClientRect(Window(), &area);
            FillRect(reinterpret_cast<HDC>(wParam), &area, ground_.get());
            return 0;
        }
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK:
            OnClick(lParam);
            return 0;
        default:
            return ContainerPeer::OnMessage(message, wParam, lParam);
    }
}

void PicturePeer::FollowMore() {
    InvalidateRect(Window(), nullptr, FALSE);
    if (!ground_ || groundColor_ != picture_.BackColor) {
        groundColor_ = picture_.BackColor;
        ground_.reset(CreateSolidBrush(ToColor(groundColor_)));
    }
    ContainerPeer::FollowMore();
}

void PicturePeer::OnClick(LPARAM point) {
    const Scale scale = Services().scale;
    picture_.Press(scale.ToTwips(GET_X_LPARAM(point)), scale.ToTwips(GET_Y_LPARAM(point)));
}

std::string PicturePeer::Text() const {
    std::string text;
    for (const Control* child : picture_.Children()) {
        const auto* label = dynamic_cast<const Label*>(child);
        if (!label || !label->Visible || label->Caption.Get().empty()) continue;
        if (!text.empty()) text += ' ';
        text += label->Caption.Get();
    }
    return text;
}

void PicturePeer::Paint() {
    PAINTSTRUCT paint;
    const HDC screen = BeginPaint(Window(), &paint);
    Canvas canvas(paint.rcPaint);
    if (canvas.Dc()) {
        Painter painter(canvas.Dc(), Services());
        painter.Draw(picture_);
        canvas.CopyTo(screen);
    }
    EndPaint(Window(), &paint);
}

DrawnPeer::DrawnPeer(const Control& control, PicturePeer& picture)
    : control_(control), label_(dynamic_cast<const Label*>(&control)), picture_(picture) {
    Follow();
}

void DrawnPeer::Follow() {
    picture_.Invalidate(area_);
    area_ = DrawnArea(control_, picture_.ScaleOf());
    picture_.Invalidate(area_);
    if (label_) FollowCaption();
}

void DrawnPeer::FollowCaption() {
    static const std::string kHidden;
    const std::string& caption = label_->Visible ? label_->Caption.Get() : kHidden;
    if (shown_ == caption) return;
    shown_ = caption;
    picture_.FollowLabels();
}
