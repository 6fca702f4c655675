#include "toolkit/win32/Painter.h"

#include <algorithm>

#include "toolkit/win32/Canvas.h"
#include "toolkit/win32/Colors.h"
#include "toolkit/win32/GdiHandle.h"
#include "toolkit/win32/SevenSegment.h"
#include "toolkit/win32/Units.h"
#include "toolkit/win32/WideText.h"

namespace {

constexpr int kCornerTwips = 90;

int Scaled(int32_t twips) { return ToPixels(twips, Canvas::kScale); }

// A thin pen stays visible, none is none.
int PenWidth(int32_t twips) { return twips <= 0 ? 0 : std::max(1, Scaled(twips)); }

RECT AreaOf(const Control& control) {
    return {Scaled(control.Left), Scaled(control.Top), Scaled(control.Left + control.Width),
            Scaled(control.Top + control.Height)};
}

bool IsIn(HDC dc, const Control& control) {
    RECT area = DrawnArea(control);
    for (LONG* edge : {&area.left, &area.top, &area.right, &area.bottom}) *edge *= Canvas::kScale;
    return RectVisible(dc, &area) != FALSE;
}

GdiHandle<HPEN> MakePen(int width, Color color, DWORD ends) {
    if (width == 0) return GdiHandle<HPEN>(CreatePen(PS_NULL, 0, 0));
    const LOGBRUSH brush{BS_SOLID, ToColor(color), 0};
    return GdiHandle<HPEN>(
        ExtCreatePen(PS_GEOMETRIC | ends, static_cast<DWORD>(width), &brush, 0, nullptr));
}

}  // namespace

RECT DrawnArea(const Control& control) {
    RECT area{ToPixels(control.Left), ToPixels(control.Top), ToPixels(control.Left + control.Width),
              ToPixels(control.Top + control.Height)};
    LONG margin = 1;
    if (const auto* line = dynamic_cast<const Line*>(&control)) {
        const auto [left, right] = std::minmax(line->X1.Get(), line->X2.Get());
        const auto [top, bottom] = std::minmax(line->Y1.Get(), line->Y2.Get());
        area = {ToPixels(left), ToPixels(top), ToPixels(right), ToPixels(bottom)};
        margin += ToPixels(line->BorderWidth);
    }
    InflateRect(&area, margin, margin);
    return area;
}

void Painter::Draw(Picture& picture) {
    const GdiHandle<HBRUSH> ground(CreateSolidBrush(ToColor(picture.BackColor)));
    RECT whole;
    GetClipBox(dc_, &whole);
    FillRect(dc_, &whole, ground.get());
    SetBkMode(dc_, TRANSPARENT);
    for (Control* child : picture.Children()) {
        if (child->Visible && IsIn(dc_, *child)) child->Accept(*this);
    }
}

void Painter::Visit(Shape& shape) {
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
            const int corner = 2 * Scaled(kCornerTwips);
            RoundRect(dc_, area.left, area.top, area.right, area.bottom, corner, corner);
            break;
        }
        case ShapeKind::Oval:
            Ellipse(dc_, area.left, area.top, area.right, area.bottom);
            break;
    }
}

void Painter::Visit(Line& line) {
    const int width = PenWidth(line.BorderWidth);
    const GdiHandle<HPEN> pen = MakePen(width, line.BorderColor, PS_SOLID | PS_ENDCAP_ROUND);
    const GdiSelection withPen(dc_, pen.get());
    MoveToEx(dc_, Scaled(line.X1), Scaled(line.Y1), nullptr);
    LineTo(dc_, Scaled(line.X2), Scaled(line.Y2));
}

void Painter::Visit(Label& label) {
    RECT area = AreaOf(label);
    const COLORREF color = ToColor(label.ForeColor);
    if (label.Face == FontFace::SevenSegment) {
        SaveDC(dc_);
        IntersectClipRect(dc_, area.left, area.top, area.right, area.bottom);
        DrawSevenSegment(dc_, area, ToSegmentCells(label.Caption, label.HasPoints), label.Align,
                         Scaled(label.FontHeight), color);
        RestoreDC(dc_, -1);
        return;
    }
    const GdiSelection font(
        dc_, fonts_.Get(label.Face, fonts_.HeightOf(label.FontHeight, Canvas::kScale)));
    SetTextColor(dc_, color);
    const std::wstring text = ToWide(label.Caption.Get());
    UINT format = DT_NOPREFIX | DT_WORDBREAK;
    if (label.Align == Alignment::Center) format |= DT_CENTER;
    if (label.Align == Alignment::Right) format |= DT_RIGHT;
    DrawTextW(dc_, text.c_str(), static_cast<int>(text.size()), &area, format);
}
