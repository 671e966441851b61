#pragma once

#include <QCoreApplication>
#include <QString>
#include <limits>
#include <optional>
#include <type_traits>

/** What a number may be: that of a C++ type, each of whose values a double holds exactly. */
struct NumberKind {
    double lowest;
    double highest;
    bool isWhole;

    template <class Number>
    static NumberKind of()
    {
        return {double(std::numeric_limits<Number>::lowest()), double(std::numeric_limits<Number>::max()),
                std::is_integral_v<Number>};
    }
};

/** Numbers as the user reads and types them, with a decimal point in every language. */
class NumberText {
    Q_DECLARE_TR_FUNCTIONS(NumberText)
public:
    /** The shortest text that stands for the same number of single precision, or the whole number. */
    static QString of(double value, const NumberKind& kind);
    /** The number that a text stands for; whole numbers also as 0x... When it is none, `problem` receives why. */
    static std::optional<double> parse(const QString& text, const NumberKind& kind, QString& problem);
};
