#include <vexel/engines/detail/CalculatorCompiler.h>

#include <charconv>
#include <cmath>
#include <limits>

#include <vexel/engines/detail/CalculatorProgram.h>

namespace {

constexpr int Max_depth = 500;
/** What the functions below answer for a piece that is none. */
constexpr char Failed = '\0';

constexpr char Number = CalculatorFunction::Number;
constexpr char Vector = CalculatorFunction::Vector;

struct Operator {
    std::string_view symbol;
    int rank;
};

/** Longer symbols stand in front of those that they begin with. */
constexpr Operator Operators[] = {{"||", 1}, {"&&", 2}, {"==", 3}, {"!=", 3}, {"<=", 4}, {">=", 4}, {"<", 4},
                                  {">", 4},  {"+", 5},  {"-", 5},  {"*", 6},  {"/", 6},  {"%", 6}};

struct Constant {
    std::string_view name;
    double value;
};

constexpr Constant Constants[] = {{"MAXFLOAT", std::numeric_limits<float>::max()},
                                  {"MINFLOAT", std::numeric_limits<float>::min()},
                                  {"M_E", M_E},
                                  {"M_LOG2E", M_LOG2E},
                                  {"M_LOG10E", M_LOG10E},
                                  {"M_LN2", M_LN2},
                                  {"M_LN10", M_LN10},
                                  {"M_PI", M_PI},
                                  {"M_SQRT2", M_SQRT2},
                                  {"M_SQRT1_2", M_SQRT1_2}};

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool isLetter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_';
}

/** Reads one expression; operands and results are told by their kinds. */
class Compiler {
public:
    Compiler(std::string_view text, CalculatorProgram& program, CalculatorMistake& mistake)
        : m_text(text), m_program(program), m_mistake(mistake)
    {
    }

    bool compile()
    {
        for (;;) {
            while (accept(";")) {
            }
            if (m_at == m_text.size())
                return true;
            if (!assignment())
                return false;
            if (m_at < m_text.size() && m_text[m_at] != ';')
                return fail(m_at, "an operator or \";\"");
        }
    }

private:
    bool fail(std::size_t position, std::string expected)
    {
        m_mistake = {position, std::move(expected)};
        return false;
    }

    std::size_t skipSpace()
    {
        while (m_at < m_text.size() && std::string_view(" \t\r\n").find(m_text[m_at]) != std::string_view::npos)
            ++m_at;
        return m_at;
    }

    bool accept(std::string_view symbol)
    {
        if (m_text.substr(skipSpace(), symbol.size()) != symbol)
            return false;
        m_at += symbol.size();
        skipSpace();
        return true;
    }

    bool expect(std::string_view symbol) { return accept(symbol) || fail(m_at, "\"" + std::string(symbol) + "\""); }

    std::string_view name()
    {
        const std::size_t start = skipSpace();
        while (m_at < m_text.size() && (isLetter(m_text[m_at]) || (m_at > start && isDigit(m_text[m_at]))))
            ++m_at;
        return m_text.substr(start, m_at - start);
    }

    bool component(int& index)
    {
        const std::size_t start = skipSpace();
        if (start == m_text.size() || m_text[start] < '0' || m_text[start] > '2')
            return fail(start, "0, 1 or 2");
        index = m_text[m_at++] - '0';
        return expect("]");
    }

    bool assignment()
    {
        const std::size_t start = skipSpace();
        const int variable = CalculatorVariables::find(name());
        if (variable < CalculatorVariables::Num_inputs)
            return fail(start, "a variable to set (oa to od, oA to oD, ta to th, tA to tH)");
        char kind = CalculatorVariables::isVector(variable) ? Vector : Number;
        int index = -1;
        if (kind == Vector && accept("[")) {
            if (!component(index))
                return false;
            kind = Number;
        }
        if (!expect("="))
            return false;
        const std::size_t value = m_at;
        const char given = choice();
        if (given == Failed)
            return false;
        if (given != kind)
            return fail(value, kind == Vector ? "a vector" : "a number");
        if (index >= 0)
            m_program.addStore(variable, index);
        else
            m_program.addStore(variable);
        return true;
    }

    char call(std::size_t position, std::string_view name, std::string_view operands)
    {
        const CalculatorFunction* function = CalculatorFunction::find(name, operands);
        if (!function) {
            fail(position, std::string(name) + " of " + CalculatorFunction::describeOperands(name));
            return Failed;
        }
        m_program.addCall(*function);
        return function->result;
    }

