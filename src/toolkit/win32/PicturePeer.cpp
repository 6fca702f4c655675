#include "toolkit/win32/PicturePeer.h"

#include "toolkit/win32/Canvas.h"
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
        default:
            return ContainerPeer::OnMessage(message, wParam, lParam);
    }
}

void PicturePeer::FollowMore() {
    InvalidateRect(Window(), nullptr, FALSE);
    ContainerPeer::FollowMore();
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
    : control_(control), picture_(picture) {
    Follow();
}

void DrawnPeer::Follow() {
    picture_.Invalidate(area_);
    area_ = DrawnArea(control_);
    picture_.Invalidate(area_);
}
