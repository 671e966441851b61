#include "EditorFixture.h"

#include <plugins/field_editors/edit/FieldBinding.h>
#include <vexel/fields/SoMFInt32.h>
#include <vexel/fields/SoSFFloat.h>
#include <vexel/nodes/SoCone.h>
#include <vexel/nodes/SoCylinder.h>
#include <vexel/nodes/SoIndexedFaceSet.h>

#include <QSignalSpy>

namespace {

class FieldBindingTest : public EditorTest {
protected:
    FieldBindingTest()
    {
        m_root->addChild(m_cone);
        m_root->addChild(m_faces);
        m_faces->coordIndex.setValues(std::vector<std::int32_t>{0, 1, 2, -1});
    }

    static std::unique_ptr<SoMFInt32> indices(std::vector<std::int32_t> values)
    {
        auto list = std::make_unique<SoMFInt32>();
        list->setValues(std::move(values));
        return list;
    }
    static QString textOf(const SoField& field) { return field.get().toQString().simplified(); }
    void setHeight(float height)
    {
        SoSFFloat value;
        value.setValue(height);
        m_binding.setValue(value);
    }

    SoCone* m_cone = new SoCone;
    SoIndexedFaceSet* m_faces = new SoIndexedFaceSet;
    FieldBinding m_binding;
};

TEST_F(FieldBindingTest, anEditIsUndoneWithTheDefaultMark)
{
    m_binding.setField(&m_cone->height);
    setHeight(5);
    EXPECT_EQ(5, m_cone->height.getValue());
    undo();
    EXPECT_EQ(2, m_cone->height.getValue());
    EXPECT_TRUE(m_cone->height.isDefault());
    redo();
    EXPECT_EQ(5, m_cone->height.getValue());
    EXPECT_FALSE(m_cone->height.isDefault());
}

TEST_F(FieldBindingTest, theSameValueIsNoEdit)
{
    m_binding.setField(&m_cone->height);
    setHeight(2);
    EXPECT_TRUE(m_cone->height.isDefault());
    undo();
    setHeight(3);
    undo();
    EXPECT_EQ(2, m_cone->height.getValue());
}

TEST_F(FieldBindingTest, aGestureIsOneStep)
{
    m_binding.setField(&m_cone->height);
    m_binding.beginGesture();
    for (const float height : {3.0f, 4.0f, 5.0f}) {
        setHeight(height);
        EXPECT_EQ(height, m_cone->height.getValue());
    }
    m_binding.endGesture();
    undo();
    EXPECT_EQ(2, m_cone->height.getValue());
    redo();
    EXPECT_EQ(5, m_cone->height.getValue());
}

TEST_F(FieldBindingTest, aCancelledGestureHasNotHappened)
{
    m_binding.setField(&m_cone->height);
    setHeight(3);
    m_binding.beginGesture();
    setHeight(7);
    m_binding.cancelGesture();
    EXPECT_EQ(3, m_cone->height.getValue());
    undo();
    EXPECT_EQ(2, m_cone->height.getValue());
}

TEST_F(FieldBindingTest, aGestureOfAListIsOneStepForEachRange)
{
    m_binding.setField(&m_faces->coordIndex);
    m_binding.beginGesture();
    m_binding.replaceValues(1, 1, indices({7}));
    m_binding.replaceValues(1, 1, indices({8}));
    m_binding.replaceValues(2, 1, indices({9}));
    m_binding.endGesture();
    EXPECT_EQ(QString("[ 0, 8, 9, -1 ]"), textOf(m_faces->coordIndex));
    undo();
    EXPECT_EQ(QString("[ 0, 8, 2, -1 ]"), textOf(m_faces->coordIndex));
    undo();
    EXPECT_EQ(QString("[ 0, 1, 2, -1 ]"), textOf(m_faces->coordIndex));
}

TEST_F(FieldBindingTest, resettingGivesTheDefaultAndIsUndone)
{
    m_binding.setField(&m_cone->height);
    setHeight(5);
    m_binding.resetValue();
    EXPECT_EQ(2, m_cone->height.getValue());
    EXPECT_TRUE(m_cone->height.isDefault());
    undo();
    EXPECT_EQ(5, m_cone->height.getValue());
    EXPECT_FALSE(m_cone->height.isDefault());
}

TEST_F(FieldBindingTest, undoingAMarkLeavesTheValueOfTheHost)
{
    m_binding.setField(&m_cone->height);
    m_binding.setIgnored(true);
    EXPECT_TRUE(m_cone->height.isIgnored());
    m_cone->height = 9;
    undo();
    EXPECT_FALSE(m_cone->height.isIgnored());
    EXPECT_EQ(9, m_cone->height.getValue());
    EXPECT_FALSE(m_cone->height.isDefault());
}

TEST_F(FieldBindingTest, aConnectedFieldIsNotEditedButCut)
{
    auto* source = new SoCylinder;
    m_root->addChild(source);
    source->height = 4;
    m_cone->height.connectFrom(&source->height);
    m_binding.setField(&m_cone->height);
    EXPECT_FALSE(m_binding.isEditable());
    setHeight(9);
    EXPECT_EQ(4, m_cone->height.getValue());
    m_binding.cutConnection();
    EXPECT_TRUE(m_binding.isEditable());
    EXPECT_EQ(4, m_cone->height.getValue());
    undo();
    source->height = 6;
    EXPECT_EQ(6, m_cone->height.getValue());
    redo();
    source->height = 8;
    EXPECT_EQ(6, m_cone->height.getValue());
}

TEST_F(FieldBindingTest, undoingACutLeavesTheFieldAloneWhenItsSourceIsGone)
{
    auto* source = new SoCylinder;
    source->ref();
    m_cone->height.connectFrom(&source->height);
    m_binding.setField(&m_cone->height);
    m_binding.cutConnection();
    source->unref();
    undo();
    EXPECT_FALSE(m_cone->height.isConnected());
}

TEST_F(FieldBindingTest, changesOfAnEventTurnAreToldOnce)
{
    m_binding.setField(&m_cone->height);
    QSignalSpy changes(&m_binding, &FieldBinding::valueChanged);
    for (int i = 0; i < 100; ++i)
        m_cone->height = float(i);
    EXPECT_EQ(0, changes.count());
    QTRY_COMPARE(changes.count(), 1);
}

TEST_F(FieldBindingTest, theFieldIsNotKeptAliveAndItsCommandsDoNothingThen)
{
    m_binding.setField(&m_cone->height);
    setHeight(5);
    m_binding.beginGesture();
    setHeight(6);
    QSignalSpy changes(&m_binding, &FieldBinding::fieldChanged);
    m_root->removeChild(m_cone);
    EXPECT_EQ(nullptr, m_binding.field());
    EXPECT_EQ(1, changes.count());
    EXPECT_FALSE(m_binding.isEditable());
    undo();
    undo();
    redo();
    redo();
}

} // namespace
