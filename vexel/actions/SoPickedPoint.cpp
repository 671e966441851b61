#include <vexel/actions/SoPickedPoint.h>

#include <vexel/base/SoPath.h>

SoPickedPoint::SoPickedPoint(SoPath* path, Values values) : m_path(path), m_values(std::move(values))
{
    m_path->ref();
}

SoPickedPoint::~SoPickedPoint()
{
    m_path->unref();
}

SbVec3f SoPickedPoint::getNormal() const
{
    // Normals stay upright on their surface with the transposed inverse.
    SbVec3f normal;
    m_values.objectToWorld.inverse().transpose().multDirMatrix(m_values.objectNormal, normal);
    normal.normalize();
    return normal;
}
