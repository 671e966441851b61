#include "VisibleSurfaces.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>

namespace {

constexpr std::size_t Few = 12;
constexpr int Most_divisions = 14;
/** Depths closer than this count as the same: the first triangle is seen then, as in a picture drawn in this order. */
constexpr double Same_depth = 1e-7;
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
    std::array<PagePoint, 4> corners() const
    {
        return {PagePoint{left, bottom}, PagePoint{right, bottom}, PagePoint{right, top}, PagePoint{left, top}};
    }
    bool touches(const SurfaceTriangle& triangle) const
    {
        const auto& [a, b, c] = triangle.corners;
        if (std::max({a.x, b.x, c.x}) <= left || std::min({a.x, b.x, c.x}) >= right ||
            std::max({a.y, b.y, c.y}) <= bottom || std::min({a.y, b.y, c.y}) >= top)
            return false;
        for (int edge = 0; edge < 3; ++edge) {
            const Linear inside = triangle.inside(edge);
            // The corner that lies farthest inside.
            if (inside.at({inside.a > 0 ? right : left, inside.b > 0 ? top : bottom}) <= 0)
                return false;
        }
        return true;
    }
    bool isCoveredBy(const SurfaceTriangle& triangle) const
    {
        for (int edge = 0; edge < 3; ++edge) {
            const Linear inside = triangle.inside(edge);
            if (inside.at({inside.a > 0 ? left : right, inside.b > 0 ? bottom : top}) < 0)
                return false;
        }
        return true;
    }
    double nearest(const SurfaceTriangle& triangle) const
    {
        const Linear& depth = triangle.depth;
        return std::max(triangle.nearest(), depth.at({depth.a > 0 ? left : right, depth.b > 0 ? bottom : top}));
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

VisibleSurfaces::VisibleSurfaces(const std::vector<SurfaceTriangle>& triangles)
    : m_triangles(triangles), m_isCut(triangles.size())
{
}

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
        for (const PagePoint& corner : m_triangles[i].corners) {
            all = {std::min(all.left, corner.x), std::min(all.bottom, corner.y), std::max(all.right, corner.x),
                   std::max(all.top, corner.y)};
        }
    }
    if (!indices.empty())
        divide(all, indices, 0, 1);
    if (m_isEnded)
        return false;
    emitParts(part);
    return true;
}

void VisibleSurfaces::divide(const Rect& part, Indices& triangles, int depth, double share)
{
    if (m_isEnded)
        return;
    dropCovered(part, triangles);
    if (triangles.size() <= Few || depth == Most_divisions) {
        cutOut(part, triangles);
        m_done += share;
        m_isEnded = m_progress && !m_progress(m_done);
        return;
    }
    Indices inside;
    for (int i = 0; i < 4; ++i) {
        const Rect quarter = part.quarter(i);
        inside.clear();
        std::copy_if(triangles.begin(), triangles.end(), std::back_inserter(inside),
                     [&](std::uint32_t each) { return quarter.touches(m_triangles[each]); });
        divide(quarter, inside, depth + 1, share / 4);
    }
}

void VisibleSurfaces::dropCovered(const Rect& part, Indices& triangles)
{
    double nearestCover = std::numeric_limits<double>::max();
    for (const std::uint32_t each : triangles) {
        const SurfaceTriangle& triangle = m_triangles[each];
        if (triangle.isOpaque && part.isCoveredBy(triangle))
            nearestCover = std::min(nearestCover, part.farthest(triangle));
    }
    if (nearestCover == std::numeric_limits<double>::max())
        return;
    const auto firstHidden = std::stable_partition(triangles.begin(), triangles.end(), [&](std::uint32_t each) {
        return part.nearest(m_triangles[each]) <= nearestCover + Same_depth;
    });
    std::for_each(firstHidden, triangles.end(), [this](std::uint32_t each) { m_isCut[each] = true; });
    triangles.erase(firstHidden, triangles.end());
}

void VisibleSurfaces::cutOut(const Rect& part, Indices& triangles)
{
    Indices front = triangles;
    std::sort(front.begin(), front.end(),
              [this](std::uint32_t a, std::uint32_t b) { return m_triangles[a].nearest() < m_triangles[b].nearest(); });
    for (const std::uint32_t index : triangles) {
        m_rest.assign(1, part.clip(m_triangles[index].polygon()));
        if (m_rest[0].isEmpty())
            continue;
        for (const std::uint32_t other : front) {
            if (other != index && m_triangles[other].isOpaque && subtract(m_triangles[other], other, index))
                m_isCut[index] = true;
        }
        keepParts(index);
    }
}

bool VisibleSurfaces::subtract(const SurfaceTriangle& front, std::uint32_t frontIndex, std::uint32_t index)
{
    const SurfaceTriangle& back = m_triangles[index];
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

void VisibleSurfaces::emitParts(const PartCB& part) const
{
    std::vector<const Piece*> inOrder;
    inOrder.reserve(m_pieces.size());
    for (const Piece& piece : m_pieces)
        inOrder.push_back(&piece);
    std::stable_sort(inOrder.begin(), inOrder.end(),
                     [](const Piece* a, const Piece* b) { return a->triangle < b->triangle; });
    std::vector<PagePoint> corners;
    for (auto piece = inOrder.begin(); piece != inOrder.end();) {
        const std::uint32_t index = (*piece)->triangle;
        if (!m_isCut[index]) { // its pieces together are the whole
            const auto& whole = m_triangles[index].corners;
            corners.assign(whole.begin(), whole.end());
            part(index, corners);
        }
        for (; piece != inOrder.end() && (*piece)->triangle == index; ++piece) {
            if (!m_isCut[index])
                continue;
            const auto first = m_corners.begin() + (*piece)->first;
            corners.assign(first, first + (*piece)->count);
            part(index, corners);
        }
    }
}
