#pragma once

#include <cstdint>
#include <vector>

#include <vexel/base/SbVec3i32.h>
#include <vexel/fields/SoSField.h>

class EnumTable;

/** Base of the fields that hold a block of numbers of one type, the first dimension running fastest. */
class VEXEL_API SoSFArray : public SoSField {
public:
    enum ComponentType {
        SIGNED_BYTE,
        UNSIGNED_BYTE,
        SIGNED_SHORT,
        UNSIGNED_SHORT,
        SIGNED_INTEGER,
        UNSIGNED_INTEGER,
        FLOAT,
        DOUBLE
    };
    static const EnumTable& getComponentTypes();
    /** Bytes of one number. */
    static std::size_t getComponentSize(ComponentType type);

    static SoType getClassTypeId();

    /** Numbers in each dimension; 1 in a dimension that the field does not have. */
    SbVec3i32 getDimensions() const
    {
        evaluate();
        return m_size;
    }
    ComponentType getComponentType() const
    {
        evaluate();
        return m_type;
    }
    std::size_t getNumValues() const;
    /** The numbers as they stand in memory; valid until the next change. */
    const void* getData() const
    {
        evaluate();
        return m_bytes.data();
    }
    /** The number at @p index, which lies below getNumValues(), whatever its type. */
    double getNumber(std::size_t index) const;

    bool isSame(const SoField& other) const override;
    void copyFrom(const SoField& other) override;
    bool readValue(SoInput& in) override;
    void writeValue(SoOutput& out) const override;

protected:
    SoSFArray(SoFieldContainer* container, const char* name, int numDimensions)
        : SoSField(container, name), m_size(0, numDimensions > 1 ? 0 : 1, numDimensions > 2 ? 0 : 1),
          m_numDimensions(numDimensions)
    {
    }

    // Null data stand for zeros; sizes below 0 count as 0.
    void setArray(const SbVec3i32& size, ComponentType type, const void* data);

private:
    SbVec3i32 m_size;
    int m_numDimensions;
    ComponentType m_type = FLOAT;
    std::vector<std::uint8_t> m_bytes;
};
