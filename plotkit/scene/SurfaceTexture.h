#pragma once

#include <plotkit/picture/PictureSink.h>
#include <vexel/base/SbMatrix.h>

class SoState;
class SoTexture2;

/** The picture on a surface, as the first texture unit has it; texture functions and volumes are left out. */
class SurfaceTexture {
public:
    explicit SurfaceTexture(const SoState& state);

    explicit operator bool() const { return m_texture != nullptr; }
    /** The lit colour of a point with what the picture makes of it there. */
    PageColor applyTo(const PageColor& lit, const SbVec3f& coordinate) const;

private:
    PageColor texel(int x, int y) const;
    PageColor sample(const SbVec3f& coordinate) const;

    const SoTexture2* m_texture = nullptr;
    SbMatrix m_matrix;
};
