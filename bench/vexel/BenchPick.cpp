#include <benchmark/benchmark.h>

#include "BenchShapes.h"

#include <algorithm>
#include <chrono>
#include <cmath>

#include <embree3/rtcore.h>

#include <vexel/pick/PickQuery.h>
#include <vexel/pick/PickScene.h>

namespace vexel {
namespace {

constexpr int Triangles = 1000000;

/** The ray caster alone, over one mesh. */
class BareCaster {
public:
    explicit BareCaster(const RenderGeometryArrays& shape) : m_shape(shape), m_device(rtcNewDevice(nullptr)) {}

    ~BareCaster()
    {
        rtcReleaseScene(m_scene);
        rtcReleaseDevice(m_device);
    }

    BareCaster(const BareCaster&) = delete;
    BareCaster& operator=(const BareCaster&) = delete;

    void build()
    {
        rtcReleaseScene(m_scene);
        m_scene = rtcNewScene(m_device);
        const RTCGeometry mesh = rtcNewGeometry(m_device, RTC_GEOMETRY_TYPE_TRIANGLE);
        rtcSetSharedGeometryBuffer(mesh, RTC_BUFFER_TYPE_VERTEX, 0, RTC_FORMAT_FLOAT3, m_shape.positions.data(), 0, 12,
                                   m_shape.positions.size());
        rtcSetSharedGeometryBuffer(mesh, RTC_BUFFER_TYPE_INDEX, 0, RTC_FORMAT_UINT3, m_shape.indices.data(), 0, 12,
                                   m_shape.indices.size() / 3);
        rtcCommitGeometry(mesh);
        rtcAttachGeometry(m_scene, mesh);
        rtcReleaseGeometry(mesh);
        rtcCommitScene(m_scene);
    }

    unsigned cast(const PickQuery& query) const
    {
        RTCIntersectContext context;
        rtcInitIntersectContext(&context);
        RTCRayHit ray{};
        ray.ray.org_x = query.origin()[0];
        ray.ray.org_y = query.origin()[1];
        ray.ray.org_z = query.origin()[2];
        ray.ray.dir_x = query.direction()[0];
        ray.ray.dir_y = query.direction()[1];
        ray.ray.dir_z = query.direction()[2];
        ray.ray.tfar = query.farthest();
        ray.ray.mask = ~0u;
        ray.hit.geomID = RTC_INVALID_GEOMETRY_ID;
        rtcIntersect1(m_scene, &context, &ray);
        return ray.hit.primID;
    }

private:
    const RenderGeometryArrays& m_shape;
    RTCDevice m_device;
    RTCScene m_scene = nullptr;
};

/** Rays into the middle part of the ball. */
PickQuery rayNumber(int number)
{
    const float x = 0.8f * std::sin(static_cast<float>(number) * 12.9898f);
    const float y = 0.5f * std::sin(static_cast<float>(number) * 78.233f);
    return PickQuery::alongRay(SbVec3f(x * 0.8f, y, 10), SbVec3f(0, 0, -1), 0.001f);
}

template <typename Work>
double secondsOf(Work&& work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

double medianOf(std::vector<double>& values)
{
    std::nth_element(values.begin(), values.begin() + values.size() / 2, values.end());
    return values[values.size() / 2];
}

void report(benchmark::State& state, double baseline, double ours)
{
    state.counters["baseline_us"] = baseline * 1e6;
    state.counters["ours_us"] = ours * 1e6;
    state.counters["ratio"] = ours / baseline;
}

void ClosestHit(benchmark::State& state)
{
    const RenderGeometryArrays arrays = bumpyBall(Triangles);
    BareCaster bare(arrays);
    bare.build();
    PickScene scene;
    PickItem item;
    item.geometry = std::make_shared<const RenderGeometry>(arrays);
    scene.add(item);
    scene.closest(rayNumber(0));
    constexpr int Rays = 1000;
    std::vector<double> times[2];
    for (auto _ : state) {
        times[0].push_back(secondsOf([&] {
                               for (int i = 0; i < Rays; ++i)
                                   benchmark::DoNotOptimize(bare.cast(rayNumber(i)));
                           }) /
                           Rays);
        times[1].push_back(secondsOf([&] {
                               for (int i = 0; i < Rays; ++i)
                                   benchmark::DoNotOptimize(scene.closest(rayNumber(i)));
                           }) /
                           Rays);
    }
    report(state, medianOf(times[0]), medianOf(times[1]));
}

void FirstPick(benchmark::State& state)
{
    const RenderGeometryArrays arrays = bumpyBall(Triangles);
    BareCaster bare(arrays);
    PickItem item;
    item.geometry = std::make_shared<const RenderGeometry>(arrays);
    bare.build();
    std::vector<double> times[2];
    for (auto _ : state) {
        times[0].push_back(secondsOf([&] {
            bare.build();
            benchmark::DoNotOptimize(bare.cast(rayNumber(1)));
        }));
        PickScene scene;
        scene.add(item);
        times[1].push_back(secondsOf([&] { benchmark::DoNotOptimize(scene.closest(rayNumber(1))); }));
    }
    report(state, medianOf(times[0]), medianOf(times[1]));
}

/** One of many items has moved since the last pick; the baseline is the first pick of all of them. */
void PickAfterAMove(benchmark::State& state)
{
    const bool shared = state.range(0);
    const auto cube = std::make_shared<const RenderGeometry>(sharpCube());
    PickScene scene;
    std::vector<PickScene::Item> items;
    for (int i = 0; i < 20000; ++i) {
        PickItem item;
        item.geometry = shared ? cube : std::make_shared<const RenderGeometry>(sharpCube());
        item.matrix.setTranslate(SbVec3f(static_cast<float>(i % 142), static_cast<float>(i / 142), 0) * 3);
        items.push_back(scene.add(item));
    }
    const double first = secondsOf([&] { benchmark::DoNotOptimize(scene.closest(rayNumber(1))); });
    std::vector<double> times;
    int next = 0;
    for (auto _ : state) {
        SbMatrix matrix;
        matrix.setTranslate(SbVec3f(static_cast<float>(next % 50), 2, 1));
        scene.setMatrix(items[next++ * 37 % items.size()], matrix);
        times.push_back(secondsOf([&] { benchmark::DoNotOptimize(scene.closest(rayNumber(1))); }));
    }
    report(state, first, medianOf(times));
}

BENCHMARK(ClosestHit)->Unit(benchmark::kMillisecond);
BENCHMARK(FirstPick)->Unit(benchmark::kMillisecond);
BENCHMARK(PickAfterAMove)->ArgName("shared")->Arg(1)->Arg(0)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace vexel

BENCHMARK_MAIN();
