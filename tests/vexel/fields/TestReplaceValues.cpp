#include <vexel/fields/SoMFEnum.h>
#include <vexel/fields/SoMFFloat.h>
#include <vexel/fields/SoMFInt32.h>
#include <vexel/fields/SoMFNode.h>
#include <vexel/io/SoDB.h>
#include <vexel/nodes/SoCube.h>
#include <vexel/sensors/SoFieldSensor.h>

#include <gtest/gtest.h>

#include <vector>

namespace {

struct Row {
    const char* name;
    int start, num, fromStart, fromNum;
    std::vector<int> expected;
};

class ReplaceValues : public testing::TestWithParam<Row> {
protected:
    ReplaceValues() { SoDB::init(); }
};

std::vector<int> valuesOf(const SoMFInt32& field)
{
    return {field.getValues(), field.getValues() + field.getNum()};
}

void count(void* number, SoSensor*)
{
    ++*static_cast<int*>(number);
}

TEST_P(ReplaceValues, isOneChange)
{
    const Row& row = GetParam();
    SoMFInt32 field;
    field.setValues(std::vector<std::int32_t>{1, 2, 3, 4});
    SoMFInt32 source;
    source.setValues(std::vector<std::int32_t>{10, 20, 30});
    int changes = 0;
    SoFieldSensor sensor(count, &changes);
    sensor.setPriority(0);
    sensor.attach(&field);
    field.replaceValues(row.start, row.num, source, row.fromStart, row.fromNum);
    EXPECT_EQ(row.expected, valuesOf(field));
    EXPECT_EQ(1, changes);
}

INSTANTIATE_TEST_SUITE_P(
    Ranges, ReplaceValues,
    testing::Values(Row{"same", 1, 2, 0, 2, {1, 10, 20, 4}}, Row{"longer", 1, 1, 0, 3, {1, 10, 20, 30, 3, 4}},
                    Row{"shorter", 0, 3, 2, 1, {30, 4}}, Row{"insertion", 2, 0, 1, 1, {1, 2, 20, 3, 4}},
                    Row{"removal", 1, 2, 0, 0, {1, 4}}, Row{"append", 4, 0, 0, 2, {1, 2, 3, 4, 10, 20}},
                    Row{"beyond", 9, 5, 2, 9, {1, 2, 3, 4, 30}}, Row{"all", 0, 4, 0, 3, {10, 20, 30}},
                    Row{"negative", -3, 1, -1, 1, {10, 2, 3, 4}}),
    [](const auto& test) { return std::string(test.param.name); });

TEST(ReplaceValuesOf, anotherTypeOrItselfChangesNothing)
{
    SoDB::init();
    SoMFInt32 field;
    field.setValues(std::vector<std::int32_t>{1, 2});
    SoMFFloat other;
    other.setValue(3);
    field.replaceValues(0, 1, other, 0, 1);
    field.replaceValues(0, 1, field, 0, 2);
    EXPECT_EQ((std::vector<int>{1, 2}), valuesOf(field));
}

TEST(ReplaceValuesOf, nodesCountsReferences)
{
    SoDB::init();
    SoMFNode field;
    SoMFNode source;
    auto* cube = new SoCube;
    auto* other = new SoCube;
    other->ref();
    field.setValue(other);
    source.setValue(cube);
    field.replaceValues(0, 1, source, 0, 1);
    EXPECT_EQ(cube, field[0]);
    EXPECT_EQ(2, cube->getRefCount());
    EXPECT_EQ(1, other->getRefCount());
    other->unref();
}

TEST(ReplaceValuesOf, anEnumerationTakesItsMnemonics)
{
    SoDB::init();
    static const SoEnumEntry Names[] = {{"OFF", 0}, {"ON", 1}};
    SoMFEnum field(nullptr, nullptr, 1, EnumTable(Names));
    SoMFEnum other;
    other.replaceValues(0, 0, field, 0, 1);
    EXPECT_EQ(QString("ON"), other.get1(0).toQString());
    EXPECT_TRUE(field.set1(1, "OFF"));
    EXPECT_EQ(0, field[1]);
}

} // namespace
