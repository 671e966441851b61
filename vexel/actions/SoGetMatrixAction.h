#pragma once

#include <vexel/actions/SoAction.h>

/** Computes the matrix that takes the space of a node, or of the tail of a path, to the space of the root. */
class VEXEL_API SoGetMatrixAction : public SoAction {
    SO_ACTION(SoGetMatrixAction, SoAction)
public:
    explicit SoGetMatrixAction(const SbViewportRegion& region);

    /** The matrix that holds behind the node, or behind the tail of the path, the transform of a tail included. */
    const SbMatrix& getMatrix() const { return m_matrix; }
    const SbMatrix& getInverse() const { return m_inverse; }
    /** The same for texture coordinates of the first texture unit. */
    const SbMatrix& getTextureMatrix() const { return m_textureMatrix; }

protected:
    void visitNode(SoNode& node) override;

private:
    SbMatrix m_matrix;
    SbMatrix m_inverse;
    SbMatrix m_textureMatrix;
};
