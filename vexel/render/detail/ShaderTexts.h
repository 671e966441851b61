#pragma once

namespace vexel {

/*
 * Parts of the shaders that draw packets. They compare the names in ShaderSource.cpp with numbers from ProgramKey.h.
 * Lines between `$each texture` and `$end` are repeated for every texture, with its number in place of `@`.
 */

extern const char* const CommonShaderText; ///< uniform blocks and what all stages share
extern const char* const
    SurfaceShaderText; ///< what the vertex stage hands on: only what is used, since each costs per triangle
extern const char* const VertexShaderText;
extern const char* const GeometryShaderText; ///< makes wide lines
extern const char* const FragmentShaderText;

} // namespace vexel
