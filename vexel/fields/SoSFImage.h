#pragma once

#include <vexel/base/SbVec2i32.h>
#include <vexel/fields/detail/ImageField.h>

/** A picture, or none: rows from the bottom, each from left to right. */
class VEXEL_API SoSFImage : public SoImageField {
public:
    SoSFImage() : SoSFImage(nullptr, nullptr) {}
    SoSFImage(SoFieldContainer* container, const char* name) : SoImageField(container, name, 2) {}
    static SoType getClassTypeId();
    SoType getTypeId() const override;

    SbVec2i32 getSize() const { return SbVec2i32(getStoredSize()[0], getStoredSize()[1]); }
    /** The texels, with their size and number of components. */
    const std::uint8_t* getValue(SbVec2i32& size, int& components) const
    {
        size = getSize();
        components = getNumComponents();
        return getBytes().data();
    }
    /** Copies size[0] * size[1] * components bytes; null makes a black picture, a size of 0 none. */
    void setValue(const SbVec2i32& size, int components, const std::uint8_t* bytes)
    {
        setImage(SbVec3i32(size[0], size[1], 1), components, bytes);
    }
};
