#include <vexel/engines/SoCalculator.h>
#include <vexel/fields/SoSFFloat.h>

#include <cmath>

#include "EngineFixture.h"

namespace {

class CalculatorTest : public EngineTest {
protected:
    CalculatorTest()
    {
        m_number.connectFrom(&m_calculator->oa);
        m_vector.connectFrom(&m_calculator->oA);
        m_calculator->a = 2;
        m_calculator->b = 3;
        m_calculator->A = SbVec3f(1, 2, 3);
        m_calculator->B = SbVec3f(0, 0, 2);
    }

    double number(const char* expression)
    {
        m_calculator->expression.setValue(SbString("oa = ") + expression);
        return m_number.getNum() == 1 ? static_cast<double>(m_number[0]) : -999;
    }
    SbVec3f vector(const char* expression)
    {
        m_calculator->expression.setValue(SbString("oA = ") + expression);
        return m_vector.getNum() == 1 ? m_vector[0] : SbVec3f(-999, 0, 0);
    }

    HeldEngine<SoCalculator> m_calculator;
    SoMFFloat m_number;
    SoMFVec3f m_vector;
};

struct Row {
    const char* expression;
    double value;
};

} // namespace

TEST_F(CalculatorTest, ComputesNumbers)
{
    const Row rows[] = {
        {"7", 7},
        {".5e1", 5},
        {"a + b * 4 - 6 / b", 12},
        {"(a + b) * 4", 20},
        {"2 - 3 - 4", -5},
        {"7 % 4", 3},
        {"-a + --b", 1},
        {"!a", 0},
        {"!!a + !0", 2},
        {"a < b", 1},
        {"a > b", 0},
        {"a <= 2 && b >= 3", 1},
        {"a == 2 && b != 3", 0},
        {"0 || a", 1},
        {"a < 0 ? 5 : a == 2 ? 6 : 7", 6},
        {"cos(0) + sin(0) + tan(0)", 1},
        {"acos(1) + asin(0) + atan(0)", 0},
        {"atan2(0, -1)", M_PI},
        {"sqrt(16) + pow(a, b)", 12},
        {"log(exp(a)) + log10(1000)", 5},
        {"ceil(1.2) + floor(-1.2) + fabs(-4)", 4},
        {"fmod(-7, 4)", -3},
        {"rand(0)", 0},
        {"A[0] + 10 * A[1] + 100 * A[2]", 321},
        {"dot(A, B)", 6},
        {"length(B)", 2},
        {"(A + B)[2]", 5},
        {"cross(A, B)[0]", 4},
        {"-A[1]", -2},
        {"A == B", 0},
        {"A != B", 1},
        {"A == vec3f(1, 2, 3)", 1},
        {"2 * M_PI", 2 * M_PI},
        {"a ; ", 2},
        {"c", 0},
    };
    for (const Row& row : rows)
        EXPECT_NEAR(number(row.expression), row.value, 1e-5) << row.expression;
    EXPECT_TRUE(errors.empty());
}

TEST_F(CalculatorTest, ComputesVectors)
{
    EXPECT_EQ(vector("A + B"), SbVec3f(1, 2, 5));
    EXPECT_EQ(vector("A - B"), SbVec3f(1, 2, 1));
    EXPECT_EQ(vector("-A"), SbVec3f(-1, -2, -3));
    EXPECT_EQ(vector("2 * A * a / 4"), SbVec3f(1, 2, 3));
    EXPECT_EQ(vector("cross(vec3f(1, 0, 0), vec3f(0, 1, 0))"), SbVec3f(0, 0, 1));
    EXPECT_EQ(vector("normalize(B)"), SbVec3f(0, 0, 1));
    EXPECT_EQ(vector("a > b ? A : B"), SbVec3f(0, 0, 2));
    EXPECT_TRUE(errors.empty());
}

