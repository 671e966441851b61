#include <extension/NscCommand.h>
#include <nodescope/edit/SoCommandManager.h>
#include <nodescope/shell/NscServicesImpl.h>
#include <vexel/io/SoDB.h>
#include <vexel/nodes/SoMaterial.h>
#include <vexel/nodes/SoSelection.h>
#include <vexel/sensors/SoSensorManager.h>
#include <vexel/viewer/SoSceneManager.h>

#include <QSignalSpy>
#include <gtest/gtest.h>

Q_DECLARE_METATYPE(SoFieldContainer*)
Q_DECLARE_METATYPE(SoField*)

namespace {

/** Counts what is in effect. */
class CountingCommand : public NscCommand {
public:
    CountingCommand(int& inEffect, int& alive) : m_inEffect(inEffect), m_alive(alive) { ++m_alive; }
    ~CountingCommand() override { --m_alive; }

    bool execute() override
    {
        ++m_inEffect;
        return true;
    }
    void undo() override { --m_inEffect; }
    void redo() override { ++m_inEffect; }

private:
    int& m_inEffect;
    int& m_alive;
};

class ServicesTest : public testing::Test {
protected:
    ServicesTest()
    {
        SoDB::init();
        qRegisterMetaType<SoFieldContainer*>("SoFieldContainer*");
        qRegisterMetaType<SoField*>("SoField*");
        m_material->ref();
    }
    ~ServicesTest() override
    {
        NscServicesImpl::deleteInstance();
        m_material->unref();
    }

    NscServicesImpl& services() { return *NscServicesImpl::getInstance(); }

    SoMaterial* m_material = new SoMaterial;
};

} // namespace

TEST_F(ServicesTest, AreMadeOnFirstUseAndDeletedOnDemand)
{
    EXPECT_EQ(NscServices::getInstance(), nullptr);
    NscServicesImpl* const first = &services();
    EXPECT_EQ(NscServices::getInstance(), first);
    EXPECT_EQ(&services(), first);
    NscServicesImpl::deleteInstance();
    EXPECT_EQ(NscServices::getInstance(), nullptr);
    NscServicesImpl::deleteInstance();
}

TEST_F(ServicesTest, KeepTheFactsOfTheHost)
{
    EXPECT_FALSE(services().isStandalone());
    EXPECT_EQ(services().getRenderArea(), nullptr);
    EXPECT_EQ(services().getSceneManager(), nullptr);
    services().setStandalone(true);
    EXPECT_TRUE(services().isStandalone());
}

TEST_F(ServicesTest, AnnounceEverySelectionAlsoARepeatedOne)
{
    QSignalSpy nodes(&services(), &NscServices::selectedNodeChanged);
    QSignalSpy fields(&services(), &NscServices::selectedFieldChanged);
    services().setSelectedNode(m_material);
    services().setSelectedNode(m_material);
    EXPECT_EQ(nodes.count(), 2);
    EXPECT_EQ(nodes[1][0].value<SoFieldContainer*>(), m_material);
    EXPECT_EQ(services().getSelectedNode(), m_material);
    services().setSelectedField(&m_material->diffuseColor);
    services().setSelectedField(nullptr);
    EXPECT_EQ(fields.count(), 2);
    EXPECT_EQ(fields[0][0].value<SoField*>(), &m_material->diffuseColor);
    EXPECT_EQ(services().getSelectedField(), nullptr);
}

TEST_F(ServicesTest, ANewSceneLeavesNoFieldOfTheOldOneSelected)
{
    services().setSelectedField(&m_material->diffuseColor);
    QSignalSpy fields(&services(), &NscServices::selectedFieldChanged);
    services().announceSceneGraph(nullptr);
    EXPECT_EQ(services().getSelectedField(), nullptr);
    EXPECT_EQ(fields.count(), 1);
    services().announceSceneGraph(nullptr);
    EXPECT_EQ(fields.count(), 1);
}

TEST_F(ServicesTest, CommandsAreExecutedUndoneRedoneAndOwned)
{
    int inEffect = 0;
    int alive = 0;
    services().pushCommand(new CountingCommand(inEffect, alive));
    services().pushCommand(new CountingCommand(inEffect, alive));
    EXPECT_EQ(inEffect, 2);
    services().undo();
    EXPECT_EQ(inEffect, 1);
    services().redo();
    EXPECT_EQ(inEffect, 2);
    EXPECT_TRUE(services().getCommandManager()->isModified());
    EXPECT_EQ(alive, 2);
    NscServicesImpl::deleteInstance();
    EXPECT_EQ(alive, 0);
}

TEST_F(ServicesTest, WhatIsDestroyedIsNotSelectedAnyMore)
{
    auto* const material = new SoMaterial;
    material->ref();
    services().setSelectedNode(material);
    services().setSelectedField(&material->diffuseColor);
    QSignalSpy nodes(&services(), &NscServices::selectedNodeChanged);
    QSignalSpy fields(&services(), &NscServices::selectedFieldChanged);
    material->unref();
    EXPECT_EQ(services().getSelectedNode(), nullptr);
    EXPECT_EQ(services().getSelectedField(), nullptr);
    EXPECT_EQ(nodes.count(), 1);
    EXPECT_EQ(fields.count(), 1);
}

TEST_F(ServicesTest, RedrawWhenTheSelectionNodeChanges)
{
    auto* const selection = new SoSelection;
    auto* const other = new SoSelection;
    other->ref();
    selection->addChild(m_material);
    SoSceneManager manager;
    int redraws = 0;
    manager.setRenderCallback([](void* count, SoSceneManager*) { ++*static_cast<int*>(count); }, &redraws);
    SoSensorManager& sensors = SoDB::getSensorManager();
    sensors.processDelayQueue(false);
    redraws = 0;

    services().setSelection(selection);
    EXPECT_EQ(selection->getRefCount(), 1);
    selection->select(m_material); // nothing is known that draws
    services().setSceneManager(&manager);
    selection->deselectAll();
    sensors.processDelayQueue(false);
    EXPECT_EQ(redraws, 1);

    selection->ref();
    services().setSelection(other);
    EXPECT_EQ(selection->getRefCount(), 1);
    selection->select(m_material);
    sensors.processDelayQueue(false);
    EXPECT_EQ(redraws, 1);
    services().setSelection(nullptr);
    EXPECT_EQ(other->getRefCount(), 1);
    other->unref();
    selection->deselectAll();
    selection->unref();
}
