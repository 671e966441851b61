#pragma once

#include <vexel/fields/detail/ImageField.h>

/** A block of voxels, or none: slices from the front, each as a picture. */
class VEXEL_API SoSFImage3 : public SoImageField {
public:
    SoSFImage3() : SoSFImage3(nullptr, nullptr) {}
    SoSFImage3(SoFieldContainer* container, const char* name) : SoImageField(container, name, 3) {}
    static SoType getClassTypeId();
    SoType getTypeId() const override;

    SbVec3i32 getSize() const { return getStoredSize(); }
    /** The voxels, with their size and number of components. */
    const std::uint8_t* getValue(SbVec3i32& size, int& components) const
    {
        size = getSize();
        components = getNumComponents();
        return getBytes().data();
    }
    /** Copies size[0] * size[1] * size[2] * components bytes; null makes a black block, a size of 0 none. */
    void setValue(const SbVec3i32& size, int components, const std::uint8_t* bytes)
    {
        setImage(size, components, bytes);
    }
};