TEST_F(CalculatorTest, AssignsOneAfterTheOther)
{
    const SbString texts[] = {"ta = a * 10; tA = A; tA[1] = ta;", "oa = ta + tb; oA = tA; oA[0] = oa + 1"};
    m_calculator->expression.setValues(texts, 2);
    EXPECT_EQ(m_number[0], 20);
    EXPECT_EQ(m_vector[0], SbVec3f(21, 20, 3));
}

TEST_F(CalculatorTest, ComputesEveryPlaceOfTheLongestInput)
{
    const float numbers[] = {1, 2, 3};
    const SbVec3f vectors[] = {SbVec3f(1, 0, 0), SbVec3f(0, 1, 0)};
    m_calculator->a.setValues(numbers, 3);
    m_calculator->A.setValues(vectors, 2);
    m_calculator->expression = "ta = ta + a; oa = ta * 2; oA = A * a";
    ASSERT_EQ(m_number.getNum(), 3);
    EXPECT_EQ(m_number[2], 6);
    ASSERT_EQ(m_vector.getNum(), 3);
    EXPECT_EQ(m_vector[1], SbVec3f(0, 2, 0));
    EXPECT_EQ(m_vector[2], SbVec3f(0, 3, 0)); // the last vector goes on
    // What the expression does not read has no part in it.
    m_calculator->expression = "oa = b";
    EXPECT_EQ(m_number.getNum(), 1);
}

TEST_F(CalculatorTest, EmptyInputsCountAsZero)
{
    m_calculator->a.setNum(0);
    m_calculator->A.setNum(0);
    m_calculator->expression = "oa = a + 1; oA = A";
    ASSERT_EQ(m_number.getNum(), 1);
    EXPECT_EQ(m_number[0], 1);
    EXPECT_EQ(m_vector[0], SbVec3f(0, 0, 0));
}

TEST_F(CalculatorTest, WhatIsNotAssignedKeepsItsValue)
{
    m_vector = SbVec3f(7, 7, 7);
    EXPECT_EQ(number("a"), 2);
    EXPECT_EQ(m_vector[0], SbVec3f(7, 7, 7));
    m_calculator->expression = "";
    EXPECT_EQ(m_number[0], 2);
    m_calculator->expression.setNum(0);
    EXPECT_EQ(m_number[0], 2);
    EXPECT_TRUE(errors.empty());
}

TEST_F(CalculatorTest, RandomNumbersStayInTheirRange)
{
    std::vector<float> places(1000, 0.0f);
    m_calculator->a.setValues(places.data(), 1000);
    m_calculator->expression = "oa = a + rand(5)";
    ASSERT_EQ(m_number.getNum(), 1000);
    float sum = 0;
    for (int i = 0; i < 1000; ++i) {
        ASSERT_GE(m_number[i], 0);
        ASSERT_LE(m_number[i], 5);
        sum += m_number[i];
    }
    EXPECT_NEAR(static_cast<double>(sum / 1000), 2.5, 0.5);
}

TEST_F(CalculatorTest, FollowsItsInputsWhenItIsAsked)
{
    EXPECT_EQ(number("a * 2"), 4);
    m_calculator->a = 5;
    EXPECT_EQ(m_number[0], 10);
    SoSFFloat single;
    ASSERT_TRUE(single.connectFrom(&m_calculator->oa));
    m_calculator->a = 6;
    EXPECT_EQ(single.getValue(), 12);
}

TEST_F(CalculatorTest, AMistakeIsReportedOnceAndTheOutputsKeepTheirValues)
{
    EXPECT_EQ(number("a * 2"), 4);
    m_calculator->expression = "oa = a +";
    EXPECT_EQ(m_number[0], 4);
    m_calculator->a = 9;
    EXPECT_EQ(m_number[0], 4);
    EXPECT_EQ(m_vector.getNum(), 0);
    ASSERT_EQ(errors.size(), 1u);
    EXPECT_NE(errors[0].find("in \"oa = a +\", at character 9: expected a number, a variable, a function or \"(\"; the "
                             "outputs keep their values"),
              std::string::npos)
        << errors[0];
    EXPECT_EQ(number("a"), 9);
}
