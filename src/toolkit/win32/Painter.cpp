#include "toolkit/win32/Painter.h"

#include <algorithm>

#include "toolkit/win32/Canvas.h"
#include "toolkit/win32/Colors.h"
#include "toolkit/win32/FontCache.h"
#include "toolkit/win32/GdiHandle.h"
#include "toolkit/win32/SevenSegment.h"
#include "toolkit/win32/WideText.h"

namespace {

constexpr int kCornerTwips = 90;

GdiHandle<HPEN> MakePen(int width, Color color, DWORD ends) {
    if (width == 0) return GdiHandle<HPEN>(CreatePen(PS_NULL, 0, 0));
    const LOGBRUSH brush{BS_SOLID, ToColor(color), 0};
    return GdiHandle<HPEN>(
        ExtCreatePen(PS_GEOMETRIC | ends, static_cast<DWORD>(width), &brush, 0, nullptr));
}

}  // namespace

RECT DrawnArea(const Control& control, Scale scale) {
    RECT twips{control.Left, control.Top, control.Left + control.Width,
               control.Top + control.Height};
    LONG margin = 1;
    if (const auto* line = dynamic_cast<const Line*>(&control)) {
        const auto [left, right] = std::minmax(line->X1.Get(), line->X2.Get());
        const auto [top, bottom] = std::minmax(line->Y1.Get(), line->Y2.Get());
        twips = {left, top, right, bottom};
        margin += scale.ToPixels(line->BorderWidth);
    }
    RECT area{scale.ToPixels(twips.left), scale.ToPixels(twips.top), scale.ToPixels(twips.right),
              scale.ToPixels(twips.bottom)};
    InflateRect(&area, margin, margin);
    return area;
}

int Painter::ToDots(int32_t twips) const { return services_.scale.ToPixels(twips, Canvas::kScale); }

// A thin pen stays visible, none is none.
int Painter::PenWidth(int32_t twips) const { return twips <= 0 ? 0 : std::max(1, ToDots(twips)); }

RECT Painter::AreaOf(const Control& control) const {
    return {ToDots(control.Left), ToDots(control.Top), ToDots(control.Left + control.Width),
            ToDots(control.Top + control.Height)};
}

void Painter::Draw(const Picture& picture, const RECT& area) {
    const GdiHandle<HBRUSH> ground(CreateSolidBrush(ToColor(picture.BackColor)));
    RECT whole;
    GetClipBox(dc_, &whole);
    FillRect(dc_, &whole, ground.get());
    SetBkMode(dc_, TRANSPARENT);
    for (const Control* child : picture.Children()) {
        if (!child->Visible) continue;
        const RECT drawn = DrawnArea(*child, services_.scale);
        if (RECT both; IntersectRect(&both, &drawn, &area)) DrawPart(*child);
    }
}

// Other controls have windows of their own.
void Painter::DrawPart(const Control& part) {
    if (const auto* label = dynamic_cast<const Label*>(&part)) Draw(*label);
    if (const auto* shape = dynamic_cast<const Shape*>(&part)) Draw(*shape);
    if (const auto* line = dynamic_cast<const Line*>(&part)) Draw(*line);
}

void Painter::Draw(const Shape& shape) {
    const RECT area = AreaOf(shape);
    const int width = PenWidth(shape.BorderWidth);
    const GdiHandle<HPEN> pen = MakePen(width, shape.BorderColor, PS_INSIDEFRAME);
    const GdiHandle<HBRUSH> brush(CreateSolidBrush(ToColor(shape.FillColor)));
    const GdiSelection withPen(dc_, pen.get());
    const GdiSelection withBrush(dc_, brush.get());
    switch (shape.Kind) {
        case ShapeKind::Rectangle:
            Rectangle(dc_, area.left, area.top, area.right, area.bottom);
            break;
        case ShapeKind::RoundedRectangle: {
            const int corner = 2 * ToDots(kCornerTwips);
            RoundRect(dc_, area.left, area.top, area.right, area.bottom, corner, corner);
            break;
        }
        case ShapeKind::Oval:
            Ellipse(dc_, area.left, area.top, area.right, area.bottom);
            break;
    }
}

void Painter::Draw(const Line& line) {
    const int width = PenWidth(line.BorderWidth);
    const GdiHandle<HPEN> pen = MakePen(width, line.BorderColor, PS_SOLID | PS_ENDCAP_ROUND);
    const GdiSelection withPen(dc_, pen.get());
    MoveToEx(dc_, ToDots(line.X1), ToDots(line.Y1), nullptr);
    LineTo(dc_, ToDots(line.X2), ToDots(line.Y2));
}

void Painter::Draw(const Label& label) {
    RECT area = AreaOf(label);
    const COLORREF color = ToColor(label.ForeColor);
    if (label.Face == FontFace::SevenSegment) {
        SaveDC(dc_);
        IntersectClipRect(dc_, area.left, area.top, area.right, area.bottom);
        DrawSevenSegment(dc_, area, ToSegmentCells(label.Caption, label.HasPoints), label.Align,
                         ToDots(label.FontHeight), color);
        RestoreDC(dc_, -1);
        return;
    }
    const GdiSelection font(
        dc_, services_.fonts.Get(label.Face,
                                 services_.fonts.HeightOf(label.FontHeight, Canvas::kScale)));
    SetTextColor(dc_, color);
    const std::wstring text = ToWide(label.Caption.Get());
    UINT format = DT_NOPREFIX | DT_WORDBREAK;
    if (label.Align == Alignment::Center) format |= DT_CENTER;
    if (label.Align == Alignment::Right) format |= DT_RIGHT;
    DrawTextW(dc_, text.c_str(), static_cast<int>(text.size()), &area, format);
}
