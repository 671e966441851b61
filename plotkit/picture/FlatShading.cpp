#include "FlatShading.h"

#include <algorithm>
#include <utility>

namespace {

using Corners = std::vector<ShadedCorner>;
using Component = float PageColor::*;

constexpr Component Components[] = {&PageColor::red, &PageColor::green, &PageColor::blue, &PageColor::alpha};
/** Halvings after which a polygon whose colours are no numbers is left as it is. */
constexpr int Most_cuts = 12;
/** The part of a step that those of the ground are: in its wide stripes smaller ones are seen. */
constexpr float Ground_step = 0.125f;

ShadedCorner between(const ShadedCorner& a, const ShadedCorner& b, float part)
{
    ShadedCorner corner;
    corner.point = {a.point.x + (b.point.x - a.point.x) * double(part),
                    a.point.y + (b.point.y - a.point.y) * double(part)};
    for (const Component component : Components)
        corner.color.*component = a.color.*component + (b.color.*component - a.color.*component) * part;
    return corner;
}

struct Spread {
    Component component = Components[0];
    float lowest = 0;
    float highest = 0;

    float width() const { return highest - lowest; }
};

/** The component that changes most. */
Spread widestSpread(const Corners& corners)
{
    Spread widest;
    for (const Component component : Components) {
        const auto [low, high] = std::minmax_element(corners.begin(), corners.end(), [&](const auto& a, const auto& b) {
            return a.color.*component < b.color.*component;
        });
        const Spread spread{component, low->color.*component, high->color.*component};
        if (spread.width() > widest.width())
            widest = spread;
    }
    return widest;
}

/** The part where a component is at most, or at least, a value. */
Corners cut(const Corners& corners, Component component, float value, bool keepsLess)
{
    Corners part;
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const ShadedCorner& a = corners[i];
        const ShadedCorner& b = corners[i + 1 < corners.size() ? i + 1 : 0];
        const float da = a.color.*component - value;
        const float db = b.color.*component - value;
        if (keepsLess ? da <= 0 : da >= 0)
            part.push_back(a);
        if ((da < 0 && db > 0) || (da > 0 && db < 0))
            part.push_back(between(a, b, da / (da - db)));
    }
    return part;
}

void paint(PictureSink& sink, const Corners& corners, float step, int cuts)
{
    if (corners.size() < 3)
        return;
    const Spread spread = widestSpread(corners);
    if (spread.width() > step && cuts > 0) {
        const float middle = (spread.lowest + spread.highest) / 2;
        paint(sink, cut(corners, spread.component, middle, true), step, cuts - 1);
        paint(sink, cut(corners, spread.component, middle, false), step, cuts - 1);
        return;
    }
    std::vector<PagePoint> points;
    PageColor color{0, 0, 0, 0};
    for (const ShadedCorner& corner : corners) {
        points.push_back(corner.point);
        for (const Component component : Components)
            color.*component += corner.color.*component / float(corners.size());
    }
    sink.polygon(points, color);
}

} // namespace

void FlatShading::begin(const PageLayout& page)
{
    m_picture = page.picture;
    m_sink.begin(page);
}

void FlatShading::ground(const PageColor& bottom, const PageColor& top)
{
    paint(m_sink,
          {{{m_picture.left, m_picture.bottom}, bottom},
           {{m_picture.right(), m_picture.bottom}, bottom},
           {{m_picture.right(), m_picture.top()}, top},
           {{m_picture.left, m_picture.top()}, top}},
          m_step * Ground_step, Most_cuts);
}

void FlatShading::shadedPolygon(const std::vector<ShadedCorner>& corners)
{
    paint(m_sink, corners, m_step, Most_cuts);
}
