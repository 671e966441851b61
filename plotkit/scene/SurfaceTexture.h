#pragma once

#include <plotkit/picture/PictureSink.h>
#include <vexel/base/SbMatrix.h>

class SoState;
class SoTexture2;
class SoTextureCoordinateFunction;

/** The picture on a surface, as the first texture unit has it; volumes are left out. */
class SurfaceTexture {
public:
    explicit SurfaceTexture(const SoState& state);

    explicit operator bool() const { return m_texture != nullptr; }
    /**
     * Where in the picture a point is.
     * @param given   the coordinate that the shape has there
     * @param place   the point in the space of the shape
     * @param normal  unit normal in the world
     */
    SbVec3f coordinate(const SbVec3f& given, const SbVec3f& place, const SbVec3f& normal) const;
    /** The lit colour of a point with what the picture makes of it there. */
    PageColor applyTo(const PageColor& lit, const SbVec3f& coordinate) const;

private:
    PageColor texel(int x, int y) const;
    PageColor sample(const SbVec3f& coordinate) const;

    SbVec3f mirrored(const SbVec3f& place, const SbVec3f& normal) const;

    const SoTexture2* m_texture = nullptr;
    const SoTextureCoordinateFunction* m_function = nullptr;
    SbMatrix m_matrix;
    bool m_isSmooth = true; ///< between texels; false: the nearest one is seen
    SbMatrix m_toView;      ///< from the space of the shape
    SbMatrix m_worldToView;
};
