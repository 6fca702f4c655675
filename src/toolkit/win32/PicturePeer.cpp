#include "toolkit/win32/PicturePeer.h"

#include "toolkit/win32/Canvas.h"
#include "toolkit/win32/Colors.h"
#include "toolkit/win32/Painter.h"

PicturePeer::PicturePeer(Picture& picture, FontCache& fonts)
    : ContainerPeer(picture, kPictureClass, 0), picture_(picture), fonts_(fonts) {
    Follow();
}

LRESULT PicturePeer::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_PAINT:
            Paint();
            return 0;
        case WM_ERASEBKGND:
            return 1;
        // What is seen in the round corners of a button.
        case WM_CTLCOLORBTN:
            return reinterpret_cast<LRESULT>(ground_.get());
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

void PicturePeer::FollowLabels() {
    std::string text;
    for (const Control* child : picture_.Children()) {
        const auto* label = dynamic_cast<const Label*>(child);
        if (!label || !label->Visible || label->Caption.Get().empty()) continue;
        if (!text.empty()) text += ' ';
        text += label->Caption.Get();
    }
    SetText(text);
}

void PicturePeer::Paint() {
    PAINTSTRUCT paint;
    const HDC screen = BeginPaint(Window(), &paint);
    Canvas canvas(paint.rcPaint);
    if (canvas.Dc()) {
        Painter painter(canvas.Dc(), fonts_);
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
    area_ = DrawnArea(control_);
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
