#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include <epoxy/gl.h>

#include <bench/Compare.h>
#include <vexel/actions/SoGLRenderAction.h>
#include <vexel/actions/SoPickedPoint.h>
#include <vexel/actions/SoRayPickAction.h>
#include <vexel/io/SoDB.h>
#include <vexel/nodes/SoCube.h>
#include <vexel/nodes/SoMaterial.h>
#include <vexel/nodes/SoOrthographicCamera.h>
#include <vexel/nodes/SoSeparator.h>
#include <vexel/nodes/SoTranslation.h>
#include <vexel/render/GLContext.h>
#include <vexel/render/OffscreenTarget.h>

namespace {

constexpr int Width = 1208;
constexpr int Height = 1024;
constexpr int Columns = 160;
constexpr int Objects = 20000;

/** Objects with a transform and a material each, all of one shape, in front of a camera. */
class Field {
public:
    Field()
    {
        SoDB::init();
        root->ref();
        auto* camera = new SoOrthographicCamera;
        camera->position = SbVec3f(0, 0, 5);
        camera->height = 2;
        root->addChild(camera);
        auto* cube = new SoCube;
        for (SoSFFloat* side : {&cube->width, &cube->height, &cube->depth})
            side->setValue(1.0f / Columns);
        for (int i = 0; i < Objects; ++i) {
            auto* object = new SoSeparator;
            auto* move = new SoTranslation;
            const float x = static_cast<float>(i % Columns) / Columns * 2 - 1;
            const float y = static_cast<float>(i / Columns) / Columns * 2 - 1;
            move->translation = SbVec3f(x, y, 0);
            moves.push_back(move);
            materials.push_back(new SoMaterial);
            object->addChild(move);
            object->addChild(materials.back());
            object->addChild(cube);
            root->addChild(object);
        }
    }
    ~Field() { root->unref(); }
    Field(const Field&) = delete;
    Field& operator=(const Field&) = delete;

    SoSeparator* root = new SoSeparator;
    std::vector<SoTranslation*> moves;
    std::vector<SoMaterial*> materials;
    SbViewportRegion region{Width, Height};
};

enum Change { Color, Place, Child };

/** A frame after one of the objects was changed, against the same frame unchanged. */
void FrameAfterAChange(benchmark::State& state)
{
    std::string error;
    const auto context = vexel::GLContext::create(error);
    if (!context) {
        state.SkipWithError(error.c_str());
        return;
    }
    const vexel::GLContext::Scope scope(*context);
    const vexel::OffscreenTarget target(Width, Height);
    target.bind();
    Field field;
    SoGLRenderAction action(field.region);
    const auto draw = [&] {
        action.apply(field.root);
        glFinish();
    };
    draw();
    std::size_t next = 0;
    compareMedians(
        state,
        [&] {
            next = (next + 7919) % Objects;
            const float value = static_cast<float>(next) / Objects;
            if (state.range(0) == Color)
                field.materials[next]->diffuseColor = SbColor(value, 1, 0);
            else if (state.range(0) == Place)
                field.moves[next]->translation = SbVec3f(value, value, 0);
            else
                field.root->removeChild(1 + static_cast<int>(next % 1000));
            draw();
        },
        draw);
    action.releaseGraphics();
}

void PickToPath(benchmark::State& state)
{
    Field field;
    SoRayPickAction pick(field.region);
    int next = 0;
    for (auto _ : state) {
        next = (next + 7919) % (Width * Height / 2);
        pick.setPoint(SbVec2s(static_cast<short>(next % Width), static_cast<short>(next / Width)));
        pick.apply(field.root);
        benchmark::DoNotOptimize(pick.getPickedPoint());
    }
}

BENCHMARK(FrameAfterAChange)
    ->ArgName("change")
    ->DenseRange(Color, Child)
    ->Iterations(31)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(PickToPath)->Unit(benchmark::kMicrosecond);

} // namespace

BENCHMARK_MAIN();
