#pragma once

#include <cstdint>
#include <vector>

#include <vexel/base/SbVec3f.h>
#include <vexel/nodes/detail/Bindings.h>
#include <vexel/nodes/detail/SlotMap.h>
#include <vexel/nodes/detail/StateCoordinates.h>

class SoIndexedShape;
class SoState;
struct SoShapeGeometry;

/**
 * Makes the vertices of shapes that are given by coordinates: takes point, normal, texture coordinate and material as
 * the bindings say, and shares a vertex between corners that are the same in all of that.
 */
class VertexBuilder {
public:
    /**
     * @param indices   the shape, when it has index lists
     * @param numUses   how many corners there will be, about
     */
    VertexBuilder(const SoState& state, SoShapeGeometry& geometry, const SoIndexedShape* indices, std::size_t numUses);

    const StateCoordinates& coordinates() const { return m_coordinates; }
    /** False when the corners have to be given generated normals. */
    bool hasNormals() const { return m_hasNormals; }

    /** The vertex for a corner whose coordinate exists. */
    std::uint32_t vertex(const ShapeCorner& corner, const ShapePart& part, const SbVec3f* generatedNormal = nullptr);
    /** A new vertex between others, where a face crosses itself. */
    std::uint32_t mix(const SbVec3f& point, const std::uint32_t (&from)[4], const float (&weights)[4]);
    /** To be called last: makes texture coordinates from the extent of the shape where a texture asks for them. */
    void finish();

private:
    std::uint32_t append(const SbVec3f& point, const SbVec3f& normal, const SbVec3f& texture, std::uint32_t material,
                         int coordinate);
    bool isSame(std::uint32_t vertex, const SbVec3f& normal, const SbVec3f& texture, std::uint32_t material) const;
    SbVec3f textureCoordinate(const ShapeCorner& corner, const ShapePart& part) const;

    const SoState& m_state;
    SoShapeGeometry& m_geometry;
    StateCoordinates m_coordinates;
    BindingRule m_materialRule;
    BindingRule m_normalRule;
    BindingRule m_textureRule;
    bool m_hasNormals;
    bool m_hasTexture;
    bool m_hasMaterials;
    // The vertices of a coordinate form a chain: the slot holds the newest, each vertex the one before it.
    SlotMap m_newest;
    std::vector<std::uint32_t> m_previous;
};
