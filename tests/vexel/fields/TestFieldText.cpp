#include <gtest/gtest.h>

#include <memory>

#include <vexel/base/SbString.h>
#include <vexel/fields/SoMField.h>
#include <vexel/fields/SoSField.h>
#include <vexel/io/SoDB.h>

#include "Sample.h"

namespace {

std::unique_ptr<SoField> makeField(const char* type)
{
    SoDB::init();
    return std::unique_ptr<SoField>(static_cast<SoField*>(SoType::fromName(type).createInstance()));
}

struct Text {
    const char* type;
    const char* given;
    const char* written;
};

class Good : public testing::TestWithParam<Text> {};

TEST_P(Good, IsReadAndWritten)
{
    const auto field = makeField(GetParam().type);
    ASSERT_TRUE(field);
    ASSERT_TRUE(field->set(GetParam().given)) << GetParam().type << " " << GetParam().given;
    EXPECT_FALSE(field->isDefault());
    EXPECT_EQ(field->get().toUtf8().toStdString(), GetParam().written);
    const auto again = makeField(GetParam().type);
    ASSERT_TRUE(again->set(field->get()));
    EXPECT_TRUE(again->isSame(*field) || field->get() == "nan");
}

INSTANTIATE_TEST_SUITE_P(
    FieldText, Good,
    testing::Values(
        Text{"SFBool", "1", "TRUE"}, Text{"SFBool", "FALSE", "FALSE"}, Text{"SFFloat", "+.5", "0.5"},
        Text{"SFFloat", "1.", "1"}, Text{"SFFloat", "1e-3", "0.001"}, Text{"SFFloat", "nan", "nan"},
        Text{"SFFloat", "-inf", "-inf"}, Text{"SFFloat", "1e99", "inf"}, Text{"SFFloat", "-1e-99", "-0"},
        Text{"SFFloat", "0.1", "0.1"}, Text{"SFDouble", "0.1", "0.1"}, Text{"SFDouble", "1e999", "inf"},
        Text{"SFInt32", "0x10", "16"}, Text{"SFInt32", "010", "8"}, Text{"SFInt32", "-5", "-5"},
        Text{"SFInt32", "0", "0"}, Text{"SFInt32", "-0x10", "-16"}, Text{"SFUInt32", "4294967295", "4294967295"},
        Text{"SFShort", "-32768", "-32768"}, Text{"SFUShort", "65535", "65535"}, Text{"SFString", "word", "\"word\""},
        Text{"SFString", "\"a \\\"b\\\" \\\\ c\"", "\"a \\\"b\\\" \\\\ c\""},
        Text{"SFString", "\"two\nlines\"", "\"two\nlines\""}, Text{"SFString", "\"\"", "\"\""},
        Text{"SFName", "\"one\"", "one"}, Text{"SFName", "\"two words\"", "\"two words\""},
        Text{"SFTime", "12.5", "12.5"}, Text{"SFVec3f", "1, 2, 3", "1 2 3"}, Text{"SFVec2s", "1 -2", "1 -2"},
        Text{"SFVec4d", "1 2 3 4.25", "1 2 3 4.25"}, Text{"SFColor", "1 0 .5", "1 0 0.5"},
        Text{"SFColorRGBA", "1 0 .5 .25", "1 0 0.5 0.25"}, Text{"SFRotation", "0 0 2 1", "0 0 1 1"},
        Text{"SFRotation", "1 0 0 0", "0 0 1 0"}, Text{"SFPlane", "0 1 0 3", "0 1 0 3"},
        Text{"SFBox3f", "0 0 0 1 2 3", "0 0 0 1 2 3"}, Text{"SFBox2s", "0 0 1 2", "0 0 1 2"},
        Text{"SFMatrix", "1 0 0 0 0 1 0 0 0 0 1 0 5 6 7 1", "1 0 0 0 0 1 0 0 0 0 1 0 5 6 7 1"},
        Text{"SFNode", "NULL", "NULL"}, Text{"MFFloat", "[ 1, 2 3, ]", "[ 1, 2, 3 ]"}, Text{"MFFloat", "7", "7"},
        Text{"MFFloat", "[ 7 ]", "7"}, Text{"MFFloat", "[]", "[ ]"}, Text{"MFBool", "[ TRUE 0 ]", "[ TRUE, FALSE ]"},
        Text{"MFVec2f", "[ 0 0, 1 1 ]", "[ 0 0,\n    1 1 ]"}, Text{"MFString", "[ \"a\" b ]", "[ \"a\",\n    \"b\" ]"},
        Text{"MFInt32", "[ 0,1,2,3,4,5,6,7,8,9,10,-1 ]", "[ 0, 1, 2, 3, 4, 5, 6, 7, 8, 9,\n    10, -1 ]"}));

struct BadText {
    const char* type;
    const char* text;
};

class Bad : public testing::TestWithParam<BadText> {};

TEST_P(Bad, IsRefusedAndChangesNothing)
{
    const auto field = makeField(GetParam().type);
    const SbString before = field->get();
    EXPECT_FALSE(field->set(GetParam().text)) << GetParam().text;
    EXPECT_EQ(field->get(), before);
    EXPECT_TRUE(field->isDefault());
}

INSTANTIATE_TEST_SUITE_P(FieldText, Bad,
                         testing::Values(BadText{"SFBool", "YES"}, BadText{"SFFloat", ""}, BadText{"SFFloat", "1.2x"},
                                         BadText{"SFFloat", "1 2"}, BadText{"SFInt32", "1.5"},
                                         BadText{"SFInt32", "2147483648"}, BadText{"SFInt32", "09"},
                                         BadText{"SFUShort", "65536"}, BadText{"SFUShort", "-1"},
                                         BadText{"SFVec3f", "1 2"}, BadText{"SFString", "\"open"},
                                         BadText{"MFFloat", "[ 1 2"}, BadText{"MFFloat", "[ 1 x ]"},
                                         BadText{"MFFloat", "1 ]"}, BadText{"SFNode", "NUL"},
                                         BadText{"SFBox2f", "1 2 3"}));

TEST(FieldText, SingleValuesOfAListAreSetAndAnswered)
{
    const Held<SoSample> sample;
    EXPECT_TRUE(sample->values.set1(2, "2.5"));
    EXPECT_EQ(sample->values.getNum(), 3);
    EXPECT_EQ(sample->values.get1(2), "2.5");
    EXPECT_EQ(sample->values.get1(3), "");
    EXPECT_FALSE(sample->values.set1(0, "x"));
    EXPECT_FALSE(sample->values.set1(-1, "1"));
    EXPECT_EQ(sample->values.get(), "[ 0, 0, 2.5 ]");
}

TEST(FieldText, EnumerationsTakeMnemonicsAndNumbers)
{
    const Held<SoSample> sample;
    EXPECT_TRUE(sample->mood.set("BAD"));
    EXPECT_EQ(sample->mood.getValue(), SoSample::BAD);
    EXPECT_TRUE(sample->mood.set("5"));
    EXPECT_EQ(sample->mood.get(), "FAIR");
    EXPECT_TRUE(sample->mood.set("6"));
    EXPECT_EQ(sample->mood.get(), "6");
    EXPECT_FALSE(sample->mood.set("SAD"));
    EXPECT_TRUE(sample->sides.set("NONE"));
    EXPECT_EQ(sample->sides.getValue(), 0);
    EXPECT_EQ(sample->sides.get(), "NONE");
    EXPECT_TRUE(sample->sides.set("ALL"));
    EXPECT_EQ(sample->sides.getValue(), 7);
    EXPECT_EQ(sample->sides.get(), "ALL");
    EXPECT_TRUE(sample->sides.set("(TOP|LEFT)"));
    EXPECT_EQ(sample->sides.get(), "( LEFT | TOP )");
    EXPECT_FALSE(sample->sides.set("( TOP LEFT )"));
    EXPECT_TRUE(sample->moods.set("[ GOOD, BAD ]"));
    EXPECT_EQ(sample->moods.get(), "[ GOOD, BAD ]");
}

} // namespace
