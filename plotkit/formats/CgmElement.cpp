#include "CgmElement.h"

#include <QtEndian>
#include <cstring>

namespace {

constexpr int Long_form = 31;

template <class Number>
void appendNumber(QByteArray& octets, Number number)
{
    char bytes[sizeof(Number)];
    qToBigEndian(number, bytes);
    octets.append(bytes, sizeof(Number));
}

} // namespace

CgmElement& CgmElement::integer(int value)
{
    appendNumber(m_parameters, qint16(value));
    return *this;
}

CgmElement& CgmElement::floating(float value)
{
    quint32 bits;
    std::memcpy(&bits, &value, sizeof(bits));
    appendNumber(m_parameters, bits);
    return *this;
}

CgmElement& CgmElement::color(const InkColor& color)
{
    for (const std::uint8_t component : {color.red, color.green, color.blue})
        m_parameters.append(char(component));
    return *this;
}

CgmElement& CgmElement::string(const QByteArray& text)
{
    const QByteArray kept = text.left(254);
    m_parameters.append(char(kept.size())).append(kept);
    return *this;
}

void CgmElement::appendTo(QByteArray& metafile) const
{
    const int length = m_parameters.size();
    Q_ASSERT(length <= Capacity);
    if (length < Long_form) {
        appendNumber(metafile, quint16(int(m_code) | length));
    } else {
        appendNumber(metafile, quint16(int(m_code) | Long_form));
        appendNumber(metafile, quint16(length));
    }
    metafile.append(m_parameters);
    if (length % 2)
        metafile.append('\0');
}
