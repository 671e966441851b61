#include <plugins/field_editors/values/NumberText.h>

#include <gtest/gtest.h>

#include <cstdint>

namespace {

const NumberKind Single = NumberKind::of<float>();
const NumberKind Short = NumberKind::of<short>();
const NumberKind Unsigned = NumberKind::of<std::uint32_t>();

struct Row {
    const char* name;
    const char* text;
    const NumberKind& kind;
    double value;
    const char* problem; ///< null: it is a number
};

class ParsedNumber : public testing::TestWithParam<Row> {};

TEST_P(ParsedNumber, isThatOrSaysWhyNot)
{
    const Row& row = GetParam();
    QString problem;
    const std::optional<double> value = NumberText::parse(row.text, row.kind, problem);
    EXPECT_EQ(QString(row.problem), problem);
    ASSERT_EQ(row.problem == nullptr, value.has_value());
    EXPECT_EQ(row.value, value.value_or(0));
}

INSTANTIATE_TEST_SUITE_P(
    Texts, ParsedNumber,
    testing::Values(Row{"fraction", "2.5", Single, 2.5, nullptr}, Row{"blanks", "  -3 ", Single, -3, nullptr},
                    Row{"plus", "+4", Short, 4, nullptr}, Row{"exponent", "1e2", Short, 100, nullptr},
                    Row{"hexadecimal", "0xFFffffff", Unsigned, 4294967295.0, nullptr},
                    Row{"hexadecimalFraction", "0x10", Single, 0, "\"0x10\" is not a number."},
                    Row{"tooLongHexadecimal", "0x1FFFFFFFF", Unsigned, 0, "\"0x1FFFFFFFF\" is not a number."},
                    Row{"empty", "  ", Single, 0, "A number is missing."},
                    Row{"word", "abc", Single, 0, "\"abc\" is not a number."},
                    Row{"rest", "1.5.2", Single, 0, "\"1.5.2\" is not a number."},
                    Row{"comma", "1,5", Single, 0, "\"1,5\" is not a number."},
                    Row{"twoSigns", "+-1", Single, 0, "\"+-1\" is not a number."},
                    Row{"infinite", "inf", Single, 0, "\"inf\" is not finite."},
                    Row{"noNumber", "nan", Single, 0, "\"nan\" is not finite."},
                    Row{"part", "1.5", Short, 0, "\"1.5\" is not a whole number."},
                    Row{"high", "32768", Short, 0, "32768 is not between -32768 and 32767."},
                    Row{"negative", "-1", Unsigned, 0, "-1 is not between 0 and 4294967295."},
                    Row{"beyondSingle", "1e39", Single, 0, "1e39 is not between -3.4028235e+38 and 3.4028235e+38."}),
    [](const auto& test) { return std::string(test.param.name); });

TEST(NumberText, isTheShortestOfSinglePrecision)
{
    EXPECT_EQ(QString("0.1"), NumberText::of(double(0.1f), Single));
    EXPECT_EQ(QString("-32768"), NumberText::of(-32768, Short));
    EXPECT_EQ(QString("4294967295"), NumberText::of(4294967295.0, Unsigned));
}

} // namespace
