#pragma once

#include <vexel/fields/detail/EnumTable.h>
#include <vexel/fields/detail/MultiField.h>

extern template class SoMultiField<int>;

/** A list of values of an enumeration. */
class VEXEL_API SoMFEnum : public SoMultiField<int> {
public:
    SoMFEnum() : SoMultiField<int>(nullptr, nullptr) {}
    ~SoMFEnum() override { giveLastValue(); }
    SoMFEnum(SoFieldContainer* container, const char* name, const EnumTable& enums)
        : SoMultiField<int>(container, name), m_enums(enums)
    {
    }
    SoMFEnum(SoFieldContainer* container, const char* name, int value, const EnumTable& enums)
        : SoMultiField<int>(container, name, value), m_enums(enums)
    {
    }
    static SoType getClassTypeId();
    SoType getTypeId() const override;

    const EnumTable& getEnums() const { return m_enums; }

    // Both take the mnemonics over too, where there are none yet.
    void copyFrom(const SoField& other) override;
    void replaceValues(int start, int num, const SoMField& from, int fromStart, int fromNum) override;
    bool readValue(SoInput& in) override;
    void writeValue(SoOutput& out) const override;
    bool read1Value(SoInput& in, int index) override;
    void write1Value(SoOutput& out, int index) const override;

protected:
    virtual bool readElement(SoInput& in, int& value) const;

    EnumTable m_enums;

private:
    void takeEnums(const SoField& other);
};
