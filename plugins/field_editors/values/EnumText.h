#pragma once

#include <QCoreApplication>
#include <optional>

class EnumTable;

/** Values of an enumeration as the user reads and types them. */
class EnumText {
    Q_DECLARE_TR_FUNCTIONS(EnumText)
public:
    /** The first mnemonic of a value, or the number. */
    static QString of(int value, const EnumTable& table);
    /** The value of a mnemonic, in small letters as well, or of a number. When it is none, `problem` receives why. */
    static std::optional<int> parse(const QString& text, const EnumTable& table, QString& problem);
    /** Whether two fields know the same mnemonics. */
    static bool areSame(const EnumTable& a, const EnumTable& b);
};
