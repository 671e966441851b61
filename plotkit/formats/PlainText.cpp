#include "PlainText.h"

QByteArray PlainText::ascii(const QString& text)
{
    QByteArray letters;
    for (const QChar letter : text.normalized(QString::NormalizationForm_KD)) {
        if (letter.isMark() || letter.isLowSurrogate())
            continue;
        const bool isPrintable = letter >= QLatin1Char(' ') && letter <= QLatin1Char('~');
        letters.append(isPrintable ? letter.toLatin1() : '?');
    }
    return letters;
}
