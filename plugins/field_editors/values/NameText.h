#pragma once

#include <QCoreApplication>

/** What a name may be. */
class NameText {
    Q_DECLARE_TR_FUNCTIONS(NameText)
public:
    /** Why a text that is written as a name would not be read back as the same one; empty: it is. */
    static QString problemOf(const QString& text);
};
