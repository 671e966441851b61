#pragma once

#include <cstdint>
#include <vector>

#include <vexel/base/SbVec3i32.h>
#include <vexel/fields/SoSField.h>

/** What the image fields have in common: texels of one to four bytes, row by row from the bottom. */
class VEXEL_API SoImageField : public SoSField {
public:
    /** 1 grey, 2 grey and alpha, 3 red green blue, 4 with alpha; 0 without an image. */
    int getNumComponents() const
    {
        evaluate();
        return m_components;
    }
    /** The texels one after the other, their components in the order of the colour; valid until the next change. */
    const std::vector<std::uint8_t>& getBytes() const
    {
        evaluate();
        return m_bytes;
    }
    bool isEmpty() const { return getBytes().empty(); }

    bool isSame(const SoField& other) const override;
    void copyFrom(const SoField& other) override;
    bool readValue(SoInput& in) override;
    void writeValue(SoOutput& out) const override;

protected:
    SoImageField(SoFieldContainer* container, const char* name, int dimensions)
        : SoSField(container, name), m_dimensions(dimensions)
    {
    }

    SbVec3i32 getStoredSize() const
    {
        evaluate();
        return m_size;
    }
    // Null bytes stand for a black image; sizes that make no image empty the field.
    void setImage(const SbVec3i32& size, int components, const std::uint8_t* bytes);

private:
    SbVec3i32 m_size;
    int m_components = 0;
    int m_dimensions;
    std::vector<std::uint8_t> m_bytes;
};
