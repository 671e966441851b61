#pragma once

#include <vexel/fields/SoSField.h>

/** A field of one value; the concrete fields derive from it and are instantiated in the library only. */
template <class Value>
class VEXEL_API SoSingleField : public SoSField {
public:
    using ValueType = Value;

    const Value& getValue() const
    {
        evaluate();
        return m_value;
    }
    void setValue(const Value& value)
    {
        m_value = value;
        valueChanged();
    }
    void get(Value& value) const { value = getValue(); }
    using SoSField::get;

    bool isSame(const SoField& other) const override;
    void copyFrom(const SoField& other) override;
    bool readValue(SoInput& in) override;
    void writeValue(SoOutput& out) const override;

protected:
    SoSingleField(SoFieldContainer* container, const char* name, const Value& value)
        : SoSField(container, name), m_value(value)
    {
    }

    Value m_value;
};

/** Declares type and constructors of a concrete field class; SO_FIELD_SOURCE in the family's source completes it. */
#define SO_FIELD(Class, Value)                                                                                         \
public:                                                                                                                \
    Class() : Class(nullptr, nullptr) {}                                                                               \
    ~Class() override                                                                                                  \
    {                                                                                                                  \
        giveLastValue();                                                                                               \
    }                                                                                                                  \
    Class(SoFieldContainer* container, const char* name, const Value& value = Value())                                 \
        : SoSingleField<Value>(container, name, value)                                                                 \
    {                                                                                                                  \
    }                                                                                                                  \
    Class& operator=(const Value& value)                                                                               \
    {                                                                                                                  \
        setValue(value);                                                                                               \
        return *this;                                                                                                  \
    }                                                                                                                  \
    static SoType getClassTypeId();                                                                                    \
    SoType getTypeId() const override;                                                                                 \
                                                                                                                       \
private:
