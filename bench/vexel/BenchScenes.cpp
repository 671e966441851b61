#include <benchmark/benchmark.h>

#include <charconv>
#include <cstdio>
#include <string>
#include <vector>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <bench/Compare.h>
#include <vexel/actions/SoWriteAction.h>
#include <vexel/io/SoDB.h>
#include <vexel/io/SoInput.h>
#include <vexel/io/SoOutput.h>
#include <vexel/nodes/SoCoordinate3.h>
#include <vexel/nodes/SoCube.h>
#include <vexel/nodes/SoIndexedFaceSet.h>
#include <vexel/nodes/SoMaterial.h>
#include <vexel/nodes/SoSeparator.h>
#include <vexel/nodes/SoTranslation.h>

namespace {

/** A wavy sheet of a million triangles. */
SoSeparator* makeSheet()
{
    constexpr int Side = 708;
    auto* root = new SoSeparator;
    root->ref();
    auto* coordinates = new SoCoordinate3;
    auto* faces = new SoIndexedFaceSet;
    std::vector<SbVec3f> points;
    std::vector<std::int32_t> indices;
    for (int y = 0; y < Side; ++y) {
        for (int x = 0; x < Side; ++x)
            points.emplace_back(float(x) * 0.173f, float(y) * 0.219f, float((x * 31 + y * 17) % 997) * 0.01f);
    }
    for (int y = 0; y + 1 < Side; ++y) {
        for (int x = 0; x + 1 < Side; ++x) {
            const int a = y * Side + x;
            for (const int index : {a, a + 1, a + Side, -1, a + 1, a + Side + 1, a + Side, -1})
                indices.push_back(index);
        }
    }
    coordinates->point.setValues(std::move(points));
    faces->coordIndex.setValues(std::move(indices));
    root->addChild(coordinates);
    root->addChild(faces);
    return root;
}

std::string writeFile(const QTemporaryDir& folder, const char* name, SoNode* root, bool isBinary)
{
    std::string path = folder.filePath(QString::fromLatin1(name)).toStdString();
    SoOutput out;
    out.setBinary(isBinary);
    if (!out.openFile(SbString(path.c_str())))
        std::abort();
    SoWriteAction(&out).apply(root);
    out.closeFile();
    return path;
}

void readScene(const std::string& path)
{
    SoInput in;
    in.openFile(SbString(path.c_str()));
    SoSeparator* root = SoDB::readAll(&in);
    root->ref();
    benchmark::DoNotOptimize(root->getNumChildren());
    root->unref();
}

/** Against reading the numbers of the same file into one vector. */
void ReadAscii(benchmark::State& state)
{
    SoDB::init();
    const QTemporaryDir folder;
    SoSeparator* root = makeSheet();
    const std::string path = writeFile(folder, "sheet.vx", root, false);
    root->unref();
    const double megabytes = double(QFile(QString::fromStdString(path)).size()) / 1e6;
    compare(
        state, [&] { readScene(path); },
        [&] {
            QFile file(QString::fromStdString(path));
            file.open(QIODevice::ReadOnly);
            const auto* at = reinterpret_cast<const char*>(file.map(0, file.size()));
            const char* end = at + file.size();
            std::vector<float> numbers;
            while (at < end) {
                float number = 0;
                const auto result = std::from_chars(at, end, number);
                if (result.ec == std::errc()) {
                    numbers.push_back(number);
                    at = result.ptr;
                } else {
                    ++at;
                }
            }
            benchmark::DoNotOptimize(numbers.data());
        });
    state.counters["MB_per_s"] = megabytes / (state.counters["ours_ms"] / 1e3);
}

/** Against reading the bytes of the same file into a fresh vector. */
void ReadBinary(benchmark::State& state)
{
    SoDB::init();
    const QTemporaryDir folder;
    SoSeparator* root = makeSheet();
    const std::string path = writeFile(folder, "sheet.vx", root, true);
    root->unref();
    compare(
        state, [&] { readScene(path); },
        [&] {
            std::FILE* file = std::fopen(path.c_str(), "rb");
            std::fseek(file, 0, SEEK_END);
            std::vector<char> bytes(std::size_t(std::ftell(file)));
            std::rewind(file);
            if (std::fread(bytes.data(), 1, bytes.size(), file) != bytes.size())
                std::abort();
            benchmark::DoNotOptimize(bytes.data());
            std::fclose(file);
        });
}

/** Against writing the same numbers into a buffer. */
void WriteAscii(benchmark::State& state)
{
    SoDB::init();
    SoSeparator* root = makeSheet();
    auto* coordinates = static_cast<SoCoordinate3*>(root->getChild(0));
    auto* faces = static_cast<SoIndexedFaceSet*>(root->getChild(1));
    compare(
        state,
        [&] {
            SoOutput out;
            SoWriteAction(&out).apply(root);
            benchmark::DoNotOptimize(out.getText().data());
        },
        [&] {
            std::string text;
            char digits[32];
            const auto put = [&](auto number) {
                const auto result = std::to_chars(digits, digits + sizeof digits, number);
                text.append(digits, std::size_t(result.ptr - digits));
                text += ' ';
            };
            for (int i = 0; i < coordinates->point.getNum(); ++i) {
                for (int c = 0; c < 3; ++c)
                    put(coordinates->point[i][c]);
            }
            for (int i = 0; i < faces->coordIndex.getNum(); ++i)
                put(faces->coordIndex[i]);
            benchmark::DoNotOptimize(text.data());
        });
    root->unref();
}

/** 20,000 separate objects: the time alone counts, 0.1 s is the goal. */
void ReadManyObjects(benchmark::State& state)
{
    SoDB::init();
    const QTemporaryDir folder;
    auto* root = new SoSeparator;
    root->ref();
    for (int i = 0; i < 20000; ++i) {
        auto* object = new SoSeparator;
        auto* material = new SoMaterial;
        material->diffuseColor = SbColor(float(i % 7) / 7, float(i % 11) / 11, 0.5f);
        auto* translation = new SoTranslation;
        translation->translation = SbVec3f(float(i % 100), float(i / 100), 0);
        object->addChild(material);
        object->addChild(translation);
        object->addChild(new SoCube);
        root->addChild(object);
    }
    const std::string path = writeFile(folder, "objects.vx", root, false);
    root->unref();
    for (auto _ : state)
        readScene(path);
}

/** The least that a notification can be: listeners in vectors, told by a virtual call. */
class BareListener {
public:
    virtual ~BareListener() = default;
    virtual void notify(int stamp)
    {
        if (stamp == m_stamp)
            return;
        m_stamp = stamp;
        for (BareListener* listener : listeners)
            listener->notify(stamp);
    }

