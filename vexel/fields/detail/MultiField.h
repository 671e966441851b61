#pragma once

#include <vector>

#include <vexel/fields/SoMField.h>

/** How the values of a list field are stored: as they are, except booleans, which a vector would pack into bits. */
template <class Value>
struct MultiFieldElement {
    using Type = Value;
};
template <>
struct MultiFieldElement<bool> {
    using Type = unsigned char;
};

/** A field of a list of values; the concrete fields derive from it and are instantiated in the library only. */
template <class Value>
class VEXEL_API SoMultiField : public SoMField {
public:
    using ValueType = Value;
    using Element = typename MultiFieldElement<Value>::Type;

    /** The values from @p start on, one after the other in memory, valid until the next change. */
    const Element* getValues(int start = 0) const
    {
        evaluate();
        return m_values.data() + start;
    }
    const Element& operator[](int index) const
    {
        evaluate();
        return m_values[static_cast<std::size_t>(index)];
    }
    /** Index of the first equal value, or -1. */
    int find(const Value& value) const;

    /** Makes @p value the only value. */
    void setValue(const Value& value);
    /** Makes @p num values the whole list. */
    void setValues(const Value* values, int num);
    void setValues(std::vector<Element>&& values);
    /** Overwrites values from @p start on; the list grows as needed. */
    void setValues(int start, int num, const Value* values);
    void set1Value(int index, const Value& value);

    /** Gives write access to all values at once; finishEditing() tells listeners. */
    Element* startEditing()
    {
        evaluate();
        return m_values.data();
    }
    void finishEditing() { valueChanged(SO_TRIGGER_MULTIPLE_VALUES); }

    void setNum(int num) override;
    void deleteValues(int start, int num = -1) override;
    void insertSpace(int start, int num) override;
    void replaceValues(int start, int num, const SoMField& from, int fromStart, int fromNum) override;

    bool isSame(const SoField& other) const override;
    void copyFrom(const SoField& other) override;
    bool readValue(SoInput& in) override;
    void writeValue(SoOutput& out) const override;
    bool read1Value(SoInput& in, int index) override;
    void write1Value(SoOutput& out, int index) const override;
    bool getRawValues(RawValues& raw) const override;
    bool setRawValues(const RawValues& raw) override;

protected:
    SoMultiField(SoFieldContainer* container, const char* name) : SoMField(container, name) {}
    SoMultiField(SoFieldContainer* container, const char* name, const Value& value)
        : SoMField(container, name), m_values(1, static_cast<Element>(value))
    {
    }

    int getStoredNum() const override { return static_cast<int>(m_values.size()); }

    std::vector<Element> m_values;
};

/** Declares type and constructors of a concrete list field class; empty, or with one value, at first. */
#define SO_MFIELD(Class, Value)                                                                                        \
public:                                                                                                                \
    Class() : Class(nullptr, nullptr) {}                                                                               \
    ~Class() override                                                                                                  \
    {                                                                                                                  \
        giveLastValue();                                                                                               \
    }                                                                                                                  \
    Class(SoFieldContainer* container, const char* name) : SoMultiField<Value>(container, name) {}                     \
    Class(SoFieldContainer* container, const char* name, const Value& value)                                           \
        : SoMultiField<Value>(container, name, value)                                                                  \
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
