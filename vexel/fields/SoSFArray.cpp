#include <vexel/fields/SoSFArray.h>

#include <algorithm>
#include <cstring>

#include <vexel/fields/SoEnumEntry.h>
#include <vexel/fields/detail/EnumTable.h>
#include <vexel/io/SoInput.h>
#include <vexel/io/SoOutput.h>

namespace {

constexpr SoEnumEntry ComponentNames[] = {{"SIGNED_BYTE", SoSFArray::SIGNED_BYTE},
                                          {"UNSIGNED_BYTE", SoSFArray::UNSIGNED_BYTE},
                                          {"SIGNED_SHORT", SoSFArray::SIGNED_SHORT},
                                          {"UNSIGNED_SHORT", SoSFArray::UNSIGNED_SHORT},
                                          {"SIGNED_INTEGER", SoSFArray::SIGNED_INTEGER},
                                          {"UNSIGNED_INTEGER", SoSFArray::UNSIGNED_INTEGER},
                                          {"FLOAT", SoSFArray::FLOAT},
                                          {"DOUBLE", SoSFArray::DOUBLE}};

// Calls visit(a value of the type that the enumerator stands for).
template <class Visit>
auto withType(SoSFArray::ComponentType type, Visit&& visit)
{
    switch (type) {
    case SoSFArray::SIGNED_BYTE:
        return visit(std::int8_t());
    case SoSFArray::UNSIGNED_BYTE:
        return visit(std::uint8_t());
    case SoSFArray::SIGNED_SHORT:
        return visit(std::int16_t());
    case SoSFArray::UNSIGNED_SHORT:
        return visit(std::uint16_t());
    case SoSFArray::SIGNED_INTEGER:
        return visit(std::int32_t());
    case SoSFArray::UNSIGNED_INTEGER:
        return visit(std::uint32_t());
    case SoSFArray::DOUBLE:
        return visit(double());
    default:
        return visit(float());
    }
}

} // namespace

SoType SoSFArray::getClassTypeId()
{
    static const SoType type = SoType::createType(SoSField::getClassTypeId(), "SoSFArray");
    return type;
}

const EnumTable& SoSFArray::getComponentTypes()
{
    static const EnumTable table(ComponentNames);
    return table;
}

std::size_t SoSFArray::getComponentSize(ComponentType type)
{
    return withType(type, [](auto zero) { return sizeof zero; });
}

std::size_t SoSFArray::getNumValues() const
{
    evaluate();
    return m_bytes.size() / getComponentSize(m_type);
}

double SoSFArray::getNumber(std::size_t index) const
{
    evaluate();
    return withType(m_type, [&](auto number) {
        std::memcpy(&number, m_bytes.data() + index * sizeof number, sizeof number);
        return static_cast<double>(number);
    });
}

void SoSFArray::setArray(const SbVec3i32& size, ComponentType type, const void* data)
{
    m_size = size;
    m_type = type;
    std::size_t bytes = getComponentSize(type);
    for (int i = 0; i < 3; ++i) {
        m_size[i] = i < m_numDimensions ? std::max(size[i], 0) : 1;
        bytes *= static_cast<std::size_t>(m_size[i]);
    }
    const auto* from = static_cast<const std::uint8_t*>(data);
    if (from)
        m_bytes.assign(from, from + bytes);
    else
        m_bytes.assign(bytes, 0);
    valueChanged();
}

bool SoSFArray::isSame(const SoField& other) const
{
    if (other.getTypeId() != getTypeId())
        return false;
    const auto& array = static_cast<const SoSFArray&>(other);
    return array.getDimensions() == getDimensions() && array.m_type == m_type && array.m_bytes == m_bytes;
}

void SoSFArray::copyFrom(const SoField& other)
{
    if (&other == this || other.getTypeId() != getTypeId())
        return;
    const auto& array = static_cast<const SoSFArray&>(other);
    setArray(array.getDimensions(), array.m_type, array.m_bytes.data());
}

bool SoSFArray::readValue(SoInput& in)
{
    SbVec3i32 size(1, 1, 1);
    double count = 1;
    for (int i = 0; i < m_numDimensions; ++i) {
        if (!in.readNumber(size[i]))
            return false;
        if (size[i] < 0)
            return in.postError("sizes that are not negative");
        count *= size[i];
    }
    int type = m_type;
    if (!getComponentTypes().readEnum(in, type))
        return false;
    if (type < SIGNED_BYTE || type > DOUBLE)
        return in.postError("a component type before the values");
    if (count > static_cast<double>(in.text().end() - in.text().position()))
        return in.postError("as many values as the sizes say");

    std::vector<std::uint8_t> bytes;
    const bool complete = withType(static_cast<ComponentType>(type), [&](auto number) {
        bytes.resize(static_cast<std::size_t>(count) * sizeof number);
        for (std::size_t at = 0; at < bytes.size(); at += sizeof number) {
            if (!in.readNumber(number))
                return false;
            std::memcpy(bytes.data() + at, &number, sizeof number);
            in.updateProgress();
        }
        return true;
    });
    if (complete)
        setArray(size, static_cast<ComponentType>(type), bytes.data());
    return complete;
}

void SoSFArray::writeValue(SoOutput& out) const
{
    const SbVec3i32 size = getDimensions();
    for (int i = 0; i < m_numDimensions; ++i) {
        out.writeNumber(size[i]);
        out.write(' ');
    }
    getComponentTypes().writeEnum(out, m_type);
    withType(m_type, [&](auto number) {
        constexpr std::size_t PerLine = 10;
        const std::size_t count = m_bytes.size() / sizeof number;
        for (std::size_t i = 0; i < count; ++i) {
            if (count > PerLine && i % PerLine == 0)
                out.writeNewLine();
            else
                out.write(' ');
            std::memcpy(&number, m_bytes.data() + i * sizeof number, sizeof number);
            out.writeNumber(number);
            out.flushWhenFull();
        }
        return true;
    });
}
