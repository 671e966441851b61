#pragma once

#include <QString>

#include <exception>

/** Calls into a plug-in, whose exceptions end here. Answers what was thrown, in words; a null string: nothing. */
template <class Call>
QString exceptionOf(Call&& call)
{
    try {
        call();
        return QString();
    } catch (const std::exception& exception) {
        const QString text = QString::fromUtf8(exception.what());
        return text.isEmpty() ? QStringLiteral("unknown exception") : text;
    } catch (...) {
        return QStringLiteral("unknown exception");
    }
}
