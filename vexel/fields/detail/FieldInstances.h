#pragma once

#include <algorithm>

#include <vexel/fields/detail/MultiField.h>
#include <vexel/fields/detail/SingleField.h>
#include <vexel/fields/detail/SpliceValues.h>
#include <vexel/fields/detail/ValueText.h>

// The bodies of the field templates; included only where the concrete fields are instantiated.

/** What a value is in memory; no components for one that is more than its numbers. */
template <class Value>
SoField::RawValues rawKind()
{
    SoField::RawValues kind;
    if constexpr (std::is_arithmetic_v<Value>) {
        kind.numComponents = 1;
        kind.bytesPerComponent = sizeof(Value);
        kind.isFloatingPoint = std::is_floating_point_v<Value>;
    } else if constexpr (IsVector<Value>::value) {
        kind.numComponents = Value::Size;
        kind.bytesPerComponent = sizeof(typename Value::Component);
        kind.isFloatingPoint = std::is_floating_point_v<typename Value::Component>;
    } else if constexpr (std::is_same_v<Value, SbRotation> || std::is_same_v<Value, SbMatrix>) {
        kind.numComponents = sizeof(Value) / sizeof(float);
        kind.bytesPerComponent = sizeof(float);
        kind.isFloatingPoint = true;
    }
    return kind;
}

template <class Value>
bool SoSingleField<Value>::isSame(const SoField& other) const
{
    return other.getTypeId() == getTypeId() && static_cast<const SoSingleField&>(other).getValue() == getValue();
}

template <class Value>
void SoSingleField<Value>::copyFrom(const SoField& other)
{
    if (&other != this && other.getTypeId() == getTypeId())
        setValue(static_cast<const SoSingleField&>(other).getValue());
}

template <class Value>
bool SoSingleField<Value>::readValue(SoInput& in)
{
    Value value = m_value;
    if (!readText(in, value))
        return false;
    setValue(value);
    return true;
}

template <class Value>
void SoSingleField<Value>::writeValue(SoOutput& out) const
{
    writeText(out, getValue());
}

template <class Value>
int SoMultiField<Value>::find(const Value& value) const
{
    evaluate();
    const auto found = std::find(m_values.begin(), m_values.end(), static_cast<Element>(value));
    return found == m_values.end() ? -1 : static_cast<int>(found - m_values.begin());
}

template <class Value>
void SoMultiField<Value>::setValue(const Value& value)
{
    m_values.assign(1, static_cast<Element>(value));
    finishEditing();
}

template <class Value>
void SoMultiField<Value>::setValues(const Value* values, int num)
{
    m_values.assign(values, values + num);
    finishEditing();
}

template <class Value>
void SoMultiField<Value>::setValues(std::vector<Element>&& values)
{
    m_values = std::move(values);
    finishEditing();
}

template <class Value>
void SoMultiField<Value>::setValues(int start, int num, const Value* values)
{
    evaluate();
    if (start < 0 || num <= 0)
        return;
    const auto first = static_cast<std::size_t>(start);
    m_values.resize(std::max(m_values.size(), first + static_cast<std::size_t>(num)));
    std::copy_n(values, num, m_values.begin() + start);
    finishEditing();
}

template <class Value>
void SoMultiField<Value>::set1Value(int index, const Value& value)
{
    setValues(index, 1, &value);
}

template <class Value>
void SoMultiField<Value>::setNum(int num)
{
    evaluate();
    m_values.resize(static_cast<std::size_t>(std::max(num, 0)));
    finishEditing();
}

template <class Value>
void SoMultiField<Value>::deleteValues(int start, int num)
{
    const int size = getNum();
    const int first = std::clamp(start, 0, size);
    const int last = num < 0 ? size : std::min(first + num, size);
    if (first >= last)
        return;
    m_values.erase(m_values.begin() + first, m_values.begin() + last);
    finishEditing();
}

template <class Value>
void SoMultiField<Value>::insertSpace(int start, int num)
{
    if (num <= 0)
        return;
    const int first = std::clamp(start, 0, getNum());
    m_values.insert(m_values.begin() + first, static_cast<std::size_t>(num), Element());
    finishEditing();
}

template <class Value>
void SoMultiField<Value>::replaceValues(int start, int num, const SoMField& from, int fromStart, int fromNum)
{
    if (&from == this || from.getTypeId() != getTypeId())
        return;
    evaluate();
    from.evaluate();
    spliceValues(m_values, start, num, static_cast<const SoMultiField&>(from).m_values, fromStart, fromNum);
    finishEditing();
}

template <class Value>
bool SoMultiField<Value>::isSame(const SoField& other) const
{
    if (other.getTypeId() != getTypeId())
        return false;
    evaluate();
    other.evaluate();
    return static_cast<const SoMultiField&>(other).m_values == m_values;
}

template <class Value>
void SoMultiField<Value>::copyFrom(const SoField& other)
{
    if (&other == this || other.getTypeId() != getTypeId())
        return;
    other.evaluate();
    m_values = static_cast<const SoMultiField&>(other).m_values;
    finishEditing();
}

template <class Value>
bool SoMultiField<Value>::readValue(SoInput& in)
{
    std::vector<Element> values;
    const bool complete = readList(in, [&] {
        Value value{};
        if (!readText(in, value))
            return false;
        values.push_back(static_cast<Element>(value));
        return true;
    });
    if (!complete)
        return false;
    values.shrink_to_fit();
    setValues(std::move(values));
    return true;
}

template <class Value>
void SoMultiField<Value>::writeValue(SoOutput& out) const
{
    constexpr int PerLine = std::is_arithmetic_v<Value> ? 10 : 1;
    writeList(out, getNum(), PerLine, [&](int i) { write1Value(out, i); });
}

template <class Value>
bool SoMultiField<Value>::read1Value(SoInput& in, int index)
{
    Value value{};
    if (!readText(in, value))
        return false;
    set1Value(index, value);
    return true;
}

template <class Value>
void SoMultiField<Value>::write1Value(SoOutput& out, int index) const
{
    writeText(out, static_cast<const Value&>(m_values[static_cast<std::size_t>(index)]));
}

template <class Value>
bool SoMultiField<Value>::getRawValues(RawValues& raw) const
{
    raw = rawKind<Value>();
    raw.data = getValues();
    raw.numValues = m_values.size();
    return raw.numComponents > 0;
}

template <class Value>
bool SoMultiField<Value>::setRawValues(const RawValues& raw)
{
    constexpr bool IsPlain = std::is_trivially_copyable_v<Element>;
    const RawValues kind = rawKind<Value>();
    if (!IsPlain || kind.numComponents == 0 || raw.numComponents != kind.numComponents ||
        raw.bytesPerComponent != kind.bytesPerComponent || raw.isFloatingPoint != kind.isFloatingPoint)
        return false;
    if constexpr (IsPlain) {
        const auto* values = static_cast<const Element*>(raw.data);
        setValues(std::vector<Element>(values, values + raw.numValues));
    }
    return true;
}
