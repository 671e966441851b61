#include <bench/Compare.h>
#include <plotkit/SoToU3DAction.h>
#include <vexel/actions/SoAction.h>
#include <vexel/base/SbString.h>
#include <vexel/io/SoDB.h>
#include <vexel/nodes/SoCoordinate3.h>
#include <vexel/nodes/SoIndexedFaceSet.h>
#include <vexel/nodes/SoSeparator.h>
#include <vexel/nodes/SoSphere.h>
#include <vexel/nodes/SoTranslation.h>
#include <vexel/state/SoShapeGeometry.h>

#include <QFile>
#include <QTemporaryDir>

#include <cmath>
#include <cstdlib>

namespace {

/** A wavy sheet of about so many triangles. */
SoSeparator* makeSheet(int numTriangles)
{
    const int side = int(std::sqrt(numTriangles / 2)) + 1;
    auto* root = new SoSeparator;
    root->ref();
    std::vector<SbVec3f> points;
    std::vector<std::int32_t> indices;
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x)
            points.emplace_back(float(x) * 0.173f, float(y) * 0.219f, std::sin(float(x + y) * 0.1f));
    }
    for (int y = 0; y + 1 < side; ++y) {
        for (int x = 0; x + 1 < side; ++x) {
            const int a = y * side + x;
            for (const int index : {a, a + 1, a + side, -1, a + 1, a + side + 1, a + side, -1})
                indices.push_back(index);
        }
    }
    auto* coordinates = new SoCoordinate3;
    auto* faces = new SoIndexedFaceSet;
    coordinates->point.setValues(std::move(points));
    faces->coordIndex.setValues(std::move(indices));
    root->addChild(coordinates);
    root->addChild(faces);
    return root;
}

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
