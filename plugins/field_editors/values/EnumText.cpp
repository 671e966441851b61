#include "EnumText.h"

#include "NumberText.h"

#include <vexel/fields/SoSFEnum.h>

namespace {

std::optional<int> valueOf(const QString& name, const EnumTable& table, Qt::CaseSensitivity letters)
{
    for (int i = 0; i < table.getNum(); ++i) {
        if (name.compare(QLatin1String(table[i].name), letters) == 0)
            return table[i].value;
    }
    return std::nullopt;
}

bool isBegunAsNumber(const QString& text)
{
    const QChar first = text.isEmpty() ? QChar() : text[0];
    return first.isDigit() || first == QLatin1Char('-') || first == QLatin1Char('+');
}

} // namespace

QString EnumText::of(int value, const EnumTable& table)
{
    const char* const name = table.nameOf(value);
    return name ? QString::fromLatin1(name) : QString::number(value);
}

std::optional<int> EnumText::parse(const QString& text, const EnumTable& table, QString& problem)
{
    const QString word = text.trimmed();
    for (const Qt::CaseSensitivity letters : {Qt::CaseSensitive, Qt::CaseInsensitive}) {
        if (const std::optional<int> value = valueOf(word, table, letters))
            return value;
    }
    if (word.isEmpty())
        problem = tr("A name or a number is missing.");
    else if (!isBegunAsNumber(word))
        problem = tr("\"%1\" is no name of this enumeration.").arg(word);
    else if (const std::optional<double> number = NumberText::parse(word, NumberKind::of<int>(), problem))
        return int(*number);
    return std::nullopt;
}

bool EnumText::areSame(const EnumTable& a, const EnumTable& b)
{
    return a.getNum() == b.getNum() && (a.getNum() == 0 || &a[0] == &b[0]);
}
