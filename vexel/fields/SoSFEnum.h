#pragma once

#include <vexel/fields/SoSField.h>
#include <vexel/fields/detail/EnumTable.h>

class SbName;

/** One value of an enumeration. A number without a mnemonic is kept as it is. */
class VEXEL_API SoSFEnum : public SoSField {
public:
    SoSFEnum() : SoSField(nullptr, nullptr) {}
    ~SoSFEnum() override { giveLastValue(); }
    SoSFEnum(SoFieldContainer* container, const char* name, int value, const EnumTable& enums)
        : SoSField(container, name), m_enums(enums), m_value(value)
    {
    }
    SoSFEnum& operator=(int value)
    {
        setValue(value);
        return *this;
    }
    static SoType getClassTypeId();
    SoType getTypeId() const override;

    int getValue() const
    {
        evaluate();
        return m_value;
    }
    void setValue(int value);
    /** Sets the value by its mnemonic; false when there is none of that name. */
    bool setValue(const SbName& name);

    /** The mnemonics that the field knows. */
    const EnumTable& getEnums() const { return m_enums; }

    bool isSame(const SoField& other) const override;
    void copyFrom(const SoField& other) override;
    bool readValue(SoInput& in) override;
    void writeValue(SoOutput& out) const override;

protected:
    EnumTable m_enums;
    int m_value = 0;
};
