#pragma once

#include <random>
#include <string>
#include <string_view>

#include <vexel/base/SbVec3d.h>

/** A number, which is the first component then, or a vector. */
using CalculatorValue = SbVec3d;

/** A function or operator of expressions, for operands of certain kinds. */
struct CalculatorFunction {
    static constexpr char Number = 'n';
    static constexpr char Vector = 'v';

    std::string_view name; ///< as it stands in expressions; "?" is the choice between two values
    std::string_view operands;
    char result;
    CalculatorValue (*call)(const CalculatorValue* operands, std::minstd_rand& random);

    /** The one of that name for operands of these kinds; null when there is none. */
    static const CalculatorFunction* find(std::string_view name, std::string_view operands);
    /** What operands @p name takes, in words; empty for a name that is no function. */
    static std::string describeOperands(std::string_view name);
};
