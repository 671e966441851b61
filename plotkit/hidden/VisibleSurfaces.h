#pragma once

#include <plotkit/hidden/SurfaceTriangle.h>

#include <cstdint>
#include <functional>
#include <vector>

/**
 * Finds what is seen of triangles that hide each other: exactly, also where they pass through one another or hide each
 * other in a circle.
 *
 * The page is divided in four again and again until few triangles are left in a part, of which those in front are cut
 * out of those behind. What lies behind a triangle that covers a whole part is left out at once.
 */
class PLOTKIT_API VisibleSurfaces {
public:
    /** A part of the triangle of that index; the whole triangle where nothing is hidden. Corners counter-clockwise. */
    using PartCB = std::function<void(std::size_t index, const std::vector<PagePoint>& corners)>;
    /** How much is done, from 0 to 1; false ends the work. */
    using ProgressCB = std::function<bool(double part)>;

    /** The triangles are not copied. */
    explicit VisibleSurfaces(const std::vector<SurfaceTriangle>& triangles);

    /** Calls for each part in sight, in the order of the triangles; false when the work was ended. */
    bool find(const PartCB& part, const ProgressCB& progress);

private:
    struct Rect;
    struct Piece {
        std::uint32_t triangle;
        std::uint32_t first; ///< of its corners
        std::uint32_t count;
    };
    struct Hiding {
        std::uint32_t hidden;
        std::uint32_t front;
    };
    using Indices = std::vector<std::uint32_t>;

    void divide(const Rect& part, const Indices& triangles, int depth, double share);
    void dropCovered(const Rect& part, Indices& triangles);
    void cutOut(const Rect& part, const Indices& triangles);
    bool subtract(const SurfaceTriangle& front, std::uint32_t frontIndex, std::uint32_t index);
    bool subtractFrom(const ConvexPolygon& piece, const ConvexPolygon& cover);
    void keepParts(std::uint32_t index);
    void emitParts(const PartCB& part);
    void emitCut(std::uint32_t index, const std::vector<std::uint32_t>& fronts, const Piece* pieces,
                 std::size_t numPieces, const PartCB& part);

    const std::vector<SurfaceTriangle>& m_triangles;
    std::vector<Piece> m_pieces;
    std::vector<PagePoint> m_corners;
    std::vector<Hiding> m_hidings;          ///< which triangles are hidden, at least partly, by which ones
    std::vector<ConvexPolygon> m_rest;      ///< of the triangle at work
    std::vector<ConvexPolygon> m_remaining; ///< what a subtraction leaves of m_rest
    ProgressCB m_progress;
    double m_done = 0;
    bool m_isEnded = false;
};
