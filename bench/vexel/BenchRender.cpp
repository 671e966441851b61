#include <epoxy/gl.h>

#include <benchmark/benchmark.h>

#include "BareDrawing.h"
#include "BenchShapes.h"

#include <cstdlib>
#include <functional>
#include <iostream>
#include <memory>

#include <bench/Compare.h>
#include <vexel/render/DrawList.h>
#include <vexel/render/GLContext.h>
#include <vexel/render/OffscreenTarget.h>
#include <vexel/render/RenderSurroundings.h>
#include <vexel/render/Renderer.h>

namespace vexel {
namespace {

constexpr int Width = 1208;
constexpr int Height = 1024;
constexpr int Objects = 20000;
constexpr int Side = 142; // squared: a little more than the objects

using Instances = std::vector<BareDrawing::Instance>;

/** Places of the objects: a carpet over the picture, in an order that has nothing to do with space. */
Instances carpet(int count)
{
    Instances instances(count);
    for (int i = 0; i < count; ++i) {
        const int cell = static_cast<int>((i * 7919LL) % Objects);
        const float x = -0.98f + 1.96f * static_cast<float>(cell % Side) / Side;
        const float y = -0.98f + 1.96f * static_cast<float>(cell / Side) / Side;
        const float half = 0.006f;
        instances[i] = {{half, 0, 0, x, 0, half, 0, y, 0, 0, half, 0}, {0.3f + 0.5f * (i % 7) / 7, 0.6f, 0.5f, 1}};
    }
    return instances;
}

RenderPacket packetFor(const std::shared_ptr<const RenderGeometry>& shape)
{
    RenderSurroundings::Values values;
    RenderLight lamp;
    lamp.direction = SbVec3f(-0.267f, -0.356f, -0.896f);
    values.lights.push_back(lamp);
    static const auto surroundings = std::make_shared<const RenderSurroundings>(values);
    RenderPacket packet;
    packet.geometry = shape;
    packet.state.surroundings = surroundings;
    return packet;
}

struct Scene {
    DrawList list;
    DrawList::Segment segment = list.addSegment({});
    std::vector<DrawList::Packet> packets;
    RenderView view;
    Renderer renderer;

    Scene()
    {
        view.viewport = {0, 0, Width, Height};
        view.projection[2][2] = -1;
    }

    void addCarpet(const Instances& instances)
    {
        RenderPacket packet = packetFor(std::make_shared<const RenderGeometry>(sharpCube()));
        for (const BareDrawing::Instance& instance : instances) {
            for (int row = 0; row < 3; ++row) {
                for (int column = 0; column < 4; ++column)
                    packet.matrix[column][row] = instance.rows[row * 4 + column];
            }
            packet.material.diffuse = SbVec3f(instance.color[0], instance.color[1], instance.color[2]);
            packets.push_back(list.add(segment, packet));
        }
    }

    void draw() { renderer.draw(list, view); }
};

/** Part of the picture that is not black. */
double coverage(const OffscreenTarget& target)
{
    const QImage picture = target.image();
    qint64 covered = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            covered += (picture.pixel(x, y) & 0xffffff) != 0;
    }
    return static_cast<double>(covered) / (static_cast<double>(Width) * Height);
}

/** Compares two ways to draw the same picture. */
void compare(benchmark::State& state, const OffscreenTarget& target, const std::function<void()>& baseline,
             const std::function<void()>& ours)
{
    glViewport(0, 0, Width, Height); // a context without a surface starts with an empty one
    baseline();
    const double baselineCoverage = coverage(target);
    ours();
    if (baselineCoverage < 0.1 || std::abs(baselineCoverage - coverage(target)) > 0.01) {
        state.SkipWithError("The two do not draw the same picture.");
        return;
    }
    const auto finished = [](const std::function<void()>& draw) {
        return [&draw] {
            draw();
            glFinish();
        };
    };
    compareMedians(state, finished(ours), finished(baseline));
}

void MillionTriangles(benchmark::State& state)
{
    const OffscreenTarget target(Width, Height, static_cast<int>(state.range(0)));
    const BareDrawing bare(bumpyBall(1000000));
    Scene scene;
    scene.list.add(scene.segment, packetFor(std::make_shared<const RenderGeometry>(bumpyBall(1000000))));
    compare(
        state, target, [&] { bare.draw(); }, [&] { scene.draw(); });
    scene.renderer.release();
}

void TwentyThousandObjects(benchmark::State& state)
{
    const OffscreenTarget target(Width, Height);
    const Instances instances = carpet(Objects);
    const BareDrawing bare(sharpCube(), instances);
    Scene scene;
    scene.addCarpet(instances);
    compare(
        state, target, [&] { bare.draw(); }, [&] { scene.draw(); });
    scene.renderer.release();
}

/** The lower tenth of the objects fills the picture; the baseline holds nothing but these. */
void ZoomedToATenth(benchmark::State& state)
{
    const OffscreenTarget target(Width, Height);
    const float edge = -0.98f + 0.196f;
    SbMatrix zoom;
    zoom[1][1] = 10;
    zoom[3][1] = 8.8f;
    Instances seen;
    const Instances all = carpet(Objects);
    for (BareDrawing::Instance instance : all) {
        if (instance.rows[7] > edge)
            continue;
        for (int column = 0; column < 4; ++column)
            instance.rows[4 + column] *= 10;
        instance.rows[7] += 8.8f;
        seen.push_back(instance);
    }
    const BareDrawing bare(sharpCube(), seen);
    Scene scene;
    scene.addCarpet(all);
    scene.view.view = zoom;
    compare(
        state, target, [&] { bare.draw(); },
        [&] {
            // A camera that moves a little each frame: culling is part of the price.
            scene.view.view[3][0] = scene.view.view[3][0] == 0 ? 1e-4f : 0;
            scene.draw();
        });
    scene.renderer.release();
}

void OneChangedPacket(benchmark::State& state)
{
    const OffscreenTarget target(Width, Height);
    Scene scene;
    scene.addCarpet(carpet(Objects));
    int next = 0;
    compare(
        state, target, [&] { scene.draw(); },
        [&] {
            RenderMaterial material;
            material.diffuse = SbVec3f(1, 0, 0);
            const DrawList::Packet packet = scene.packets[next++ * 37 % Objects];
            scene.list.setMaterial(packet, material);
            scene.draw();
        });
    scene.renderer.release();
}

void OneMovedPacket(benchmark::State& state)
{
    const OffscreenTarget target(Width, Height);
    Scene scene;
    scene.addCarpet(carpet(Objects));
    int next = 0;
    compare(
        state, target, [&] { scene.draw(); },
        [&] {
            SbMatrix matrix;
            matrix.setScale(0.01f + 0.001f * static_cast<float>(next % 5));
            scene.list.setMatrix(scene.packets[next++ * 37 % Objects], matrix);
            scene.draw();
        });
    scene.renderer.release();
}

BENCHMARK(MillionTriangles)->ArgName("samples")->Arg(1)->Arg(4)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(TwentyThousandObjects)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(ZoomedToATenth)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(OneChangedPacket)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(OneMovedPacket)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace
} // namespace vexel

int main(int argc, char** argv)
{
    std::string error;
    const auto context = vexel::GLContext::create(error);
    if (!context) {
        std::cerr << error << '\n';
        return 1;
    }
    const vexel::GLContext::Scope scope(*context);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
