#include "PaintedFile.h"

#include <plotkit/SoVectorizeHPGLAction.h>

#include <QRegularExpression>
#include <set>

namespace {

/** What is written by the program that draws plots: how many commands it read, and which it does not know. */
std::string judged(const QByteArray& plot)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath("plot.hpgl"));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(plot);
    file.close();
    const ProgramRun run =
        runOtherProgram("hp2xx", {"-m", "png", "-t", "-d", "40", "-f", folder.filePath("plot.png"), file.fileName()});
    EXPECT_TRUE(QFile::exists(folder.filePath("plot.png")));
    return run.out + run.err;
}

QByteArray plotOf(SoHPGLVectorOutput::Pens pens, const std::function<void(PictureSink&)>& paint)
{
    SoHPGLVectorOutput output;
    output.setPens(pens);
    return painted(output, paint);
}

std::set<int> pensOf(const QByteArray& plot)
{
    std::set<int> pens;
    auto matches = QRegularExpression("SP(\\d+);").globalMatch(plot);
    while (matches.hasNext())
        pens.insert(matches.next().captured(1).toInt());
    pens.erase(0);
    return pens;
}

TEST(Hpgl, consistsOfCommandsThatAreKnown)
{
    using Output = SoHPGLVectorOutput;
    // The program that judges has no opaque white: TR.
    const std::string palette = judged(plotOf(Output::PALETTE, paintAll));
    EXPECT_NE(std::string::npos, palette.find("TR: ignored")) << palette;
    EXPECT_NE(std::string::npos, palette.find("HPGL command(s) ignored: 1\n")) << palette;
    for (const Output::Pens pens : {Output::CAROUSEL_HATCHED, Output::CAROUSEL_OUTLINES}) {
        const std::string text = judged(plotOf(pens, paintAll));
        EXPECT_NE(std::string::npos, text.find("HPGL command(s) ignored: 0\n")) << text;
    }
}

TEST(Hpgl, reducesManyColoursToThePensThatThereAre)
{
    const QByteArray plot = plotOf(SoHPGLVectorOutput::PALETTE, [](PictureSink& sink) {
        for (int i = 0; i < 4000; ++i) {
            const auto part = [&](int step) { return float(i / step % 16) / 15; };
            sink.polygon({{20, 20}, {30, 20}, {30, 30}}, {part(1), part(16), part(256), 1});
        }
    });
    const std::set<int> pens = pensOf(plot);
    EXPECT_GT(pens.size(), 200u);
    EXPECT_EQ(1, *pens.begin());
    EXPECT_LE(*pens.rbegin(), 255);
    for (const int pen : pens)
        EXPECT_TRUE(plot.contains("PC" + QByteArray::number(pen) + ",")) << pen;
}

TEST(Hpgl, keepsFewColoursAsTheyAre)
{
    const QByteArray plot = plotOf(SoHPGLVectorOutput::PALETTE, [](PictureSink& sink) {
        sink.polygon({{20, 20}, {30, 20}, {30, 30}}, {1, 0.5f, 0, 1});
        sink.polygon({{20, 20}, {30, 20}, {30, 30}}, {0, 0, 1, 1});
        sink.polygon({{20, 20}, {30, 20}, {30, 30}}, {1, 0.5f, 0, 1});
    });
    EXPECT_TRUE(plot.contains(",255,128,0;"));
    EXPECT_TRUE(plot.contains(",0,0,255;"));
    EXPECT_EQ(2u, pensOf(plot).size());
    EXPECT_EQ(3, plot.count("FP;"));
}

TEST(Hpgl, hatchesTheDarkerTheCloser)
{
    const auto spacing = [](float gray) {
        const QByteArray plot = plotOf(SoHPGLVectorOutput::CAROUSEL_HATCHED, [&](PictureSink& sink) {
            sink.polygon({{20, 20}, {30, 20}, {30, 30}}, {gray, gray, gray, 1});
        });
        EXPECT_FALSE(plot.contains("PC"));
        return QRegularExpression("FT3,(\\d+),45;").match(plot).captured(1).toInt();
    };
    EXPECT_GT(spacing(0.8f), spacing(0.5f));
    EXPECT_GT(spacing(0.5f), spacing(0.2f));
    EXPECT_EQ(0, spacing(0)) << "filled";
}

TEST(Hpgl, takesThePensOfACarousel)
{
    const QByteArray plot = plotOf(SoHPGLVectorOutput::CAROUSEL_HATCHED, [](PictureSink& sink) {
        sink.ground({0, 1, 0, 1}, {0, 1, 0, 1});
        sink.polygon({{20, 20}, {30, 20}, {30, 30}}, {1, 0, 0, 1});
        sink.polyline({{20, 50}, {60, 60}}, {0.5, {}, {0, 0, 1, 1}});
        sink.polygon({{20, 20}, {30, 20}, {30, 30}}, {1, 1, 1, 1});
    });
    EXPECT_EQ((std::set<int>{2, 5}), pensOf(plot)) << "neither the ground nor white";
}

TEST(Hpgl, takesThePenOfAColoursHue)
{
    const auto penFor = [](const PageColor& color) {
        return pensOf(plotOf(SoHPGLVectorOutput::CAROUSEL_HATCHED, [&](PictureSink& sink) {
            sink.polygon({{20, 20}, {30, 20}, {30, 30}}, color);
        }));
    };
    EXPECT_EQ(std::set<int>{1}, penFor({0.3f, 0.32f, 0.3f, 1})) << "gray";
    EXPECT_EQ(std::set<int>{2}, penFor({0.4f, 0.05f, 0.02f, 1})) << "dark red";
    EXPECT_EQ(std::set<int>{5}, penFor({0.6f, 0.6f, 0.9f, 1})) << "pale blue";
    EXPECT_EQ(std::set<int>{8}, penFor({0.9f, 0.5f, 0.1f, 1})) << "orange";
}

TEST(Hpgl, drawsOutlinesWithoutFillingThem)
{
    const QByteArray plot = plotOf(SoHPGLVectorOutput::CAROUSEL_OUTLINES, paintAll);
    EXPECT_FALSE(plot.contains("FP"));
    EXPECT_FALSE(plot.contains("PM"));
    EXPECT_TRUE(plot.contains("PD"));
}

TEST(Hpgl, endsLabelsAndTurnsThem)
{
    const QByteArray plot = plotOf(SoHPGLVectorOutput::PALETTE, paintAll);
    EXPECT_TRUE(plot.contains("DI1.0000,0.0000;PU4000,1200;LBGru?e\x03"));
    EXPECT_TRUE(plot.contains("DI0.0000,1.0000;PU4000,1200;LBGru?e\x03"));
}

} // namespace
