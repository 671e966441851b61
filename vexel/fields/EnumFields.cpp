#include <vexel/fields/SoMFBitMask.h>
#include <vexel/fields/SoMFEnum.h>
#include <vexel/fields/SoSFBitMask.h>
#include <vexel/fields/SoSFEnum.h>
#include <vexel/fields/detail/FieldClass.h>
#include <vexel/fields/detail/ValueText.h>

SO_FIELD_SOURCE(SoSFEnum, SoSField)
SO_FIELD_SOURCE(SoSFBitMask, SoSFEnum)
SO_FIELD_SOURCE(SoMFEnum, SoMField)
SO_FIELD_SOURCE(SoMFBitMask, SoMFEnum)

void SoSFEnum::setValue(int value)
{
    m_value = value;
    valueChanged();
}

bool SoSFEnum::setValue(const SbName& name)
{
    int value = 0;
    if (!m_enums.find(name, value))
        return false;
    setValue(value);
    return true;
}

bool SoSFEnum::isSame(const SoField& other) const
{
    return other.getTypeId() == getTypeId() && static_cast<const SoSFEnum&>(other).getValue() == getValue();
}

void SoSFEnum::copyFrom(const SoField& other)
{
    if (&other == this || other.getTypeId() != getTypeId())
        return;
    const auto& source = static_cast<const SoSFEnum&>(other);
    if (m_enums.getNum() == 0)
        m_enums = source.m_enums;
    setValue(source.getValue());
}

bool SoSFEnum::readValue(SoInput& in)
{
    int value = m_value;
    if (!m_enums.readEnum(in, value))
        return false;
    setValue(value);
    return true;
}

void SoSFEnum::writeValue(SoOutput& out) const
{
    m_enums.writeEnum(out, getValue());
}

bool SoSFBitMask::readValue(SoInput& in)
{
    int value = m_value;
    if (!m_enums.readMask(in, value))
        return false;
    setValue(value);
    return true;
}

void SoSFBitMask::writeValue(SoOutput& out) const
{
    m_enums.writeMask(out, getValue());
}

void SoMFEnum::takeEnums(const SoField& other)
{
    if (m_enums.getNum() == 0 && other.getTypeId() == getTypeId())
        m_enums = static_cast<const SoMFEnum&>(other).m_enums;
}

void SoMFEnum::copyFrom(const SoField& other)
{
    takeEnums(other);
    SoMultiField<int>::copyFrom(other);
}

void SoMFEnum::replaceValues(int start, int num, const SoMField& from, int fromStart, int fromNum)
{
    takeEnums(from);
    SoMultiField<int>::replaceValues(start, num, from, fromStart, fromNum);
}

bool SoMFEnum::readElement(SoInput& in, int& value) const
{
    return m_enums.readEnum(in, value);
}

bool SoMFBitMask::readElement(SoInput& in, int& value) const
{
    return m_enums.readMask(in, value);
}

bool SoMFEnum::readValue(SoInput& in)
{
    std::vector<int> values;
    const bool complete = readList(in, [&] {
        int value = 0;
        if (!readElement(in, value))
            return false;
        values.push_back(value);
        return true;
    });
    if (complete)
        setValues(std::move(values));
    return complete;
}

bool SoMFEnum::read1Value(SoInput& in, int index)
{
    int value = 0;
    if (!readElement(in, value))
        return false;
    set1Value(index, value);
    return true;
}

void SoMFEnum::writeValue(SoOutput& out) const
{
    writeList(out, getNum(), 4, [&](int i) { write1Value(out, i); });
}

void SoMFEnum::write1Value(SoOutput& out, int index) const
{
    m_enums.writeEnum(out, m_values[static_cast<std::size_t>(index)]);
}

void SoMFBitMask::write1Value(SoOutput& out, int index) const
{
    m_enums.writeMask(out, m_values[static_cast<std::size_t>(index)]);
}
