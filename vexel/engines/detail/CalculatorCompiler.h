#pragma once

#include <string>
#include <string_view>

class CalculatorProgram;

/** Why an expression cannot be compiled. */
struct CalculatorMistake {
    std::size_t position = 0; ///< of the first byte that does not fit
    std::string expected;     ///< what would
};

/**
 * Adds the steps of an expression to @p program. An expression is a list of assignments, divided by semicolons:
 *
 *     assignment = variable ( "[" component "]" )? "=" choice
 *     choice     = operation ( "?" choice ":" choice )?
 *     operation  = operand ( operator operand )*          in the ranks of C
 *     operand    = ( "-" | "!" )* ( number | variable | name "(" choices ")" | "(" choice ")" ) ( "[" component "]" )*
 *
 * False, with the first mistake, when it is none; the program is of no use then.
 */
bool compileCalculation(std::string_view text, CalculatorProgram& program, CalculatorMistake& mistake);
