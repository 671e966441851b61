#pragma once

#include <plotkit/scene/PagePrimitives.h>
#include <vexel/base/SbVec3f.h>

class PageProjection;
class SoState;
class SoText2;
class SurfaceShader;

/** Lays texts that face the viewer on the page, as texts. */
class TextWriter {
public:
    /** @param pixel  in millimetres */
    TextWriter(const SoState& state, const PageProjection& projection, const SurfaceShader& shader, double pixel)
        : m_state(state), m_projection(projection), m_shader(shader), m_pixel(pixel)
    {
    }

    void write(const SoText2& text, PagePrimitives& primitives) const;

private:
    /** A line without its text. */
    PagePrimitives::Text lineAt(const SbVec3f& place) const;

    const SoState& m_state;
    const PageProjection& m_projection;
    const SurfaceShader& m_shader;
    double m_pixel;
};
