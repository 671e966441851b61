#pragma once

#include <vexel/fields/SoSFArray.h>

/** A block of numbers, slice by slice. */
class VEXEL_API SoSFArray3D : public SoSFArray {
public:
    SoSFArray3D() : SoSFArray3D(nullptr, nullptr) {}
    SoSFArray3D(SoFieldContainer* container, const char* name) : SoSFArray(container, name, 3) {}
    static SoType getClassTypeId();
    SoType getTypeId() const override;

    SbVec3i32 getSize() const { return getDimensions(); }
    /** Copies size[0] * size[1] * size[2] numbers of the type; null data stand for zeros. */
    void setValue(const SbVec3i32& size, ComponentType type, const void* data) { setArray(size, type, data); }
};
