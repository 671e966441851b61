#include <vexel/engines/detail/CalculatorFunctions.h>

#include <cmath>

namespace {

using Value = CalculatorValue;

Value number(double value)
{
    return {value, 0.0, 0.0};
}

template <double (*Function)(double)>
Value unary(const Value* v, std::minstd_rand&)
{
    return number(Function(v[0][0]));
}

template <double (*Function)(double, double)>
Value binary(const Value* v, std::minstd_rand&)
{
    return number(Function(v[0][0], v[1][0]));
}

#define NUMBER_OF(expression) [](const Value* v, std::minstd_rand&) -> Value { return number(expression); }
#define VALUE_OF(expression) [](const Value* v, std::minstd_rand&) -> Value { return expression; }

constexpr CalculatorFunction Functions[] = {
    {"cos", "n", 'n', unary<std::cos>},
    {"sin", "n", 'n', unary<std::sin>},
    {"tan", "n", 'n', unary<std::tan>},
    {"acos", "n", 'n', unary<std::acos>},
    {"asin", "n", 'n', unary<std::asin>},
    {"atan", "n", 'n', unary<std::atan>},
    {"atan2", "nn", 'n', binary<std::atan2>},
    {"sqrt", "n", 'n', unary<std::sqrt>},
    {"pow", "nn", 'n', binary<std::pow>},
    {"exp", "n", 'n', unary<std::exp>},
    {"log", "n", 'n', unary<std::log>},
    {"log10", "n", 'n', unary<std::log10>},
    {"ceil", "n", 'n', unary<std::ceil>},
    {"floor", "n", 'n', unary<std::floor>},
    {"fabs", "n", 'n', unary<std::fabs>},
    {"fmod", "nn", 'n', binary<std::fmod>},
    {"rand", "n", 'n',
     [](const Value* v, std::minstd_rand& random) -> Value {
         return number(v[0][0] * std::uniform_real_distribution<double>()(random));
     }},
    {"cross", "vv", 'v', VALUE_OF(v[0].cross(v[1]))},
    {"dot", "vv", 'n', NUMBER_OF(v[0].dot(v[1]))},
    {"length", "v", 'n', NUMBER_OF(v[0].length())},
    {"normalize", "v", 'v',
     [](const Value* v, std::minstd_rand&) -> Value {
         Value result = v[0];
         result.normalize();
         return result;
     }},
    {"vec3f", "nnn", 'v', VALUE_OF(Value(v[0][0], v[1][0], v[2][0]))},
    {"+", "nn", 'n', VALUE_OF(v[0] + v[1])},
    {"+", "vv", 'v', VALUE_OF(v[0] + v[1])},
    {"-", "n", 'n', VALUE_OF(-v[0])},
    {"-", "v", 'v', VALUE_OF(-v[0])},
    {"-", "nn", 'n', VALUE_OF(v[0] - v[1])},
    {"-", "vv", 'v', VALUE_OF(v[0] - v[1])},
    {"*", "nn", 'n', NUMBER_OF(v[0][0] * v[1][0])},
    {"*", "vn", 'v', VALUE_OF(v[0] * v[1][0])},
    {"*", "nv", 'v', VALUE_OF(v[1] * v[0][0])},
    {"/", "nn", 'n', NUMBER_OF(v[0][0] / v[1][0])},
    {"/", "vn", 'v', VALUE_OF(v[0] / v[1][0])},
    {"%", "nn", 'n', binary<std::fmod>},
    {"<", "nn", 'n', NUMBER_OF(v[0][0] < v[1][0])},
    {">", "nn", 'n', NUMBER_OF(v[0][0] > v[1][0])},
    {"<=", "nn", 'n', NUMBER_OF(v[0][0] <= v[1][0])},
    {">=", "nn", 'n', NUMBER_OF(v[0][0] >= v[1][0])},
    {"==", "nn", 'n', NUMBER_OF(v[0][0] == v[1][0])},
    {"==", "vv", 'n', NUMBER_OF(v[0] == v[1])},
    {"!=", "nn", 'n', NUMBER_OF(v[0][0] != v[1][0])},
    {"!=", "vv", 'n', NUMBER_OF(v[0] != v[1])},
    {"&&", "nn", 'n', NUMBER_OF(v[0][0] != 0 && v[1][0] != 0)},
    {"||", "nn", 'n', NUMBER_OF(v[0][0] != 0 || v[1][0] != 0)},
    {"!", "n", 'n', NUMBER_OF(v[0][0] == 0)},
    {"?", "nnn", 'n', VALUE_OF(v[0][0] != 0 ? v[1] : v[2])},
    {"?", "nvv", 'v', VALUE_OF(v[0][0] != 0 ? v[1] : v[2])},
};

#undef NUMBER_OF
#undef VALUE_OF

} // namespace

const CalculatorFunction* CalculatorFunction::find(std::string_view name, std::string_view operands)
{
    for (const CalculatorFunction& function : Functions) {
        if (function.name == name && function.operands == operands)
            return &function;
    }
    return nullptr;
}

std::string CalculatorFunction::describeOperands(std::string_view name)
{
    std::string text;
    for (const CalculatorFunction& function : Functions) {
        if (function.name != name)
            continue;
        std::string list;
        for (const char kind : function.operands)
            list += std::string(list.empty() ? "" : ", ") + (kind == Number ? "number" : "vector");
        text += (text.empty() ? "(" : " or (") + list + ")";
    }
    return text;
}
