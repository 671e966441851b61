#pragma once

#include <cstdint>
#include <functional>

#include <vexel/base/SbVec3f.h>

class SoState;
struct SoShapeGeometry;

/** Puts together the surfaces of the simple solids, out of grids. */
class SolidBuilder {
public:
    SolidBuilder(const SoState& state, SoShapeGeometry& geometry);

    /** How many faces go round something round, a multiple of 4, as the complexity in force asks for. */
    static int facesAround(const SoState& state);

    struct Corner {
        SbVec3f point;
        SbVec3f normal;
        SbVec3f texture;
    };
    /**
     * Adds a surface over columns x rows faces. Seen from outside, columns run to the right and rows up.
     * @param part  number of the part, which the bindings per part give a material of its own
     * @param at    the corner at (column, row), both from 0 to their number
     */
    void addGrid(int part, int columns, int rows, const std::function<Corner(int column, int row)>& at);
    /** Adds a disc across the y axis that faces up or down. */
    void addDisc(int part, int faces, float radius, float height, bool facesUp);

private:
    void addTriangle(int part, std::uint32_t a, std::uint32_t b, std::uint32_t c);

    SoShapeGeometry& m_geometry;
    bool m_hasPartMaterials;
};
