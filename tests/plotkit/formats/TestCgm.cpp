#include "CgmWalk.h"
#include "PaintedFile.h"

#include <plotkit/SoVectorizeCGMAction.h>

#include <algorithm>

namespace {

std::vector<CgmPart> partsOf(const std::function<void(PictureSink&)>& paint)
{
    SoCGMVectorOutput output;
    return walkCgm(painted(output, paint));
}

std::vector<CgmPart> only(const std::vector<CgmPart>& parts, int elementClass, int id)
{
    std::vector<CgmPart> found;
    std::copy_if(parts.begin(), parts.end(), std::back_inserter(found),
                 [&](const CgmPart& part) { return part.is(elementClass, id); });
    return found;
}

TEST(Cgm, beginsAndEndsEverythingInOrder)
{
    const std::vector<CgmPart> parts = partsOf(paintAll);
    ASSERT_GT(parts.size(), 20u);
    EXPECT_TRUE(parts.front().is(0, 1));
    EXPECT_TRUE(parts[parts.size() - 2].is(0, 5));
    EXPECT_TRUE(parts.back().is(0, 2));
    // Descriptors of the metafile, of the picture, then its body.
    std::vector<int> stages;
    for (const CgmPart& part : parts) {
        const int stage = part.elementClass == 0 ? 0 : std::min(part.elementClass, 3);
        if (stage && (stages.empty() || stages.back() != stage))
            stages.push_back(stage);
    }
    EXPECT_EQ((std::vector<int>{1, 2, 3}), stages);
    EXPECT_EQ(2u, only(parts, 4, 4).size());
}

TEST(Cgm, saysHowLargeItIs)
{
    const std::vector<CgmPart> extent = only(partsOf(paintAll), 2, 6);
    ASSERT_EQ(1u, extent.size());
    EXPECT_EQ(20000, extent[0].number(2));
    EXPECT_EQ(10000, extent[0].number(3));
}

TEST(Cgm, paintsWithinThePicture)
{
    for (const CgmPart& part : partsOf(paintAll)) {
        if (!part.is(4, 1) && !part.is(4, 7))
            continue;
        ASSERT_EQ(0, part.parameters.size() % 4);
        ASSERT_GE(part.numNumbers(), 4);
        for (int i = 0; i < part.numNumbers(); ++i) {
            EXPECT_GE(part.number(i), 1000 - 30);
            EXPECT_LE(part.number(i), i % 2 ? 9030 : 19030);
        }
    }
}

TEST(Cgm, hasColoursAndWidthsBeforeWhatTheyAreFor)
{
    const std::vector<CgmPart> parts = partsOf([](PictureSink& sink) {
        for (int i = 0; i < 2; ++i)
            sink.polygon({{20, 20}, {60, 20}, {60, 40}}, {1, 0.5f, 0, 1});
        sink.polyline({{20, 50}, {60, 60}}, {0.5, {}, {0, 0, 1, 1}});
    });
    const std::vector<CgmPart> fill = only(parts, 5, 23);
    ASSERT_EQ(1u, fill.size()) << "the same colour is said once";
    EXPECT_EQ(QByteArray("\xff\x80\x00", 3), fill[0].parameters);
    EXPECT_EQ(QByteArray("\x00\x00\xff", 3), only(parts, 5, 4).at(0).parameters);
    EXPECT_EQ(50, only(parts, 5, 3).at(0).number(0));
    EXPECT_EQ(2u, only(parts, 4, 7).size());
}

TEST(Cgm, dividesLinesOfManyPointsAtPointsThatBothPartsHave)
{
    constexpr int Num_points = 20000;
    const std::vector<CgmPart> lines = only(partsOf([](PictureSink& sink) {
                                                std::vector<PagePoint> points;
                                                for (int i = 0; i < Num_points; ++i)
                                                    points.push_back({20 + i * 0.005, i % 2 ? 20.0 : 30.0});
                                                sink.polyline(points, {});
                                            }),
                                            4, 1);
    ASSERT_EQ(3u, lines.size());
    int numPoints = 0;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const int last = lines[i].numNumbers() - 2;
        numPoints += lines[i].numNumbers() / 2;
        if (i + 1 < lines.size()) {
            EXPECT_EQ(lines[i].number(last), lines[i + 1].number(0));
            EXPECT_EQ(lines[i].number(last + 1), lines[i + 1].number(1));
        }
    }
    EXPECT_EQ(Num_points + 2, numPoints);
}

TEST(Cgm, cutsDashesIntoStrokes)
{
    const std::vector<CgmPart> lines = only(partsOf([](PictureSink& sink) {
                                                sink.polyline({{20, 20}, {30, 20}, {30, 30}}, {0.5, {4, 1}, {}});
                                            }),
                                            4, 1);
    ASSERT_EQ(4u, lines.size());
    EXPECT_EQ(2000, lines[0].number(0));
    EXPECT_EQ(2400, lines[0].number(2));
    EXPECT_EQ(2500, lines[1].number(0));
    EXPECT_EQ(2900, lines[1].number(2));
    EXPECT_EQ(3000, lines[2].number(0));
    EXPECT_EQ(2400, lines[2].number(3));
}

TEST(Cgm, turnsTextsAndKeepsTheirLetters)
{
    const std::vector<CgmPart> parts = partsOf(paintAll);
    const std::vector<CgmPart> orientations = only(parts, 5, 16);
    ASSERT_EQ(1u, orientations.size()) << "upright text needs none";
    EXPECT_EQ(-1000, orientations[0].number(0));
    EXPECT_EQ(1000, orientations[0].number(3));
    EXPECT_EQ(QByteArray("\5Gru?e"), only(parts, 4, 4).at(0).parameters.mid(6));
}

TEST(Cgm, mixesTransparentColoursWithTheGround)
{
    const auto colour = [](const std::function<void(PictureSink&)>& before) {
        const std::vector<CgmPart> parts = partsOf([&](PictureSink& sink) {
            before(sink);
            sink.polygon({{20, 20}, {60, 20}, {60, 40}}, {1, 0, 0, 0.2f});
        });
        return only(parts, 5, 23).back().parameters;
    };
    EXPECT_EQ(QByteArray("\xff\xcc\xcc", 3), colour([](PictureSink&) {}));
    EXPECT_EQ(QByteArray("\x33\x00\xcc", 3), colour([](PictureSink& sink) {
                  sink.ground({0, 0, 1, 1}, {0, 0, 1, 1});
              }));
}

} // namespace