    char choice();
    char choiceFrom(std::size_t start);
    char operation(int lowestRank);
    char operand();
    char value();
    char number();
    char functionCall(std::size_t start, std::string_view function);

    std::string_view m_text;
    CalculatorProgram& m_program;
    CalculatorMistake& m_mistake;
    std::size_t m_at = 0;
    int m_depth = 0;
};

char Compiler::choice()
{
    const std::size_t start = skipSpace();
    if (m_depth == Max_depth) {
        fail(start, "an expression with at most " + std::to_string(Max_depth) + " pieces inside each other");
        return Failed;
    }
    ++m_depth;
    const char kind = choiceFrom(start);
    --m_depth;
    return kind;
}

char Compiler::choiceFrom(std::size_t start)
{
    const char condition = operation(1);
    if (condition == Failed || !accept("?"))
        return condition;
    const char first = choice();
    if (first == Failed || !expect(":"))
        return Failed;
    const char second = choice();
    return second == Failed ? Failed : call(start, "?", std::string{condition, first, second});
}

char Compiler::operation(int lowestRank)
{
    const std::size_t start = skipSpace();
    char left = operand();
    while (left != Failed) {
        skipSpace();
        const Operator* found = nullptr;
        for (const Operator& candidate : Operators) {
            if (!found && m_text.substr(m_at, candidate.symbol.size()) == candidate.symbol)
                found = &candidate;
        }
        if (!found || found->rank < lowestRank)
            break;
        m_at += found->symbol.size();
        const char right = operation(found->rank + 1);
        left = right == Failed ? Failed : call(start, found->symbol, std::string{left, right});
    }
    return left;
}

char Compiler::operand()
{
    std::string signs;
    const std::size_t start = skipSpace();
    while (m_at < m_text.size() && (m_text[m_at] == '-' || m_text[m_at] == '!')) {
        signs += m_text[m_at++];
        skipSpace();
    }
    char kind = value();
    while (kind != Failed && accept("[")) {
        int index = 0;
        if (kind != Vector) {
            fail(m_at - 1, "an operator, as numbers have no components");
            return Failed;
        }
        if (!component(index))
            return Failed;
        m_program.addComponent(index);
        kind = Number;
    }
    for (auto sign = signs.rbegin(); sign != signs.rend() && kind != Failed; ++sign)
        kind = call(start, std::string_view(&*sign, 1), std::string_view(&kind, 1));
    return kind;
}

char Compiler::value()
{
    const std::size_t start = skipSpace();
    if (accept("(")) {
        const char kind = choice();
        return kind != Failed && expect(")") ? kind : Failed;
    }
    if (start < m_text.size() && (isDigit(m_text[start]) || m_text[start] == '.'))
        return number();
    const std::string_view word = name();
    if (!CalculatorFunction::describeOperands(word).empty())
        return functionCall(start, word);
    for (const Constant& constant : Constants) {
        if (constant.name == word) {
            m_program.addNumber(constant.value);
            return Number;
        }
    }
    const int variable = CalculatorVariables::find(word);
    if (variable < 0) {
        fail(start, "a number, a variable, a function or \"(\"");
        return Failed;
    }
    m_program.addLoad(variable);
    return CalculatorVariables::isVector(variable) ? Vector : Number;
}

char Compiler::number()
{
    double value = 0;
    const std::size_t start = m_at;
    const auto [end, error] = std::from_chars(m_text.data() + start, m_text.data() + m_text.size(), value);
    if (error != std::errc()) {
        fail(start, "a number that a variable can hold");
        return Failed;
    }
    m_at = static_cast<std::size_t>(end - m_text.data());
    m_program.addNumber(value);
    return Number;
}

char Compiler::functionCall(std::size_t start, std::string_view function)
{
    if (!expect("("))
        return Failed;
    std::string operands;
    do {
        const char kind = choice();
        if (kind == Failed)
            return Failed;
        operands += kind;
    } while (accept(","));
    return expect(")") ? call(start, function, operands) : Failed;
}

} // namespace

bool compileCalculation(std::string_view text, CalculatorProgram& program, CalculatorMistake& mistake)
{
    return Compiler(text, program, mistake).compile();
}
