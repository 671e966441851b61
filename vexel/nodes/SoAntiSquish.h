#pragma once

#include <vexel/base/SbMatrix.h>
#include <vexel/fields/SoEnumEntry.h>
#include <vexel/fields/SoSFBool.h>
#include <vexel/fields/SoSFEnum.h>
#include <vexel/nodes/SoTransformation.h>

/** Makes scales that differ along the axes even, as for draggers on squeezed shapes. */
class VEXEL_API SoAntiSquish : public SoTransformation {
    SO_NODE(SoAntiSquish, SoTransformation)
public:
    enum Sizing { X, Y, Z, AVERAGE_DIMENSION, BIGGEST_DIMENSION, SMALLEST_DIMENSION, LONGEST_DIAGONAL };
    static constexpr SoEnumEntry Sizing_names[] = {{"X", X},
                                                   {"Y", Y},
                                                   {"Z", Z},
                                                   {"AVERAGE_DIMENSION", AVERAGE_DIMENSION},
                                                   {"BIGGEST_DIMENSION", BIGGEST_DIMENSION},
                                                   {"SMALLEST_DIMENSION", SMALLEST_DIMENSION},
                                                   {"LONGEST_DIAGONAL", LONGEST_DIAGONAL}};

    /** The even scale that is taken from the scales along the axes. */
    SoSFEnum sizing{this, "sizing", AVERAGE_DIMENSION, Sizing_names};
    /** Computes the matrix for every traversal; otherwise once, until recalc(). */
    SoSFBool recalcAlways{this, "recalcAlways", true};

    void recalc() { m_isKnown = false; }
    SbMatrix getMatrix(const SoState& state) const override;

private:
    float evenScale(const SbVec3f& scale, const SbMatrix& model) const;

    mutable SbMatrix m_matrix;
    mutable bool m_isKnown = false;
};
