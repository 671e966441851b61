#include "Stage.h"

#include <cmath>

namespace vexel {

void Stage::SetUp()
{
    std::string error;
    m_context = GLContext::create(error);
    ASSERT_TRUE(m_context) << error;
    m_scope = std::make_unique<GLContext::Scope>(*m_context);
    ASSERT_TRUE(m_scope->isCurrent());
    target = std::make_unique<OffscreenTarget>(Size, Size);
    ASSERT_TRUE(target->isComplete());
    renderer = std::make_unique<Renderer>();
    scene = list.addSegment({});
    view.viewport = {0, 0, Size, Size};
    view.projection[2][2] = -1;
}

void Stage::TearDown()
{
    renderer->release();
    renderer.reset();
    target.reset();
    m_scope.reset();
}

QImage Stage::draw(const RenderOptions& options)
{
    renderer->draw(list, view, options);
    return target->image();
}

QImage Stage::highlight(const std::vector<DrawList::Packet>& packets, const RenderHighlight& mark)
{
    renderer->draw(list, view);
    renderer->drawHighlight(list, packets, mark, view);
    return target->image();
}

RenderPacket Stage::plain(std::shared_ptr<const RenderGeometry> geometry, const SbVec3f& color)
{
    RenderPacket packet;
    packet.geometry = std::move(geometry);
    packet.material.diffuse = color;
    packet.state.style.lit = false;
    return packet;
}

std::shared_ptr<const RenderGeometry> Stage::square(float half, float z)
{
    RenderGeometryArrays arrays;
    for (const float y : {-half, half}) {
        for (const float x : {-half, half}) {
            arrays.positions.emplace_back(x, y, z);
            arrays.normals.emplace_back(0.0f, 0.0f, 1.0f);
            arrays.textureCoordinates.emplace_back(x > 0, y > 0, 0.0f);
        }
    }
    arrays.indices = {0, 1, 3, 0, 3, 2};
    arrays.outline = {0, 1, 1, 3, 3, 2, 2, 0};
    return std::make_shared<const RenderGeometry>(std::move(arrays));
}

std::shared_ptr<const RenderGeometry> Stage::lines(const std::vector<SbVec3f>& points)
{
    RenderGeometryArrays arrays;
    arrays.primitive = RenderPrimitive::Lines;
    arrays.positions = points;
    return std::make_shared<const RenderGeometry>(std::move(arrays));
}

std::shared_ptr<const RenderGeometry> Stage::points(const std::vector<SbVec3f>& points)
{
    RenderGeometryArrays arrays;
    arrays.primitive = RenderPrimitive::Points;
    arrays.positions = points;
    return std::make_shared<const RenderGeometry>(std::move(arrays));
}

SbMatrix Stage::moved(float x, float y, float z)
{
    SbMatrix matrix;
    matrix.setTranslate(SbVec3f(x, y, z));
    return matrix;
}

QColor Stage::at(const QImage& picture, float x, float y)
{
    const auto pixel = [](float place, int size) {
        return std::min(size - 1, static_cast<int>(std::floor((place + 1) / 2 * static_cast<float>(size))));
    };
    return picture.pixelColor(pixel(x, picture.width()), pixel(-y, picture.height()));
}

bool isNear(const QColor& color, int red, int green, int blue, int tolerance)
{
    return std::abs(color.red() - red) <= tolerance && std::abs(color.green() - green) <= tolerance &&
           std::abs(color.blue() - blue) <= tolerance;
}

} // namespace vexel
