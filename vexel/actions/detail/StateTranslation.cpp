#include <vexel/actions/detail/StateTranslation.h>

#include <algorithm>
#include <iterator>

#include <vexel/actions/detail/StateColors.h>
#include <vexel/nodes/SoEnvironment.h>
#include <vexel/nodes/SoGradientBackground.h>
#include <vexel/nodes/SoImageBackground.h>
#include <vexel/nodes/SoLightModel.h>
#include <vexel/nodes/SoPolygonOffset.h>
#include <vexel/nodes/SoShape.h>
#include <vexel/nodes/SoShapeHints.h>

namespace vexel {

namespace {

using Depth = RenderStyle::DepthFunction;
using Style = RenderStyle;

// By SoDepthBuffer::Function.
constexpr Depth DepthFunctions[] = {Depth::Less,  Depth::LessEqual,    Depth::Never,   Depth::Always,
                                    Depth::Equal, Depth::GreaterEqual, Depth::Greater, Depth::NotEqual};

struct ImageStyle {
    RenderBackground::Kind kind;
    SbVec2f place;
};

// By SoImageBackground::Style.
const ImageStyle ImageStyles[] = {
    {RenderBackground::Kind::Solid, {}},      {RenderBackground::Kind::Placed, {0.5f, 0.5f}},
    {RenderBackground::Kind::Placed, {0, 0}}, {RenderBackground::Kind::Placed, {0, 1}},
    {RenderBackground::Kind::Placed, {1, 1}}, {RenderBackground::Kind::Placed, {1, 0}},
    {RenderBackground::Kind::Stretched, {}},  {RenderBackground::Kind::Tiled, {}}};

// A field may hold a number that its enumeration does not have; it counts as the first one that it has.
int known(int value, int count)
{
    return value >= 0 && value < count ? value : 0;
}

SbVec4f opaque(const SbColor& color)
{
    return SbVec4f(color[0], color[1], color[2], 1);
}

} // namespace

RenderViewport viewportOf(const SbViewportRegion& region)
{
    const SbVec2s origin = region.getViewportOriginPixels();
    const SbVec2s size = region.getViewportSizePixels();
    return {origin[0], origin[1], size[0], size[1]};
}

RenderStyle styleOf(const SoStateValues& values, const SoShape& shape)
{
    RenderStyle style;
    style.draw = static_cast<Style::Draw>(known(values.drawStyle, int(Style::Draw::Invisible) + 1));
    if (values.transparencyType >= 0)
        style.transparency =
            static_cast<Style::Transparency>(known(values.transparencyType, int(Style::Transparency::SortedPixel) + 1));
    style.lit = values.lightModel != SoLightModel::BASE_COLOR;
    // The backs of a solid's faces are never seen; those of open surfaces are lit as well as their fronts. Only shapes
    // that heed the hints have all their faces the way these say.
    if (shape.getDependencies() & SoShape::ON_SHAPE_HINTS && values.vertexOrdering != SoShapeHints::UNKNOWN_ORDERING &&
        values.shapeType == SoShapeHints::SOLID) {
        style.twoSided = false;
        style.cull = values.vertexOrdering == SoShapeHints::CLOCKWISE ? Style::Cull::Front : Style::Cull::Back;
    }
    style.depthTest = values.depthTest;
    style.depthWrite = values.depthWrite;
    style.depthFunction = DepthFunctions[known(values.depthFunction, int(std::size(DepthFunctions)))];
    style.depthRange[0] = values.depthRange[0];
    style.depthRange[1] = values.depthRange[1];
    style.linePattern = values.linePattern;
    style.linePatternScale = static_cast<std::uint16_t>(std::clamp(values.linePatternScale, 1, 255));
    style.lineWidth = values.lineWidth > 0 ? values.lineWidth : 1;
    style.pointSize = values.pointSize > 0 ? values.pointSize : 1;
    const int presentStyle = 1 << int(style.draw);
    if (values.polygonOffsetOn && (values.polygonOffsetStyles & presentStyle) != 0) {
        style.offsetFactor = values.polygonOffsetFactor;
        style.offsetUnits = values.polygonOffsetUnits;
    }
    return style;
}

RenderMaterial materialOf(const SoStateValues& values)
{
    const auto part = [](std::uint32_t color, int shift) { return static_cast<float>(color >> shift & 255) / 255; };
    RenderMaterial material;
    const std::uint32_t color = stateColor(values, 0);
    material.diffuse = SbVec3f(part(color, 0), part(color, 8), part(color, 16));
    material.transparency = 1 - part(color, 24);
    material.ambient = values.ambientColor.at(0);
    material.specular = values.specularColor.at(0);
    material.emissive = values.emissiveColor.at(0);
    material.shininess = values.shininess.at(0);
    return material;
}

bool dependsOnView(const SoShape& shape, const SoStateValues& values)
{
    if (shape.getDependencies() & SoShape::ON_VIEW)
        return true;
    const auto* environment = static_cast<const SoEnvironment*>(values.environment);
    return environment && environment->fogType.getValue() != SoEnvironment::NONE &&
           environment->fogVisibility.getValue() <= 0;
}

RenderBackground backgroundOf(const SoGradientBackground& node)
{
    RenderBackground background;
    background.kind = RenderBackground::Kind::Gradient;
    const bool swaps = node.swapColors.getValue();
    background.topColor = opaque(swaps ? node.color1.getValue() : node.color0.getValue());
    background.color = opaque(swaps ? node.color0.getValue() : node.color1.getValue());
    return background;
}

RenderBackground backgroundOf(const SoImageBackground& node, std::shared_ptr<const RenderImage> image)
{
    RenderBackground background;
    if (!image)
        return background;
    const ImageStyle& style = ImageStyles[known(node.style.getValue(), int(std::size(ImageStyles)))];
    background.kind = style.kind;
    background.place = style.place;
    background.image = std::move(image);
    return background;
}

} // namespace vexel