    std::vector<BareListener*> listeners;

private:
    int m_stamp = 0;
};

void NotifyTenLevels(benchmark::State& state)
{
    SoDB::init();
    constexpr int Levels = 10;
    constexpr int Changes = 100000;
    auto* root = new SoSeparator;
    root->ref();
    SoGroup* parent = root;
    for (int i = 0; i < Levels - 1; ++i) {
        auto* next = new SoSeparator;
        parent->addChild(next);
        parent = next;
    }
    auto* cube = new SoCube;
    parent->addChild(cube);
    std::vector<BareListener> chain(Levels + 1);
    for (std::size_t i = 0; i < Levels; ++i)
        chain[i].listeners.push_back(&chain[i + 1]);
    int stamp = 0;
    compare(
        state,
        [&] {
            for (int i = 0; i < Changes; ++i)
                cube->width = float(i);
        },
        [&] {
            for (int i = 0; i < Changes; ++i)
                chain[0].notify(++stamp);
        });
    state.counters["ns_per_change"] = state.counters["ours_ms"] * 1e6 / Changes;
    root->unref();
}

BENCHMARK(ReadAscii)->Iterations(1)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(ReadBinary)->Iterations(1)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(WriteAscii)->Iterations(1)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(ReadManyObjects)->Unit(benchmark::kMillisecond);
BENCHMARK(NotifyTenLevels)->Iterations(1)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
