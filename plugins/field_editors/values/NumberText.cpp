#include "NumberText.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>

namespace {

template <class Number, class... Format>
bool readAll(const QByteArray& text, Number& value, Format... format)
{
    const char* const end = text.constData() + text.size();
    const auto [stop, error] = std::from_chars(text.constData(), end, value, format...);
    return stop == end && error != std::errc::invalid_argument;
}

/** Digits of a number may follow a plus, which from_chars does not read. */
bool readNumber(QByteArray text, double& value)
{
    if (text.size() > 1 && text[0] == '+' && text[1] != '-')
        text.remove(0, 1);
    return readAll(text, value);
}

bool readHexadecimal(const QByteArray& text, double& value)
{
    std::uint32_t bits = 0;
    if (!text.startsWith("0x") && !text.startsWith("0X"))
        return false;
    if (text.size() > 10 || !readAll(text.mid(2), bits, 16))
        return false;
    value = bits;
    return true;
}

} // namespace

QString NumberText::of(double value, const NumberKind& kind)
{
    std::array<char, 64> text{};
    const auto result = kind.isWhole ? std::to_chars(text.data(), text.end(), std::int64_t(value))
                                     : std::to_chars(text.data(), text.end(), float(value));
    return QString::fromLatin1(text.data(), int(result.ptr - text.data()));
}

std::optional<double> NumberText::parse(const QString& text, const NumberKind& kind, QString& problem)
{
    const QByteArray trimmed = text.trimmed().toUtf8();
    double value = 0;
    if (trimmed.isEmpty())
        problem = tr("A number is missing.");
    else if (!(kind.isWhole && readHexadecimal(trimmed, value)) && !readNumber(trimmed, value))
        problem = tr("\"%1\" is not a number.").arg(text.trimmed());
    else if (!std::isfinite(value))
        problem = tr("\"%1\" is not finite.").arg(text.trimmed());
    else if (kind.isWhole && value != std::floor(value))
        problem = tr("\"%1\" is not a whole number.").arg(text.trimmed());
    else if (value < kind.lowest || value > kind.highest)
        problem = tr("%1 is not between %2 and %3.").arg(text.trimmed(), of(kind.lowest, kind), of(kind.highest, kind));
    else
        return value;
    return std::nullopt;
}
