#include "EmfWalk.h"
#include "PaintedFile.h"

#include <plotkit/SoVectorizeGDIAction.h>

#include <set>

namespace {

constexpr quint32 Polygon = 86;
constexpr quint32 Polyline = 87;
constexpr quint32 Text = 84;
constexpr quint32 Font = 82;

std::vector<EmfPart> partsOf(const std::function<void(PictureSink&)>& paint)
{
    SoGDIVectorOutput output;
    return walkEmf(painted(output, paint));
}

std::vector<EmfPart> only(const std::vector<EmfPart>& parts, quint32 type)
{
    std::vector<EmfPart> found;
    std::copy_if(parts.begin(), parts.end(), std::back_inserter(found),
                 [&](const EmfPart& part) { return part.type == type; });
    return found;
}

TEST(Emf, hasAHeaderThatTellsOfItsRecords)
{
    SoGDIVectorOutput output;
    const QByteArray file = painted(output, paintAll);
    const std::vector<EmfPart> parts = walkEmf(file);
    ASSERT_GT(parts.size(), 20u);
    const EmfPart& header = parts.front();
    EXPECT_EQ(1u, header.type);
    EXPECT_EQ(QByteArray(" EMF"), header.bytes.mid(40, 4));
    EXPECT_EQ(quint32(file.size()), header.number(48));
    EXPECT_EQ(quint32(parts.size()), header.number(52));
    EXPECT_EQ(4, header.shortNumber(56));
    EXPECT_EQ(19999, header.signedNumber(32)) << "width in hundredths of a millimetre";
    EXPECT_EQ(9999, header.signedNumber(36));
    EXPECT_EQ(14u, parts.back().type);
    EXPECT_EQ(20u, parts.back().number(16));
}

TEST(Emf, selectsOnlyObjectsThatExistAndDeletesThemAll)
{
    std::set<quint32> objects;
    for (const EmfPart& part : partsOf(paintAll)) {
        switch (part.type) {
        case 39:
        case 82:
        case 95:
            EXPECT_TRUE(objects.insert(part.number(8)).second) << "made twice";
            break;
        case 37:
            EXPECT_TRUE(part.number(8) >= 0x80000000 || objects.count(part.number(8)));
            break;
        case 40:
            EXPECT_EQ(1u, objects.erase(part.number(8))) << "deleted, but not there";
            break;
        default:
            break;
        }
    }
    EXPECT_TRUE(objects.empty());
}

TEST(Emf, hasPointsWithinTheirBoundsAndThoseInThePicture)
{
    int numShapes = 0;
    for (const EmfPart& part : partsOf(paintAll)) {
        if (part.type != Polygon && part.type != Polyline)
            continue;
        ++numShapes;
        const int numPoints = part.signedNumber(24);
        ASSERT_EQ(28 + 4 * numPoints, part.bytes.size());
        EXPECT_GE(part.signedNumber(8), 970);
        EXPECT_GE(part.signedNumber(12), 970);
        EXPECT_LE(part.signedNumber(16), 19030);
        EXPECT_LE(part.signedNumber(20), 9030);
        for (int i = 0; i < numPoints; ++i) {
            const int x = part.shortNumber(28 + 4 * i);
            const int y = part.shortNumber(30 + 4 * i);
            EXPECT_TRUE(x >= part.signedNumber(8) && x <= part.signedNumber(16));
            EXPECT_TRUE(y >= part.signedNumber(12) && y <= part.signedNumber(20));
        }
    }
    EXPECT_GT(numShapes, 10);
}

TEST(Emf, growsDownwards)
{
    const std::vector<EmfPart> lines = only(partsOf([](PictureSink& sink) {
                                                sink.polyline({{20, 80}, {30, 20}}, {});
                                            }),
                                            Polyline);
    ASSERT_EQ(1u, lines.size());
    EXPECT_EQ(2000, lines[0].shortNumber(28));
    EXPECT_EQ(2000, lines[0].shortNumber(30));
    EXPECT_EQ(3000, lines[0].shortNumber(32));
    EXPECT_EQ(8000, lines[0].shortNumber(34));
}

TEST(Emf, writesTextsWithTheStepsOfTheirLetters)
{
    const std::vector<EmfPart> parts = partsOf(paintAll);
    const std::vector<EmfPart> texts = only(parts, Text);
    ASSERT_EQ(2u, texts.size());
    constexpr int Num_letters = 5;
    ASSERT_EQ(quint32(Num_letters), texts[0].number(44));
    const int letters = texts[0].signedNumber(48);
    EXPECT_EQ(0xfc, texts[0].shortNumber(letters + 4)) << "of all letters";
    const int steps = texts[0].signedNumber(72);
    ASSERT_EQ(texts[0].bytes.size(), steps + 4 * Num_letters);
    int sum = 0;
    for (int i = 0; i < Num_letters; ++i)
        sum += texts[0].signedNumber(steps + 4 * i);
    EXPECT_NEAR(2000, sum, Num_letters) << "as wide as the text says";
    EXPECT_GT(texts[0].signedNumber(steps), texts[0].signedNumber(steps + 4)) << "G is wider than r";
    EXPECT_EQ(0, only(parts, Font).at(0).signedNumber(20));
    EXPECT_EQ(900, only(parts, Font).at(1).signedNumber(20));
    EXPECT_EQ(-400, only(parts, Font).at(0).signedNumber(12));
}

TEST(Emf, dividesLinesOfManyPoints)
{
    const std::vector<EmfPart> lines = only(partsOf([](PictureSink& sink) {
                                                sink.polyline(std::vector<PagePoint>(20000, {20, 20}), {});
                                            }),
                                            Polyline);
    int numPoints = 0;
    for (const EmfPart& line : lines) {
        EXPECT_LE(line.signedNumber(24), 8192);
        numPoints += line.signedNumber(24);
    }
    EXPECT_EQ(20000 + int(lines.size()) - 1, numPoints);
}

} // namespace
