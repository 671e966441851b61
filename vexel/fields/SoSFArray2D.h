#pragma once

#include <vexel/base/SbVec2i32.h>
#include <vexel/fields/SoSFArray.h>

/** A table of numbers, row by row. */
class VEXEL_API SoSFArray2D : public SoSFArray {
public:
    SoSFArray2D() : SoSFArray2D(nullptr, nullptr) {}
    SoSFArray2D(SoFieldContainer* container, const char* name) : SoSFArray(container, name, 2) {}
    static SoType getClassTypeId();
    SoType getTypeId() const override;

    SbVec2i32 getSize() const { return SbVec2i32(getDimensions()[0], getDimensions()[1]); }
    /** Copies size[0] * size[1] numbers of the type; null data stand for zeros. */
    void setValue(const SbVec2i32& size, ComponentType type, const void* data)
    {
        setArray(SbVec3i32(size[0], size[1], 1), type, data);
    }
};
