#pragma once

#include <string>

#include <vexel/render/detail/ProgramKey.h>

namespace vexel {

/** Text of the shaders of one program. */
struct ShaderSource {
    explicit ShaderSource(const ProgramKey& key);

    std::string vertex;
    std::string geometry; ///< empty when there is none
    std::string fragment;
};

/** Places of the vertex attributes. */
enum VertexAttribute {
    PositionAttribute,
    NormalAttribute,
    ColorAttribute,
    TextureAttribute,
    RowsAttribute,
    MaterialAttribute = RowsAttribute + 3,
    SignAttribute
};

/** Binding points of the uniform blocks, and texture units. */
enum UniformBinding { FrameBinding, SurroundingsBinding };
enum TextureUnit { ImageUnit, LayerDepthUnit = ProgramKey::MaxTextures, OpaqueDepthUnit };

} // namespace vexel
