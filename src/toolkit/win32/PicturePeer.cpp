#include "toolkit/win32/PicturePeer.h"

#include <windowsx.h>

#include <utility>

#include "toolkit/win32/Canvas.h"
#include "toolkit/win32/Colors.h"
#include "toolkit/win32/Painter.h"

namespace {

constexpr UINT_PTR kPaceTimer = 1;
// A region of more pieces is painted as a whole.
constexpr DWORD kMostAreas = 8;

}  // namespace

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
        case WM_TIMER:
            if (wParam == kPaceTimer) PaintWhatWaits();
            return 0;
        case WM_GETTEXT:
        case WM_GETTEXTLENGTH:
            BringTextUpToDate();
            break;
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
            break;
    }
    return ContainerPeer::OnMessage(message, wParam, lParam);
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

void PicturePeer::Invalidate(const RECT& area) {
    if (!picture_.IsShown()) return;
    if (pace_.MayPaint(GetTickCount())) {
        InvalidateRect(Window(), &area, FALSE);
        return;
    }
    GdiHandle<HRGN> region(CreateRectRgnIndirect(&area));
    if (waiting_) {
        CombineRgn(waiting_.get(), waiting_.get(), region.get(), RGN_OR);
        return;
    }
    waiting_ = std::move(region);
    SetTimer(Window(), kPaceTimer, PaintPace::kIntervalMs, nullptr);
}

void PicturePeer::PaintWhatWaits() {
    KillTimer(Window(), kPaceTimer);
    InvalidateRgn(Window(), waiting_.get(), FALSE);
    waiting_.reset();
}

void PicturePeer::BringTextUpToDate() {
    if (std::exchange(labelsChanged_, false)) SetText(Text());
}

std::vector<RECT> PicturePeer::ChangedAreas() const {
    const GdiHandle<HRGN> region(CreateRectRgn(0, 0, 0, 0));
    if (GetUpdateRgn(Window(), region.get(), FALSE) != COMPLEXREGION) return {};
    std::vector<char> bytes(GetRegionData(region.get(), 0, nullptr));
    auto* data = reinterpret_cast<RGNDATA*>(bytes.data());
    GetRegionData(region.get(), static_cast<DWORD>(bytes.size()), data);
    if (bytes.empty() || data->rdh.nCount > kMostAreas) return {};
    const auto* first = reinterpret_cast<const RECT*>(data->Buffer);
    return {first, first + data->rdh.nCount};
}

void PicturePeer::Paint() {
    std::vector<RECT> areas = ChangedAreas();
    PAINTSTRUCT paint;
    const HDC screen = BeginPaint(Window(), &paint);
    if (areas.empty()) areas.push_back(paint.rcPaint);
    for (const RECT& area : areas) {
        const HDC dc = Services().canvas.Begin(area);
        if (!dc) continue;
        Painter(dc, Services()).Draw(picture_, area);
        Services().canvas.CopyTo(screen);
    }
    EndPaint(Window(), &paint);
    pace_.Painted();
    BringTextUpToDate();
}

DrawnPeer::DrawnPeer(const Control& control, PicturePeer& picture)
    : control_(control), label_(dynamic_cast<const Label*>(&control)), picture_(picture) {
    Follow();
}

void DrawnPeer::Follow() {
    const RECT before = area_;
    area_ = DrawnArea(control_, picture_.ScaleOf());
    picture_.Invalidate(before);
    if (!EqualRect(&before, &area_)) picture_.Invalidate(area_);
    if (label_) FollowCaption();
}

void DrawnPeer::FollowCaption() {
    static const std::string kHidden;
    const std::string& caption = label_->Visible ? label_->Caption.Get() : kHidden;
    if (shown_ == caption) return;
    shown_ = caption;
    picture_.FollowLabels();
}
