#include <bench/Compare.h>
#include <bench/plotkit/Sheet.h>
#include <plotkit/SoToU3DAction.h>
#include <vexel/actions/SoAction.h>
#include <vexel/base/SbString.h>
#include <vexel/io/SoDB.h>
#include <vexel/nodes/SoSeparator.h>
#include <vexel/nodes/SoSphere.h>
#include <vexel/nodes/SoTranslation.h>
#include <vexel/state/SoShapeGeometry.h>

#include <QFile>
#include <QTemporaryDir>

#include <cstdlib>

namespace {

/** The same sphere at many places. */
SoSeparator* makeSpheres(int number)
{
    auto* root = new SoSeparator;
    root->ref();
    auto* const sphere = new SoSphere;
    for (int i = 0; i < number; ++i) {
        auto* place = new SoTranslation;
        place->translation = SbVec3f(3, 0, 0);
        root->addChild(place);
        root->addChild(sphere);
    }
    return root;
}

/** The geometry of all shapes, and its numbers in a file as they are. */
class BareExport : public SoAction {
    SO_ACTION(BareExport, SoAction)
public:
    explicit BareExport(const QString& fileName) : m_file(fileName)
    {
        if (!m_file.open(QIODevice::WriteOnly))
            std::abort();
    }

    void visitShape(SoShape& shape) override
    {
        SoShapeGeometry geometry;
        shape.buildGeometry(state(), geometry);
        write(geometry.points);
        write(geometry.normals);
        write(geometry.triangles);
    }

private:
    template <class Value>
    void write(const std::vector<Value>& values)
    {
        m_file.write(reinterpret_cast<const char*>(values.data()), qint64(values.size() * sizeof(Value)));
    }

    QFile m_file;
};

void exportScene(benchmark::State& state, SoSeparator* root, double numTriangles)
{
    const QTemporaryDir folder;
    const QString name = folder.filePath("scene.u3d");
    const auto ours = [&] {
        SoToU3DAction action;
        bool isWritten = action.openFile(SbString(name));
        action.apply(root);
        isWritten = action.closeFile() && isWritten;
        if (!isWritten)
            state.SkipWithError("no file");
    };
    compare(state, ours, [&] { BareExport(folder.filePath("bare")).apply(root); });
    state.counters["bytes_per_triangle"] = double(QFile(name).size()) / numTriangles;
    state.counters["ms_per_100000"] = state.counters["ours_ms"] / numTriangles * 1e5;
    root->unref();
}

void Sheet(benchmark::State& state)
{
    SoDB::init();
    exportScene(state, makeSheet(int(state.range(0))), double(state.range(0)));
}
BENCHMARK(Sheet)
    ->ArgName("triangles")
    ->Arg(10'000)
    ->Arg(100'000)
    ->Arg(1'000'000)
    ->Iterations(1)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

void Spheres(benchmark::State& state)
{
    SoDB::init();
    SoSeparator* const root = makeSpheres(int(state.range(0)));
    SoShapeGeometry geometry;
    SoState defaults;
    static_cast<SoShape*>(root->getChild(1))->buildGeometry(defaults, geometry);
    exportScene(state, root, double(state.range(0)) * double(geometry.getNumTriangles()));
}
BENCHMARK(Spheres)->ArgName("places")->Arg(2'000)->Iterations(1)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
