#include <vexel/engines/SoCalculator.h>

#include "EngineFixture.h"

namespace {

using CalculatorMistakes = EngineTest;

struct Row {
    const char* expression;
    int place;
    const char* expected;
};

std::string repeated(const char* text, int times)
{
    std::string all;
    for (int i = 0; i < times; ++i)
        all += text;
    return all;
}

} // namespace

TEST_F(CalculatorMistakes, AreToldWithPlaceAndRemedy)
{
    constexpr char Target[] = "a variable to set (oa to od, oA to oD, ta to th, tA to tH)";
    constexpr char Operand[] = "a number, a variable, a function or \"(\"";
    const Row rows[] = {
        {"7", 1, Target},
        {"a = 7", 1, Target},
        {"oe = 7", 1, Target},
        {"oa 7", 4, "\"=\""},
        {"oa = ", 6, Operand},
        {"oa == 7", 5, Operand},
        {"oa = x", 6, Operand},
        {"oa = \xc3\xa4", 6, Operand},
        {"oa = a b", 8, "an operator or \";\""},
        {"oa = \"\xc3\xa4\xc3\xa4\"", 6, Operand},
        {"oa = a + (b", 12, "\")\""},
        {"oa = a)", 7, "an operator or \";\""},
        {"oa = 1e999", 6, "a number that a variable can hold"},
        {"oa = .", 6, "a number that a variable can hold"},
        {"oa = 1.2.3", 9, "an operator or \";\""},
        {"oa = A", 6, "a number"},
        {"oA = a", 6, "a vector"},
        {"oA[3] = a", 4, "0, 1 or 2"},
        {"oA[0 = a", 6, "\"]\""},
        {"oA[0] = A", 9, "a number"},
        {"oa[0] = a", 3, "\"=\""},
        {"oa = A[a]", 8, "0, 1 or 2"},
        {"oa = a[0]", 7, "an operator, as numbers have no components"},
        {"oa = a ? b", 11, "\":\""},
        {"oa = a ? b : A", 6, "? of (number, number, number) or (number, vector, vector)"},
        {"oA = A * B", 6, "* of (number, number) or (vector, number) or (number, vector)"},
        {"oa = sin", 9, "\"(\""},
        {"oa = sin()", 10, Operand},
        {"oa = sin(A)", 6, "sin of (number)"},
        {"oa = atan2(a)", 6, "atan2 of (number, number)"},
        {"oa = dot(a, b)", 6, "dot of (vector, vector)"},
        {"oa = a; ob = ", 14, Operand},
    };
    const HeldEngine<SoCalculator> calculator;
    SoMFFloat number;
    SoMFVec3f vector;
    number.connectFrom(&calculator->oa);
    vector.connectFrom(&calculator->oA);
    for (const Row& row : rows) {
        errors.clear();
        calculator->expression = row.expression;
        EXPECT_EQ(number.getNum(), 0);
        EXPECT_EQ(vector.getNum(), 0);
        const std::string expected = "in \"" + std::string(row.expression) + "\", at character " +
                                     std::to_string(row.place) + ": expected " + row.expected + ";";
        ASSERT_EQ(errors.size(), 1u) << row.expression;
        EXPECT_NE(errors[0].find(expected), std::string::npos) << errors[0];
    }
}

TEST_F(CalculatorMistakes, DeepNestingIsRefusedAndNoMoreThanThat)
{
    const HeldEngine<SoCalculator> calculator;
    SoMFFloat number;
    number.connectFrom(&calculator->oa);
    const auto value = [&](const std::string& expression) {
        calculator->expression.setValue(SbString(std::string_view(expression)));
        return number.getNum() == 1 ? static_cast<double>(number[0]) : -1;
    };
    EXPECT_EQ(value("oa = " + repeated("(", 400) + "4" + repeated(")", 400)), 4);
    EXPECT_EQ(value("oa = " + repeated("-", 100000) + "5"), 5);
    EXPECT_EQ(value("oa = 0" + repeated("+1", 100000)), 100000);
    EXPECT_TRUE(errors.empty());

    for (const char* piece : {"(", "sin(", "1?", "1+("}) {
        errors.clear();
        value("oa = " + repeated(piece, 1000000));
        ASSERT_EQ(errors.size(), 1u) << piece;
        EXPECT_NE(errors[0].find("an expression with at most 500 pieces inside each other"), std::string::npos);
    }
}
