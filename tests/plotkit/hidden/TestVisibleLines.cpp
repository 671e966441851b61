#include <plotkit/hidden/VisibleLines.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace {

SurfaceTriangle flat(const PagePoint& a, const PagePoint& b, const PagePoint& c, double depth, bool isOpaque = true)
{
    return {{a, b, c}, {depth, depth, depth}, isOpaque};
}

TEST(VisibleLines, areCutWhereATriangleHidesThem)
{
    const std::vector<SurfaceTriangle> triangles{flat({4, -5}, {6, -5}, {5, 50}, 0.2)};
    const auto parts = VisibleLines(triangles).visibleParts({0, -4.9}, {10, -4.9}, 0.5, 0.5);
    ASSERT_EQ(2u, parts.size());
    EXPECT_EQ(0, parts[0].from);
    EXPECT_NEAR(0.4, parts[0].to, 0.01);
    EXPECT_NEAR(0.6, parts[1].from, 0.01);
    EXPECT_EQ(1, parts[1].to);
}

TEST(VisibleLines, inFrontOrBehindTransparentTrianglesAreWhole)
{
    const std::vector<SurfaceTriangle> triangles{flat({0, 0}, {10, 0}, {0, 10}, 0.6),
                                                 flat({0, 0}, {10, 0}, {0, 10}, 0.2, false)};
    const auto parts = VisibleLines(triangles).visibleParts({1, 1}, {3, 3}, 0.5, 0.5);
    ASSERT_EQ(1u, parts.size());
    EXPECT_EQ(0, parts[0].from);
    EXPECT_EQ(1, parts[0].to);
}

TEST(VisibleLines, thatPassThroughATriangleEndThere)
{
    const std::vector<SurfaceTriangle> triangles{flat({0, 0}, {10, 0}, {0, 10}, 0.5)};
    const auto parts = VisibleLines(triangles).visibleParts({1, 1}, {5, 1}, 0.3, 0.7);
    ASSERT_EQ(1u, parts.size());
    EXPECT_NEAR(0.5, parts[0].to, 1e-5);
}

TEST(VisibleLines, agreeWithPointsOnThem)
{
    std::mt19937 random(3);
    std::uniform_real_distribution<double> place(0, 100);
    std::uniform_real_distribution<double> size(-15, 15);
    std::uniform_real_distribution<double> depth(0.1, 0.9);
    std::vector<SurfaceTriangle> triangles;
    for (int i = 0; i < 300; ++i) {
        const PagePoint a{place(random), place(random)};
        const auto near = [&] { return PagePoint{a.x + size(random), a.y + size(random)}; };
        triangles.push_back({{a, near(), near()}, {depth(random), depth(random), depth(random)}, true});
    }
    const VisibleLines visible(triangles);
    int wrong = 0;
    int seen = 0;
    for (int i = 0; i < 200; ++i) {
        const PagePoint a{place(random), place(random)};
        const PagePoint b{place(random), place(random)};
        const double da = depth(random);
        const double db = depth(random);
        const auto parts = visible.visibleParts(a, b, da, db);
        for (double t = 0.005; t < 1; t += 0.01) {
            const PagePoint point{a.x + (b.x - a.x) * t, a.y + (b.y - a.y) * t};
            const bool inPart = std::any_of(parts.begin(), parts.end(),
                                            [t](const auto& part) { return part.from <= t && t <= part.to; });
            wrong += inPart != visible.isVisible(point, da + (db - da) * t);
            seen += inPart;
        }
    }
    EXPECT_LE(wrong, 5); // points on an edge
    EXPECT_GT(seen, 3000);
}

} // namespace
