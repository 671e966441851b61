#include "PicturePainter.h"

#include <plotkit/hidden/VisibleLines.h>
#include <plotkit/hidden/VisibleSurfaces.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

/** A difference of colours that nobody sees. */
constexpr float Same_color = 1.5f / 255;

bool isOneColor(const std::array<PageColor, 3>& colors)
{
    const auto spread = [&](float PageColor::*part) {
        const auto [low, high] = std::minmax({colors[0].*part, colors[1].*part, colors[2].*part});
        return high - low;
    };
    return std::max({spread(&PageColor::red), spread(&PageColor::green), spread(&PageColor::blue),
                     spread(&PageColor::alpha)}) <= Same_color;
}

bool isSame(const LineStyle& a, const LineStyle& b)
{
    return a.width == b.width && a.dashes == b.dashes && a.color.red == b.color.red && a.color.green == b.color.green &&
           a.color.blue == b.color.blue && a.color.alpha == b.color.alpha;
}

/** Joins segments that go on from each other, so that corners and dashes go on too. */
class LineJoiner {
public:
    explicit LineJoiner(PictureSink& sink) : m_sink(sink) {}
    ~LineJoiner() { finish(); }
    LineJoiner(const LineJoiner&) = delete;
    LineJoiner& operator=(const LineJoiner&) = delete;

    void add(const PagePoint& from, const PagePoint& to, const LineStyle& style)
    {
        const bool goesOn =
            !m_points.empty() && m_points.back().x == from.x && m_points.back().y == from.y && isSame(style, m_style);
        if (!goesOn) {
            finish();
            m_points.push_back(from);
            m_style = style;
        }
        m_points.push_back(to);
    }

private:
    void finish()
    {
        if (!m_points.empty())
            m_sink.polyline(m_points, m_style);
        m_points.clear();
    }

    PictureSink& m_sink;
    std::vector<PagePoint> m_points;
    LineStyle m_style;
};

} // namespace

/** Of a transparent surface. */
struct PicturePainter::Part {
    std::size_t index;
    std::vector<PagePoint> corners;
    double depth;
};

PicturePainter::PicturePainter(PictureSink& sink, ProgressCB progress) : m_sink(sink), m_progress(std::move(progress))
{
}

bool PicturePainter::paint(const PagePrimitives& primitives)
{
    std::vector<Part> transparent;
    if (!paintSurfaces(primitives, transparent))
        return false;
    paintLines(primitives);
    std::stable_sort(transparent.begin(), transparent.end(),
                     [](const Part& a, const Part& b) { return a.depth > b.depth; });
    for (const Part& part : transparent)
        paintPart(primitives, part.index, part.corners);
    return true;
}

bool PicturePainter::paintSurfaces(const PagePrimitives& primitives, std::vector<Part>& transparent)
{
    VisibleSurfaces visible(primitives.surfaces);
    return visible.find(
        [&](std::size_t index, const std::vector<PagePoint>& corners) {
            const SurfaceTriangle& surface = primitives.surfaces[index];
            if (surface.isOpaque) {
                paintPart(primitives, index, corners);
                return;
            }
            double depth = 0;
            for (const PagePoint& corner : corners)
                depth += surface.depth.at(corner) / double(corners.size());
            transparent.push_back({index, corners, depth});
        },
        m_progress);
}

void PicturePainter::paintPart(const PagePrimitives& primitives, std::size_t index,
                               const std::vector<PagePoint>& corners)
{
    const std::array<PageColor, 3>& colors = primitives.surfaceColors[index];
    if (isOneColor(colors)) {
        m_sink.polygon(corners, colors[0]);
        return;
    }
    const auto component = [&](float PageColor::*part) {
        return Linear::through(primitives.surfaces[index].corners,
                               {double(colors[0].*part), double(colors[1].*part), double(colors[2].*part)});
    };
    const Linear red = component(&PageColor::red);
    const Linear green = component(&PageColor::green);
    const Linear blue = component(&PageColor::blue);
    const Linear alpha = component(&PageColor::alpha);
    std::vector<ShadedCorner> shaded;
    for (const PagePoint& corner : corners) {
        const auto at = [&](const Linear& value) { return float(std::clamp(value.at(corner), 0.0, 1.0)); };
        shaded.push_back({corner, {at(red), at(green), at(blue), at(alpha)}});
    }
    m_sink.shadedPolygon(shaded);
}

void PicturePainter::paintLines(const PagePrimitives& primitives)
{
    if (primitives.segments.empty() && primitives.dots.empty() && primitives.signs.empty() && primitives.texts.empty())
        return;
    const VisibleLines visible(primitives.surfaces);
    {
        LineJoiner lines(m_sink);
        for (const PagePrimitives::Segment& segment : primitives.segments) {
            const auto& [begin, end] = segment.ends;
            const auto at = [&begin = begin, &end = end](double part) {
                return PagePoint{begin.x + (end.x - begin.x) * part, begin.y + (end.y - begin.y) * part};
            };
            for (const VisibleLines::Part& part :
                 visible.visibleParts(begin, end, segment.depths[0], segment.depths[1]))
                lines.add(part.from == 0 ? begin : at(part.from), part.to == 1 ? end : at(part.to), segment.style);
        }
    }
    for (const PagePrimitives::Dot& dot : primitives.dots) {
        if (visible.isVisible(dot.middle, dot.depth))
            m_sink.dot(dot.middle, dot.diameter, dot.color);
    }
    for (const PagePrimitives::Sign& sign : primitives.signs) {
        if (!visible.isVisible(sign.middle, sign.depth))
            continue;
        for (const PageRect& part : sign.parts)
            m_sink.polygon({{part.left, part.bottom},
                            {part.right(), part.bottom},
                            {part.right(), part.top()},
                            {part.left, part.top()}},
                           sign.color);
    }
    for (const PagePrimitives::Text& text : primitives.texts) {
        if (visible.isVisible(text.text.place, text.depth))
            m_sink.text(text.text);
    }
}
