#include "FieldListFixture.h"

#include <vexel/base/SbVec3i32.h>
#include <vexel/fields/SoMFFloat.h>
#include <vexel/fields/SoMFInstanceParameter.h>
#include <vexel/fields/SoMFNode.h>
#include <vexel/fields/SoMFVec3f.h>
#include <vexel/fields/SoSFArray3D.h>
#include <vexel/fields/SoSFBufferObject.h>
#include <vexel/fields/SoSFFloat.h>
#include <vexel/fields/SoSFImage.h>
#include <vexel/fields/SoSFImage3.h>
#include <vexel/fields/SoSFNode.h>
#include <vexel/nodes/SoCube.h>
#include <vexel/nodes/SoSphere.h>

#include <QTest>

namespace {

/** A container with a field of each kind that is shown in its own way. */
class Showcase : public SoFieldContainer {
    SO_CONTAINER(Showcase, SoFieldContainer)
public:
    SoMFFloat numbers{this, "numbers"};
    SoMFVec3f points{this, "points"};
    SoMFNode nodes{this, "nodes"};
    SoMFInstanceParameter parameters{this, "parameters"};
    SoSFNode node{this, "node"};
    SoSFArray3D array{this, "array"};
    SoSFBufferObject buffer{this, "buffer"};
    SoSFImage image{this, "image"};
    SoSFImage3 volume{this, "volume"};
    SoSFFloat size{this, "size", 1.5f};
    SoSFFloat result{this, "result"};
};

class FieldValuesTest : public FieldListTest {
protected:
    void SetUp() override
    {
        FieldListTest::SetUp();
        showcase->ref();
    }
    void TearDown() override
    {
        FieldListTest::TearDown();
        showcase->unref();
    }
    QString shown(const char* field) { return value(add(*showcase, field)); }
    bool isEnabled(const char* field) { return !add(*showcase, field)->isDisabled(); }

    Showcase* showcase = new Showcase;
};

} // namespace

TEST_F(FieldValuesTest, AnEmptyListHasNoText)
{
    EXPECT_EQ(shown("numbers"), "");
    EXPECT_TRUE(isEnabled("numbers"));
}

TEST_F(FieldValuesTest, SixValuesAreShownWhole)
{
    for (int i = 0; i < 6; ++i)
        showcase->numbers.set1Value(i, float(i));
    EXPECT_EQ(shown("numbers"), "0, 1, 2, 3, 4, 5");
}

TEST_F(FieldValuesTest, OfSevenValuesSixAreShown)
{
    for (int i = 0; i < 7; ++i)
        showcase->numbers.set1Value(i, float(i));
    EXPECT_EQ(shown("numbers"), "0, 1, 2, 3, 4, 5...");
}

TEST_F(FieldValuesTest, ListsOfNodesNameTheirTypesAndCannotBeChosen)
{
    showcase->nodes.setValues({new SoCube, nullptr, new SoSphere});
    EXPECT_EQ(shown("nodes"), "Cube, Sphere");
    EXPECT_FALSE(isEnabled("nodes"));
    showcase->node.setValue(new SoSphere);
    EXPECT_EQ(shown("node"), "Sphere");
    EXPECT_FALSE(isEnabled("node"));
}

TEST_F(FieldValuesTest, InstanceParametersHaveNoText)
{
    EXPECT_EQ(shown("parameters"), "");
    showcase->parameters.setNum(7);
    EXPECT_EQ(shown("parameters"), "...");
}

TEST_F(FieldValuesTest, ArraysAreShownUpToFourThousandAndNinetySixValues)
{
    showcase->array.setValue(SbVec3i32(16, 16, 16), SoSFArray::UNSIGNED_BYTE, nullptr);
    EXPECT_EQ(shown("array"), showcase->array.get().toQString());
    EXPECT_TRUE(isEnabled("array"));
    showcase->array.setValue(SbVec3i32(16, 16, 17), SoSFArray::UNSIGNED_BYTE, nullptr);
    EXPECT_EQ(shown("array"), "ARRAY TOO BIG");
    EXPECT_FALSE(isEnabled("array"));
}

TEST_F(FieldValuesTest, BufferObjectsCannotBeChosen)
{
    EXPECT_EQ(shown("buffer"), "");
    EXPECT_FALSE(isEnabled("buffer"));
}

TEST_F(FieldValuesTest, PicturesHaveAnIconAndNoText)
{
    const std::uint8_t bytes[3] = {1, 2, 3};
    showcase->image.setValue(SbVec2i32(1, 1), 3, bytes);
    EXPECT_EQ(shown("image"), "");
    EXPECT_EQ(add(*showcase, "image")->data(SoFieldItem::ValueColumn, Qt::DecorationRole).type(), QVariant::Icon);
    EXPECT_EQ(shown("volume"), "");
    EXPECT_FALSE(add(*showcase, "size")->data(SoFieldItem::ValueColumn, Qt::DecorationRole).isValid());
}

TEST_F(FieldValuesTest, OtherFieldsHaveTheirFileText)
{
    EXPECT_EQ(shown("size"), "1.5");
    showcase->size = 0.25f;
    EXPECT_EQ(shown("size"), "0.25");
}

TEST_F(FieldValuesTest, FieldsThatTheContainerComputesCannotBeChosen)
{
    showcase->result.setFieldType(SoField::OUTPUT_ONLY);
    EXPECT_FALSE(isEnabled("result"));
    showcase->result.setFieldType(SoField::INPUT_ONLY);
    EXPECT_TRUE(isEnabled("result"));
}

TEST_F(FieldValuesTest, MarkersFollowTheField)
{
    const SoFieldItem* row = add(*showcase, "size");
    EXPECT_TRUE(row->icon(SoFieldItem::IgnoredColumn).isNull());
    EXPECT_TRUE(row->icon(SoFieldItem::ConnectedColumn).isNull());
    showcase->size.setIgnored(true);
    showcase->size.connectFrom(&showcase->result);
    EXPECT_FALSE(row->icon(SoFieldItem::IgnoredColumn).isNull());
    EXPECT_FALSE(row->icon(SoFieldItem::ConnectedColumn).isNull());
}

TEST_F(FieldValuesTest, MarkersAreDrawnAnewWhenAConnectionComesOrGoes)
{
    const SoFieldItem* row = add(*showcase, "size");
    list->show();
    const auto isDrawn = [&] { return QTest::qWaitFor([&] { return !row->needsRefresh(); }); };
    ASSERT_TRUE(isDrawn());
    showcase->size.connectFrom(&showcase->result);
    EXPECT_TRUE(row->needsRefresh());
    ASSERT_TRUE(isDrawn());
    showcase->size.disconnect();
    EXPECT_TRUE(row->needsRefresh());
    EXPECT_TRUE(row->icon(SoFieldItem::ConnectedColumn).isNull());
    ASSERT_TRUE(isDrawn());
    EXPECT_TRUE(row->isChanged());
    showcase->size.setDefault(true); // the row is drawn in another colour
    EXPECT_TRUE(row->needsRefresh());
    EXPECT_FALSE(row->isChanged());
}

TEST_F(FieldValuesTest, OnlyTheFirstValuesOfAHugeListAreLookedAt)
{
    showcase->points.setNum(10000000);
    EXPECT_EQ(shown("points"), "0 0 0, 0 0 0, 0 0 0, 0 0 0, 0 0 0, 0 0 0...");
}
