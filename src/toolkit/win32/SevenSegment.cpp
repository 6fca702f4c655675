#include "toolkit/win32/SevenSegment.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "toolkit/win32/GdiHandle.h"

namespace {

constexpr std::array<uint8_t, 10> kDigits = {0x3F, 0x06, 0x5B, 0x4F, 0x66,
                                             0x6D, 0x7D, 0x07, 0x7F, 0x6F};
constexpr uint8_t kMinus = 0x40;
constexpr int kSegments = 7;
constexpr double kLean = 0.1;  // to the right, for each pixel of height

uint8_t SegmentsOf(char character) {
    if (character >= '0' && character <= '9') return kDigits[static_cast<size_t>(character - '0')];
    return character == '-' ? kMinus : 0;
}

// Unlit segments, on the dark ground of a display.
COLORREF Faint(COLORREF lit) {
    constexpr int kPart = 7;
    return RGB(GetRValue(lit) / kPart, GetGValue(lit) / kPart, GetBValue(lit) / kPart);
}

// Measures of a place, in pixels.
struct Measures {
    explicit Measures(int digitHeight)
        : height(digitHeight), width(height * 0.54), thick(height * 0.135), advance(height * 0.8) {}

    double height;
    double width;
    double thick;
    double advance;
};

// Draws the places of a display whose digits lean to the right.
class Digits {
  public:
    Digits(HDC dc, const Measures& measures, double top)
        : dc_(dc), measures_(measures), top_(top) {}

    void Segment(double left, int number) {
        const double middle = measures_.thick / 2;
        const double right = measures_.width - middle;
        const double bottom = measures_.height - middle;
        const double centre = measures_.height / 2;
        switch (number) {
            case 0:
                Level(left, middle, right, middle);
                break;
            case 1:
                Upright(left, right, middle, centre);
                break;
            case 2:
                Upright(left, right, centre, bottom);
                break;
            case 3:
                Level(left, middle, right, bottom);
                break;
            case 4:
                Upright(left, middle, centre, bottom);
                break;
            case 5:
                Upright(left, middle, middle, centre);
                break;
            default:
                Level(left, middle, right, centre);
                break;
        }
    }

    void Point(double left) {
        const double x = left + (measures_.width + measures_.advance) / 2;
        const double y = top_ + measures_.height - measures_.thick / 2;
        const double radius = measures_.thick * 0.65;
        Ellipse(dc_, Round(x - radius), Round(y - radius), Round(x + radius), Round(y + radius));
    }

  private:
    static int Round(double value) { return static_cast<int>(std::lround(value)); }

    POINT At(double left, double x, double y) const {
        const double lean = (measures_.height - y) * kLean;
        return {Round(left + x + lean), Round(top_ + y)};
    }

    // A bar from (x1, y) to (x2, y) with pointed ends, a little apart from its neighbours.
    void Level(double left, double x1, double x2, double y) {
        const double half = measures_.thick / 2;
        x1 += half * 0.25;
        x2 -= half * 0.25;
        Draw({At(left, x1, y), At(left, x1 + half, y - half), At(left, x2 - half, y - half),
              At(left, x2, y), At(left, x2 - half, y + half), At(left, x1 + half, y + half)});
    }

    void Upright(double left, double x, double y1, double y2) {
        const double half = measures_.thick / 2;
        y1 += half * 0.25;
        y2 -= half * 0.25;
        Draw({At(left, x, y1), At(left, x + half, y1 + half), At(left, x + half, y2 - half),
              At(left, x, y2), At(left, x - half, y2 - half), At(left, x - half, y1 + half)});
    }

    void Draw(const std::array<POINT, 6>& corners) {
        Polygon(dc_, corners.data(), static_cast<int>(corners.size()));
    }

    HDC dc_;
    const Measures& measures_;
    double top_;
};

}  // namespace

std::vector<SegmentCell> ToSegmentCells(const std::string& text, bool hasPoints) {
    std::vector<SegmentCell> cells;
    for (const char character : text) {
        const bool point = hasPoints && (character == '.' || character == ',');
        if (point && !cells.empty() && !cells.back().point) {
            cells.back().point = true;
        } else {
            cells.push_back({SegmentsOf(character), point});
        }
    }
    return cells;
}

void DrawSevenSegment(HDC dc, const RECT& area, std::vector<SegmentCell> cells, Alignment align,
                      int digitHeight, COLORREF lit) {
    if (digitHeight <= 0) return;
    const Measures measures(digitHeight);
    const double last = measures.width + measures.height * kLean;
    const double width = area.right - area.left;
    const auto places = static_cast<size_t>(std::max(1.0, (width - last) / measures.advance + 1));
    if (align == Alignment::Right && cells.size() > places) {
        cells.erase(cells.begin(), cells.end() - static_cast<std::ptrdiff_t>(places));
    }
    const size_t spare = places > cells.size() ? places - cells.size() : 0;
    const size_t before =
        align == Alignment::Left ? 0 : spare / (align == Alignment::Center ? 2 : 1);
    cells.insert(cells.begin(), before, SegmentCell{});
    cells.resize(places);

    const double used = measures.advance * static_cast<double>(places - 1) + last;
    const double start = area.left + (width - used) / 2;
    Digits digits(dc, measures, area.top + (area.bottom - area.top - measures.height) / 2);
    const GdiHandle<HBRUSH> bright(CreateSolidBrush(lit));
    const GdiHandle<HBRUSH> faint(CreateSolidBrush(Faint(lit)));
    const GdiSelection noPen(dc, GetStockObject(NULL_PEN));
    for (size_t place = 0; place < places; ++place) {
        const double left = start + measures.advance * static_cast<double>(place);
        for (int segment = 0; segment < kSegments; ++segment) {
            const bool on = (cells[place].lit >> segment & 1) != 0;
            const GdiSelection withBrush(dc, on ? bright.get() : faint.get());
            digits.Segment(left, segment);
        }
        const GdiSelection withBrush(dc, bright.get());
        if (cells[place].point) digits.Point(left);
    }
}
