#include "Components.h"

#include <QCoreApplication>

namespace {

QStringList axisAnd(const QString& last)
{
    return {QStringLiteral("X"), QStringLiteral("Y"), QStringLiteral("Z"), last};
}

} // namespace

QStringList boxNames(int axis)
{
    const QChar letter = QStringLiteral("XYZ")[axis];
    return {QCoreApplication::translate("Components", "%1 min").arg(letter),
            QCoreApplication::translate("Components", "%1 max").arg(letter)};
}

QStringList Components<SbRotation>::names()
{
    return axisAnd(QCoreApplication::translate("Components", "Angle"));
}

double Components<SbRotation>::get(const SbRotation& rotation, int i)
{
    SbVec3f axis;
    float angle = 0;
    rotation.getValue(axis, angle);
    return double(i < 3 ? axis[i] : angle);
}

void Components<SbRotation>::set(SbRotation& rotation, int i, double number)
{
    SbVec3f axis;
    float angle = 0;
    rotation.getValue(axis, angle);
    (i < 3 ? axis[i] : angle) = float(number);
    rotation.setValue(axis, angle);
}

QStringList Components<SbPlane>::names()
{
    return axisAnd(QCoreApplication::translate("Components", "Distance"));
}

double Components<SbPlane>::get(const SbPlane& plane, int i)
{
    return double(i < 3 ? plane.getNormal()[i] : plane.getDistanceFromOrigin());
}

void Components<SbPlane>::set(SbPlane& plane, int i, double number)
{
    SbVec3f normal = plane.getNormal();
    float distance = plane.getDistanceFromOrigin();
    (i < 3 ? normal[i] : distance) = float(number);
    plane = SbPlane(normal, distance);
}

QStringList Components<SbMatrix>::names()
{
    QStringList names;
    for (int i = 0; i < Count; ++i)
        names += QStringLiteral("%1,%2").arg(i / 4 + 1).arg(i % 4 + 1);
    return names;
}
