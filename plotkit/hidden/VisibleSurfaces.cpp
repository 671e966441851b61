#include "VisibleSurfaces.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>
#include <tuple>

namespace {

constexpr std::size_t Few = 12;
constexpr int Most_divisions = 14;
/** Millimetres below which a part is left out: where surfaces meet at an edge, of those behind such slivers remain. */
constexpr double Least_thickness = 0.02;
/** Triangles in front that are cut out of a whole triangle; behind more of them it is seen in pieces. */
constexpr std::size_t Most_fronts = 24;
/** Square millimetres below which nobody sees a part. */
constexpr double Least_area = 1e-7;

} // namespace

struct VisibleSurfaces::Rect {
    double left, bottom, right, top;

    Rect quarter(int i) const
    {
        const double x = (left + right) / 2;
        const double y = (bottom + top) / 2;
        return {i & 1 ? x : left, i & 2 ? y : bottom, i & 1 ? right : x, i & 2 ? top : y};
    }
    bool touches(const SurfaceTriangle& triangle) const
    {
        if (triangle.right <= left || triangle.left >= right || triangle.top <= bottom || triangle.bottom >= top)
            return false;
        for (std::size_t edge = 0; edge < 3; ++edge) {
            const Linear& inside = triangle.insides[edge];
            // The corner that lies farthest inside.
            if (inside.at({inside.a > 0 ? right : left, inside.b > 0 ? top : bottom}) <= 0)
                return false;
        }
        return true;
    }
    bool isCoveredBy(const SurfaceTriangle& triangle) const
    {
        for (std::size_t edge = 0; edge < 3; ++edge) {
            const Linear& inside = triangle.insides[edge];
            if (inside.at({inside.a > 0 ? left : right, inside.b > 0 ? bottom : top}) < 0)
                return false;
        }
        return true;
    }
    double nearest(const SurfaceTriangle& triangle) const
    {
        const Linear& depth = triangle.depth;
        return std::max(triangle.nearest, depth.at({depth.a > 0 ? left : right, depth.b > 0 ? bottom : top}));
    }
    double farthest(const SurfaceTriangle& triangle) const
    {
        const Linear& depth = triangle.depth;
        return depth.at({depth.a > 0 ? right : left, depth.b > 0 ? top : bottom});
    }
    ConvexPolygon clip(ConvexPolygon polygon) const
    {
        for (const Linear& side :
             {Linear{1, 0, -left}, Linear{-1, 0, right}, Linear{0, 1, -bottom}, Linear{0, -1, top}})
            polygon = polygon.clipped(side);
        return polygon;
    }
};

VisibleSurfaces::VisibleSurfaces(const std::vector<SurfaceTriangle>& triangles) : m_triangles(triangles) {}

bool VisibleSurfaces::find(const PartCB& part, const ProgressCB& progress)
{
    m_progress = progress;
    Rect all{std::numeric_limits<double>::max(), std::numeric_limits<double>::max(),
             std::numeric_limits<double>::lowest(), std::numeric_limits<double>::lowest()};
    Indices indices;
    for (std::size_t i = 0; i < m_triangles.size(); ++i) {
        if (m_triangles[i].polygon().area() <= 0)
            continue;
        indices.push_back(std::uint32_t(i));
        const SurfaceTriangle& each = m_triangles[i];
        all = {std::min(all.left, each.left), std::min(all.bottom, each.bottom), std::max(all.right, each.right),
               std::max(all.top, each.top)};
    }
    if (!indices.empty())
        divide(all, indices, 0, 1);
    if (m_isEnded)
        return false;
    emitParts(part);
    return true;
}

void VisibleSurfaces::divide(const Rect& part, const Indices& triangles, int depth, double share)
{
    if (m_isEnded)
        return;
    std::array<Indices, 4> quarters;
    const auto square = [](const Indices& indices) { return double(indices.size()) * double(indices.size()); };
    double effort = 0;
    for (int i = 0; i < 4 && triangles.size() > Few && depth < Most_divisions; ++i) {
        const Rect quarter = part.quarter(i);
        Indices& inside = quarters[std::size_t(i)];
        std::copy_if(triangles.begin(), triangles.end(), std::back_inserter(inside),
                     [&](std::uint32_t each) { return quarter.touches(m_triangles[each]); });
        dropCovered(quarter, inside);
        effort += square(inside);
    }
    // Each triangle of a part is compared with each other one: where triangles are large there is nothing to gain.
    if (effort == 0 || effort > square(triangles)) {
        cutOut(part, triangles);
        m_done += share;
        m_isEnded = m_progress && !m_progress(m_done);
        return;
    }
    for (int i = 0; i < 4; ++i) {
        divide(part.quarter(i), quarters[std::size_t(i)], depth + 1, share / 4);
        Indices().swap(quarters[std::size_t(i)]);
    }
}

void VisibleSurfaces::dropCovered(const Rect& part, Indices& triangles)
{
    double nearestCover = std::numeric_limits<double>::max();
    std::uint32_t cover = 0;
    for (const std::uint32_t each : triangles) {
        const SurfaceTriangle& triangle = m_triangles[each];
        if (!triangle.isOpaque || !part.isCoveredBy(triangle) || part.farthest(triangle) >= nearestCover)
            continue;
        nearestCover = part.farthest(triangle);
        cover = each;
    }
    if (nearestCover == std::numeric_limits<double>::max())
        return;
    const auto firstHidden = std::stable_partition(triangles.begin(), triangles.end(), [&](std::uint32_t each) {
        return part.nearest(m_triangles[each]) <= nearestCover + Same_depth;
    });
    std::for_each(firstHidden, triangles.end(), [&](std::uint32_t each) { m_hidings.push_back({each, cover}); });
    triangles.erase(firstHidden, triangles.end());
}

