#pragma once

#include <vexel/base/SbMatrix.h>
#include <vexel/fields/SoSFRotation.h>
#include <vexel/fields/SoSFVec3f.h>
#include <vexel/nodes/SoTransformation.h>

/** Scales along turned axes, rotates, both about a centre, and then moves. */
class VEXEL_API SoTransform : public SoTransformation {
    SO_NODE(SoTransform, SoTransformation)
public:
    SoSFVec3f translation{this, "translation", SbVec3f(0, 0, 0)};
    SoSFRotation rotation{this, "rotation"};
    SoSFVec3f scaleFactor{this, "scaleFactor", SbVec3f(1, 1, 1)};
    /** Turns the axes that scaleFactor works along. */
    SoSFRotation scaleOrientation{this, "scaleOrientation"};
    /** What rotation and scale leave in place. */
    SoSFVec3f center{this, "center", SbVec3f(0, 0, 0)};

    /** Points the z axis from @p from at @p to. */
    void pointAt(const SbVec3f& from, const SbVec3f& to);
    /** Takes apart a matrix; the centre stays. A last column that is not 0 0 0 1 is left aside. */
    void setMatrix(const SbMatrix& matrix);
    /** Adds a transform that works before this one, seen from the shapes. */
    void multLeft(const SbMatrix& matrix);
    void multRight(const SbMatrix& matrix);
    /** Moves the centre without moving the shapes. */
    void recenter(const SbVec3f& newCenter);

    SbMatrix getMatrix(const SoState& state) const override;

private:
    SbMatrix matrix() const;
};
