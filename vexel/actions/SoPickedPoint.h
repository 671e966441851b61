#pragma once

#include <memory>

#include <vexel/actions/SoDetail.h>
#include <vexel/base/SbMatrix.h>
#include <vexel/base/SbVec3f.h>
#include <vexel/base/SbVec4f.h>

class SoPath;

/** A place where a pick met a shape. Object space is that of the shape. */
class VEXEL_API SoPickedPoint {
public:
    struct Values {
        SbVec3f objectPoint;
        SbVec3f objectNormal;
        SbVec4f textureCoords;
        SbMatrix objectToWorld;
        SbVec3f point; ///< in the world
        int materialIndex = 0;
        std::unique_ptr<SoDetail> detail;
    };

    /** Holds @p path. */
    SoPickedPoint(SoPath* path, Values values);
    ~SoPickedPoint();
    SoPickedPoint(const SoPickedPoint&) = delete;
    SoPickedPoint& operator=(const SoPickedPoint&) = delete;

    /** From the root to the shape. */
    SoPath* getPath() const { return m_path; }
    const SbVec3f& getPoint() const { return m_values.point; }
    /** Unit length, in the world. */
    SbVec3f getNormal() const;
    const SbVec3f& getObjectPoint() const { return m_values.objectPoint; }
    const SbVec3f& getObjectNormal() const { return m_values.objectNormal; }
    const SbVec4f& getTextureCoords() const { return m_values.textureCoords; }
    const SbVec4f& getObjectTextureCoords() const { return m_values.textureCoords; }
    int getMaterialIndex() const { return m_values.materialIndex; }
    const SbMatrix& getObjectToWorld() const { return m_values.objectToWorld; }
    SbMatrix getWorldToObject() const { return m_values.objectToWorld.inverse(); }

    /** A SoFaceDetail, SoLineDetail or SoPointDetail; null where only the box of a shape was met. */
    const SoDetail* getDetail() const { return m_values.detail.get(); }

private:
    SoPath* m_path;
    Values m_values;
};
