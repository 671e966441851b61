#include <bench/Compare.h>
#include <bench/plotkit/Sheet.h>
#include <plotkit/SoVectorOutput.h>
#include <plotkit/SoVectorizeAction.h>
#include <plotkit/VectorFormat.h>
#include <plotkit/picture/PictureSink.h>
#include <vexel/base/SbString.h>
#include <vexel/io/SoDB.h>

#include <QFileInfo>
#include <QGuiApplication>
#include <QTemporaryDir>

namespace {

/** Takes a picture in and writes nothing. */
class CountingSink : public PictureSink {
public:
    void begin(const PageLayout&) override {}
    void ground(const PageColor&, const PageColor&) override {}
    void polygon(const std::vector<PagePoint>& corners, const PageColor&) override { m_numCorners += corners.size(); }
    void shadedPolygon(const std::vector<ShadedCorner>& corners) override { m_numCorners += corners.size(); }
    void polyline(const std::vector<PagePoint>& points, const LineStyle&) override { m_numCorners += points.size(); }
    void dot(const PagePoint&, double, const PageColor&) override {}
    void text(const PageText&) override {}
    bool end() override
    {
        benchmark::DoNotOptimize(m_numCorners);
        return m_numCorners > 0;
    }

private:
    std::size_t m_numCorners = 0;
};

class CountingOutput : public SoVectorOutput {
public:
    PictureSink& sink() override { return m_sink; }

private:
    CountingSink m_sink;
};

/** Finds out what is seen, which every format needs. */
class CountingAction : public SoVectorizeAction {
public:
    explicit CountingAction(CountingOutput& output) : SoVectorizeAction(output) {}
};

void exportSheet(benchmark::State& state, const char* extension)
{
    SoDB::init();
    constexpr int Num_triangles = 100000;
    SoSeparator* const root = makeSheet(Num_triangles);
    const QTemporaryDir folder;
    const QString name = folder.filePath(QStringLiteral("picture") + extension);
    const auto draw = [&](auto& output, auto& action) {
        const bool isOpen = output.openFile(SbString(name));
        action.apply(root);
        if (!isOpen || !output.closeFile())
            state.SkipWithError("no file");
    };
    const auto ours = [&] {
        const std::unique_ptr<VectorExport> output = VectorFormat::ofFile(extension)->create();
        draw(*output, *output);
    };
    const auto bare = [&] {
        CountingOutput output;
        CountingAction action(output);
        draw(output, action);
    };
    compare(state, ours, bare);
    ours();
    state.counters["megabytes"] = double(QFileInfo(name).size()) / 1e6;
    root->unref();
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "minimal:enable_fonts");
    const QGuiApplication application(argc, argv);
    for (const char* const extension : {".pdf", ".ps", ".cgm", ".emf", ".hpgl"})
        benchmark::RegisterBenchmark((std::string("HundredThousandTriangles/") + (extension + 1)).c_str(), exportSheet,
                                     extension)
            ->Iterations(1)
            ->UseManualTime()
            ->Unit(benchmark::kMillisecond);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
