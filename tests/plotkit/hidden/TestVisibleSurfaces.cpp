#include <plotkit/hidden/VisibleSurfaces.h>

#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <random>

namespace {

double areaOf(const std::vector<PagePoint>& corners)
{
    double twice = 0;
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const PagePoint& p = corners[i];
        const PagePoint& q = corners[(i + 1) % corners.size()];
        twice += p.x * q.y - q.x * p.y;
    }
    return twice / 2;
}

bool contains(const std::vector<PagePoint>& corners, const PagePoint& point)
{
    for (std::size_t i = 0; i < corners.size(); ++i) {
        if (Linear::leftOf(corners[i], corners[(i + 1) % corners.size()]).at(point) < 0)
            return false;
    }
    return true;
}

struct Part {
    std::size_t index;
    std::vector<PagePoint> corners;
};

std::vector<Part> partsOf(const std::vector<SurfaceTriangle>& triangles)
{
    std::vector<Part> parts;
    VisibleSurfaces surfaces(triangles);
    EXPECT_TRUE(surfaces.find(
        [&](std::size_t index, const std::vector<PagePoint>& corners) {
            parts.push_back({index, corners});
        },
        nullptr));
    return parts;
}

std::map<std::size_t, double> areasOf(const std::vector<SurfaceTriangle>& triangles)
{
    std::map<std::size_t, double> areas;
    for (const Part& part : partsOf(triangles))
        areas[part.index] += areaOf(part.corners);
    return areas;
}

SurfaceTriangle flat(const PagePoint& a, const PagePoint& b, const PagePoint& c, double depth, bool isOpaque = true)
{
    return {{a, b, c}, {depth, depth, depth}, isOpaque};
}

const SurfaceTriangle Large = flat({0, 0}, {10, 0}, {0, 10}, 0.5);

TEST(VisibleSurfaces, areWholeWhereNothingHidesThem)
{
    const std::vector<Part> parts = partsOf({Large, flat({20, 0}, {30, 0}, {20, 10}, 0.2)});
    ASSERT_EQ(2u, parts.size());
    EXPECT_EQ(3u, parts[0].corners.size());
    EXPECT_EQ(0u, parts[0].index);
    EXPECT_EQ(1u, parts[1].index);
}

TEST(VisibleSurfaces, endWhereANearerOneBegins)
{
    auto areas = areasOf({Large, flat({1, 1}, {3, 1}, {1, 3}, 0.2)});
    EXPECT_NEAR(50 - 2, areas[0], 1e-6);
    EXPECT_NEAR(2, areas[1], 1e-6);
}

TEST(VisibleSurfaces, areNotSeenBehindALargerOne)
{
    auto areas = areasOf({Large, flat({1, 1}, {3, 1}, {1, 3}, 0.8)});
    EXPECT_NEAR(50, areas[0], 1e-6);
    EXPECT_EQ(0, areas[1]);
}

TEST(VisibleSurfaces, areSeenThroughTransparentOnes)
{
    auto areas = areasOf({Large, flat({1, 1}, {3, 1}, {1, 3}, 0.2, false), flat({1, 1}, {3, 1}, {1, 3}, 0.7, false)});
    EXPECT_NEAR(50, areas[0], 1e-6);
    EXPECT_NEAR(2, areas[1], 1e-6);
    EXPECT_EQ(0, areas[2]);
}

TEST(VisibleSurfaces, ofTheSameDepthTheFirstIsSeen)
{
    auto areas = areasOf({Large, flat({1, 1}, {3, 1}, {1, 3}, 0.5)});
    EXPECT_NEAR(50, areas[0], 1e-6);
    EXPECT_EQ(0, areas[1]);
    areas = areasOf({flat({1, 1}, {3, 1}, {1, 3}, 0.5), Large});
    EXPECT_NEAR(2, areas[0], 1e-6);
    EXPECT_NEAR(48, areas[1], 1e-6);
}

TEST(VisibleSurfaces, thatPassThroughEachOtherEndWhereTheyMeet)
{
    // Equal squares' halves; the second comes nearer to the right and passes the first at x = 5.
    const SurfaceTriangle slope({PagePoint{0, 0}, PagePoint{10, 0}, PagePoint{0, 10}}, {0.6, 0.4, 0.6}, true);
    auto areas = areasOf({Large, slope});
    EXPECT_NEAR(50 - 12.5, areas[0], 1e-3);
    EXPECT_NEAR(12.5, areas[1], 1e-3);
}

TEST(VisibleSurfaces, hideEachOtherInACircle)
{
    // Three bars, each in front of the next at one end and behind the one before at the other.
    const auto bar = [](double angle) {
        const double c = std::cos(angle);
        const double s = std::sin(angle);
        const auto turned = [&](double x, double y) { return PagePoint{x * c - y * s, x * s + y * c}; };
        return SurfaceTriangle({turned(-6, -3), turned(8, -3), turned(8, -1)}, {0.2, 0.8, 0.8}, true);
    };
    const std::vector<SurfaceTriangle> bars{bar(0), bar(2.0944), bar(4.1888)};
    auto areas = areasOf(bars);
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_LT(areas[i], 14 - 0.1) << i;
        EXPECT_GT(areas[i], 7) << i;
    }
}

TEST(VisibleSurfaces, ofNoAreaAreLeftOut)
{
    EXPECT_TRUE(partsOf({flat({0, 0}, {5, 5}, {10, 10}, 0.1), flat({1, 1}, {1, 1}, {1, 1}, 0.1)}).empty());
    EXPECT_TRUE(partsOf({}).empty());
}

TEST(VisibleSurfaces, canBeEnded)
{
    const std::vector<SurfaceTriangle> triangles{Large};
    VisibleSurfaces surfaces(triangles);
    bool isTold = false;
    EXPECT_FALSE(surfaces.find([&](auto...) { isTold = true; }, [](double) { return false; }));
    EXPECT_FALSE(isTold);
}

/** What a picture of points shows: the nearest triangle at each. */
TEST(VisibleSurfaces, areThoseThatAPictureShows)
{
    std::mt19937 random(7);
    std::uniform_real_distribution<double> place(0, 100);
    std::uniform_real_distribution<double> size(-12, 12);
    std::uniform_real_distribution<double> depth(0.1, 0.9);
    std::vector<SurfaceTriangle> triangles;
    for (int i = 0; i < 400; ++i) {
        const PagePoint a{place(random), place(random)};
        const auto near = [&] { return PagePoint{a.x + size(random), a.y + size(random)}; };
        triangles.push_back({{a, near(), near()}, {depth(random), depth(random), depth(random)}, true});
    }
    const std::vector<Part> parts = partsOf(triangles);
    int wrong = 0;
    int seen = 0;
    for (int i = 0; i < 4000; ++i) {
        const PagePoint point{place(random), place(random)};
        std::size_t nearest = triangles.size();
        for (std::size_t k = 0; k < triangles.size(); ++k) {
            const auto& corners = triangles[k].corners;
            if (contains({corners.begin(), corners.end()}, point) &&
                (nearest == triangles.size() || triangles[k].depth.at(point) < triangles[nearest].depth.at(point)))
                nearest = k;
        }
        std::vector<std::size_t> found;
        for (const Part& part : parts) {
            if (contains(part.corners, point))
                found.push_back(part.index);
        }
        const bool isRight = nearest == triangles.size() ? found.empty() : found == std::vector<std::size_t>{nearest};
        wrong += !isRight;
        seen += nearest != triangles.size();
    }
    EXPECT_EQ(0, wrong);
    EXPECT_GT(seen, 1000);
}

} // namespace
