#pragma once

#include <vexel/base/SbVec3f.h>
#include <vexel/base/SbVec4f.h>

/** A point of a surface in the world, with what its colour depends on. */
struct SurfacePoint {
    SbVec3f place;
    SbVec3f normal;
    SbVec3f textureCoordinate;
    SbVec4f base{1, 1, 1, 1}; ///< diffuse colour and alpha

    /** The point at a part of the way to another one, along a straight edge. */
    SurfacePoint towards(const SurfacePoint& other, float part) const
    {
        const auto mix = [part](const auto& a, const auto& b) { return a + (b - a) * part; };
        return {mix(place, other.place), mix(normal, other.normal), mix(textureCoordinate, other.textureCoordinate),
                mix(base, other.base)};
    }
};