void VisibleSurfaces::cutOut(const Rect& part, const Indices& triangles)
{
    Indices front = triangles;
    std::sort(front.begin(), front.end(),
              [this](std::uint32_t a, std::uint32_t b) { return m_triangles[a].nearest < m_triangles[b].nearest; });
    for (const std::uint32_t index : triangles) {
        m_rest.assign(1, part.clip(m_triangles[index].polygon()));
        if (m_rest[0].isEmpty())
            continue;
        for (const std::uint32_t other : front) {
            if (other != index && m_triangles[other].isOpaque && subtract(m_triangles[other], other, index))
                m_hidings.push_back({index, other});
        }
        keepParts(index);
    }
}

bool VisibleSurfaces::subtract(const SurfaceTriangle& front, std::uint32_t frontIndex, std::uint32_t index)
{
    const SurfaceTriangle& back = m_triangles[index];
    if (!front.isNear(back))
        return false;
    const Linear lead = back.depth - front.depth;
    ConvexPolygon cover = front.polygon();
    const auto isSame = [&](const PagePoint& corner) { return std::abs(lead.at(corner)) <= Same_depth; };
    if (!std::all_of(cover.begin(), cover.end(), isSame))
        cover = cover.clipped(lead + -Same_depth);
    else if (frontIndex > index)
        return false; // the one that is drawn first stays
    if (cover.isEmpty())
        return false;
    bool isCut = false;
    m_remaining.clear();
    for (const ConvexPolygon& piece : m_rest)
        isCut = subtractFrom(piece, cover) || isCut;
    if (isCut)
        m_rest.swap(m_remaining);
    return isCut;
}

/** Adds what is left of a piece beside the cover to the remaining ones. */
bool VisibleSurfaces::subtractFrom(const ConvexPolygon& piece, const ConvexPolygon& cover)
{
    const std::size_t before = m_remaining.size();
    ConvexPolygon inside = piece;
    for (std::size_t i = 0; i < cover.size(); ++i) {
        const Linear side = Linear::leftOf(cover[i], cover[i + 1 < cover.size() ? i + 1 : 0]);
        if (side.a == 0 && side.b == 0)
            continue;
        const ConvexPolygon beside = inside.clipped(-side);
        inside = inside.clipped(side);
        if (inside.area() < Least_area) { // they do not meet
            m_remaining.resize(before);
            m_remaining.push_back(piece);
            return false;
        }
        if (beside.area() >= Least_area)
            m_remaining.push_back(beside);
    }
    return true;
}

void VisibleSurfaces::keepParts(std::uint32_t index)
{
    for (const ConvexPolygon& piece : m_rest) {
        m_pieces.push_back({index, std::uint32_t(m_corners.size()), std::uint32_t(piece.size())});
        m_corners.insert(m_corners.end(), piece.begin(), piece.end());
    }
}

void VisibleSurfaces::emitParts(const PartCB& part)
{
    std::stable_sort(m_pieces.begin(), m_pieces.end(),
                     [](const Piece& a, const Piece& b) { return a.triangle < b.triangle; });
    std::sort(m_hidings.begin(), m_hidings.end(), [](const Hiding& a, const Hiding& b) {
        return std::tie(a.hidden, a.front) < std::tie(b.hidden, b.front);
    });
    std::vector<PagePoint> corners;
    std::vector<std::uint32_t> fronts;
    auto hiding = m_hidings.begin();
    for (auto piece = m_pieces.begin(); piece != m_pieces.end();) {
        const std::uint32_t index = piece->triangle;
        const auto next = std::find_if(piece, m_pieces.end(), [&](const Piece& p) { return p.triangle != index; });
        fronts.clear();
        for (; hiding != m_hidings.end() && hiding->hidden <= index; ++hiding) {
            if (hiding->hidden == index && (fronts.empty() || fronts.back() != hiding->front))
                fronts.push_back(hiding->front);
        }
        if (fronts.empty()) { // its pieces together are the whole
            const auto& whole = m_triangles[index].corners;
            corners.assign(whole.begin(), whole.end());
            part(index, corners);
        } else {
            emitCut(index, fronts, &*piece, std::size_t(next - piece), part);
        }
        piece = next;
    }
}

void VisibleSurfaces::emitCut(std::uint32_t index, const std::vector<std::uint32_t>& fronts, const Piece* pieces,
                              std::size_t numPieces, const PartCB& part)
{
    std::vector<PagePoint> corners;
    const auto emitPart = [&](const ConvexPolygon& polygon) {
        if (polygon.thickness() < Least_thickness)
            return;
        corners.assign(polygon.begin(), polygon.end());
        part(index, corners);
    };
    // Cut as a whole, the triangle falls into fewer parts than it has pieces in the parts of the page.
    if (fronts.size() <= Most_fronts) {
        m_rest.assign(1, m_triangles[index].polygon());
        for (const std::uint32_t front : fronts)
            subtract(m_triangles[front], front, index);
        std::for_each(m_rest.begin(), m_rest.end(), emitPart);
        return;
    }
    for (std::size_t i = 0; i < numPieces; ++i) {
        ConvexPolygon polygon;
        for (std::size_t k = 0; k < pieces[i].count; ++k)
            polygon.add(m_corners[pieces[i].first + k]);
        emitPart(polygon);
    }
}
