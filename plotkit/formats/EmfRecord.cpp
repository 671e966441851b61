#include "EmfRecord.h"
#include "EmfDevice.h"

#include <QtEndian>
#include <cstring>

namespace {

constexpr int Size_offset = 4;
constexpr int Header_octets = 108;
constexpr quint32 Signature = 0x464d4520;
constexpr quint32 Version = 0x10000;

template <class Number>
void appendNumber(QByteArray& octets, Number number)
{
    char bytes[sizeof(Number)];
    qToLittleEndian(number, bytes);
    octets.append(bytes, sizeof(Number));
}

/** The maker and the title, each with its end. */
QString description()
{
    return QStringLiteral("Plotkit") + QChar() + QStringLiteral("picture") + QChar() + QChar();
}

int paddedSize(int octets)
{
    return (octets + 3) / 4 * 4;
}

} // namespace

EmfRecord::EmfRecord(EmfType type)
{
    number(quint32(type)).number(0);
}

EmfRecord& EmfRecord::number(quint32 value)
{
    appendNumber(m_bytes, value);
    return *this;
}

EmfRecord& EmfRecord::shortNumber(int value)
{
    appendNumber(m_bytes, qint16(value));
    return *this;
}

EmfRecord& EmfRecord::real(float value)
{
    quint32 bits;
    std::memcpy(&bits, &value, sizeof(bits));
    return number(bits);
}

EmfRecord& EmfRecord::color(const InkColor& color)
{
    return number(quint32(color.blue) << 16 | quint32(color.green) << 8 | color.red);
}

EmfRecord& EmfRecord::text(const QString& text, int octets)
{
    const int end = m_bytes.size() + octets;
    for (const QChar letter : text.left(octets / 2))
        appendNumber(m_bytes, quint16(letter.unicode()));
    m_bytes.append(end - m_bytes.size(), '\0');
    return *this;
}

QByteArray EmfRecord::bytes() const
{
    QByteArray bytes = m_bytes;
    bytes.append(paddedSize(bytes.size()) - bytes.size(), '\0');
    qToLittleEndian(quint32(bytes.size()), bytes.data() + Size_offset);
    return bytes;
}

void EmfRecords::add(const EmfRecord& record)
{
    m_bytes.append(record.bytes());
    ++m_numRecords;
}

void EmfRecords::finish()
{
    constexpr int Record_octets = 20;
    add(EmfRecord(EmfType::EndOfFile).number(0).number(16).number(Record_octets));
}

EmfRecord EmfRecords::header(int width, int height, int frameWidth, int frameHeight, int numObjects) const
{
    const QString text = description();
    const int textOctets = paddedSize(2 * text.size());
    EmfRecord header(EmfType::Header);
    header.number(0).number(0).number(width - 1).number(height - 1);
    header.number(0).number(0).number(frameWidth - 1).number(frameHeight - 1);
    header.number(Signature).number(Version);
    header.number(Header_octets + textOctets + m_bytes.size()).number(m_numRecords + 1);
    header.shortNumber(numObjects + 1).shortNumber(0);
    header.number(text.size()).number(Header_octets).number(0);
    header.number(EmfDevice::Pixels).number(EmfDevice::Pixels);
    header.number(EmfDevice::Millimetres).number(EmfDevice::Millimetres);
    header.number(0).number(0).number(0);
    header.number(EmfDevice::Millimetres * 1000).number(EmfDevice::Millimetres * 1000);
    return header.text(text, textOctets);
}
