#include <vexel/nodes/detail/PolygonTessellator.h>

#include <GL/glu.h>

struct PolygonTessellator::Callbacks {
    static void vertex(void* data, void* self)
    {
        static_cast<PolygonTessellator*>(self)->m_triangles.push_back(static_cast<Vertex*>(data)->number);
    }
    // With this one the triangles come one by one, not as strips and fans.
    static void edgeFlag(GLboolean, void*) {}
    static void error(GLenum, void* self) { static_cast<PolygonTessellator*>(self)->m_failed = true; }
    static void combine(GLdouble place[3], void* from[4], GLfloat weights[4], void** made, void* self)
    {
        auto& tessellator = *static_cast<PolygonTessellator*>(self);
        std::uint32_t numbers[4];
        float shares[4];
        for (int i = 0; i < 4; ++i) {
            // NOLINTNEXTLINE(clang-analyzer-core.NullDereference): the first one is always given
            numbers[i] = static_cast<Vertex*>(from[i] ? from[i] : from[0])->number;
            shares[i] = from[i] ? weights[i] : 0;
        }
        const SbVec3f point(static_cast<float>(place[0]), static_cast<float>(place[1]), static_cast<float>(place[2]));
        const std::uint32_t number = tessellator.m_mix(point, numbers, shares);
        tessellator.m_vertices.push_back({{place[0], place[1], place[2]}, number});
        *made = &tessellator.m_vertices.back();
    }
};

namespace {

using AnyCallback = void (*)();

template <class Function>
AnyCallback asCallback(Function* function)
{
    return reinterpret_cast<AnyCallback>(function);
}

} // namespace

PolygonTessellator::PolygonTessellator(Mix mix) : m_tessellator(gluNewTess()), m_mix(std::move(mix))
{
    gluTessCallback(m_tessellator, GLU_TESS_VERTEX_DATA, asCallback(&Callbacks::vertex));
    gluTessCallback(m_tessellator, GLU_TESS_EDGE_FLAG_DATA, asCallback(&Callbacks::edgeFlag));
    gluTessCallback(m_tessellator, GLU_TESS_ERROR_DATA, asCallback(&Callbacks::error));
    gluTessCallback(m_tessellator, GLU_TESS_COMBINE_DATA, asCallback(&Callbacks::combine));
    gluTessProperty(m_tessellator, GLU_TESS_WINDING_RULE, GLU_TESS_WINDING_ODD);
}

PolygonTessellator::~PolygonTessellator()
{
    gluDeleteTess(m_tessellator);
}

void PolygonTessellator::begin(const SbVec3f& normal)
{
    m_vertices.clear();
    m_triangles.clear();
    m_failed = false;
    gluTessNormal(m_tessellator, normal[0], normal[1], normal[2]);
    gluTessBeginPolygon(m_tessellator, this);
}

void PolygonTessellator::addContour(const std::vector<SbVec3f>& points, const std::vector<std::uint32_t>& vertices)
{
    gluTessBeginContour(m_tessellator);
    for (std::size_t i = 0; i < points.size(); ++i) {
        const SbVec3f& point = points[i];
        m_vertices.push_back({{point[0], point[1], point[2]}, vertices[i]});
        gluTessVertex(m_tessellator, m_vertices.back().place, &m_vertices.back());
    }
    gluTessEndContour(m_tessellator);
}

void PolygonTessellator::end(std::vector<std::uint32_t>& triangles)
{
    gluTessEndPolygon(m_tessellator);
    if (m_failed)
        return;
    m_triangles.resize(m_triangles.size() / 3 * 3);
    triangles.insert(triangles.end(), m_triangles.begin(), m_triangles.end());
}
