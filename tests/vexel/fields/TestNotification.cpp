#include <gtest/gtest.h>

#include <string>
#include <vector>

#include <vexel/base/SoPath.h>
#include <vexel/io/SoDB.h>
#include <vexel/sensors/SoFieldSensor.h>
#include <vexel/sensors/SoNodeSensor.h>
#include <vexel/sensors/SoSensorManager.h>

#include "Sample.h"

namespace {

struct Change {
    SoTriggerType type;
    SoField* field;
    SoNode* node;
    SoNode* child;
    int index;
    int pathLength;

    friend bool operator==(const Change& a, const Change& b)
    {
        return a.type == b.type && a.field == b.field && a.node == b.node && a.child == b.child && a.index == b.index &&
               a.pathLength == b.pathLength;
    }
};

/** Records all changes below a node as they happen. */
class Recorder {
public:
    explicit Recorder(SoNode* node)
    {
        m_sensor.setFunction([](void* data, SoSensor* sensor) {
            auto* cause = static_cast<SoNodeSensor*>(sensor);
            static_cast<Recorder*>(data)->changes.push_back(
                {cause->getTriggerType(), cause->getTriggerField(), cause->getTriggerNode(), cause->getTriggerChild(),
                 cause->getTriggerChildIndex(), cause->getTriggerPath()->getFullLength()});
        });
        m_sensor.setData(this);
        m_sensor.setPriority(0);
        m_sensor.setTriggerPathFlag(true);
        m_sensor.attach(node);
    }

    std::vector<Change> changes;

private:
    SoNodeSensor m_sensor;
};

TEST(Notification, TellsWhatChangedAtOnce)
{
    SoDB::init();
    const Held<SoSample> root;
    auto* inner = new SoSample;
    root->addChild(inner);
    Recorder recorder(root.get());

    auto* a = new SoSample;
    auto* b = new SoSample;
    auto* c = new SoSample;
    inner->addChild(a);
    inner->insertChild(b, 0);
    inner->replaceChild(1, c);
    inner->removeChild(0);
    inner->size = 2;
    inner->values.set1Value(0, 1);
    c->open = false;
    inner->removeAllChildren();
    root->touch();

    const std::vector<Change> expected{{SO_TRIGGER_CHILD_ADDED, nullptr, inner, a, 0, 2},
                                       {SO_TRIGGER_CHILD_INSERTED, nullptr, inner, b, 0, 2},
                                       {SO_TRIGGER_CHILD_REPLACED, nullptr, inner, c, 1, 2},
                                       {SO_TRIGGER_CHILD_REMOVED, nullptr, inner, b, 0, 2},
                                       {SO_TRIGGER_UNSPECIFIED, &inner->size, inner, nullptr, -1, 2},
                                       {SO_TRIGGER_MULTIPLE_VALUES, &inner->values, inner, nullptr, -1, 2},
                                       {SO_TRIGGER_UNSPECIFIED, &c->open, c, nullptr, -1, 3},
                                       {SO_TRIGGER_ALL_CHILDREN_REMOVED, nullptr, inner, nullptr, -1, 2},
                                       {SO_TRIGGER_UNSPECIFIED, nullptr, root.get(), nullptr, -1, 1}};
    ASSERT_EQ(recorder.changes.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i)
        EXPECT_TRUE(recorder.changes[i] == expected[i]) << i;
}

TEST(Notification, ADiamondOfDepthThirtyPassesAChangeOnOnce)
{
    SoDB::init();
    const Held<SoSample> root;
    SoGroup* parent = root.get();
    for (int i = 0; i < 30; ++i) {
        auto* next = new SoSample;
        parent->addChild(next);
        parent->addChild(next);
        parent = next;
    }
    Recorder recorder(root.get());
    static_cast<SoSample*>(parent)->size = 3;
    ASSERT_EQ(recorder.changes.size(), 1u);
    EXPECT_EQ(recorder.changes[0].pathLength, 31);
}

TEST(Notification, ANodeHeldInAFieldTellsItsHolder)
{
    SoDB::init();
    const Held<SoSample> root;
    auto* held = new SoSample;
    root->held = held;
    Recorder recorder(root.get());
    held->size = 2;
    ASSERT_EQ(recorder.changes.size(), 1u);
    EXPECT_EQ(recorder.changes[0].node, held);
    EXPECT_EQ(recorder.changes[0].field, &held->size);
}

TEST(Notification, CanBeSwitchedOff)
{
    SoDB::init();
    const Held<SoSample> root;
    Recorder recorder(root.get());
    EXPECT_TRUE(root->size.enableNotify(false));
    root->size = 2;
    root->size.enableNotify(true);
    root->enableNotify(false);
    root->size = 3;
    root->enableNotify(true);
    EXPECT_TRUE(recorder.changes.empty());
}

TEST(Notification, QueuedSensorsTriggerOnceInTheOrderOfTheirPriority)
{
    SoDB::init();
    const Held<SoSample> root;
    std::string order;
    const auto append = [](char c) {
        return c == 'a' ? +[](void* data, SoSensor*) { *static_cast<std::string*>(data) += 'a'; }
                        : +[](void* data, SoSensor*) { *static_cast<std::string*>(data) += 'b'; };
    };
    SoFieldSensor a(append('a'), &order);
    SoNodeSensor b(append('b'), &order);
    a.setPriority(20);
    b.setPriority(10);
    a.attach(&root->size);
    b.attach(root.get());
    root->size = 2;
    root->size = 3;
    EXPECT_TRUE(order.empty());
    SoDB::getSensorManager().processDelayQueue(true);
    EXPECT_EQ(order, "ba");
}

TEST(Notification, ASensorIsToldWhenItsNodeGoes)
{
    SoDB::init();
    bool isGone = false;
    SoNodeSensor sensor;
    sensor.setDeleteCallback([](void* data, SoSensor*) { *static_cast<bool*>(data) = true; }, &isGone);
    {
        const Held<SoSample> root;
        sensor.attach(root.get());
    }
    EXPECT_TRUE(isGone);
    EXPECT_EQ(sensor.getAttachedNode(), nullptr);
}

TEST(Connections, PassValuesOnWhenTheyAreAskedFor)
{
    const Held<SoSample> a;
    const Held<SoSample> b;
    const Held<SoSample> c;
    ASSERT_TRUE(b->size.connectFrom(&a->size));
    ASSERT_TRUE(c->words.connectFrom(&b->size));
    a->size = 4;
    EXPECT_FLOAT_EQ(b->size.getValue(), 4);
    EXPECT_EQ(c->words[0], "4");
    b->size.enableConnection(false);
    a->size = 5;
    EXPECT_FLOAT_EQ(b->size.getValue(), 4);
    b->size.enableConnection(true);
    EXPECT_FLOAT_EQ(b->size.getValue(), 5);
    b->size.disconnect();
    a->size = 6;
    EXPECT_FLOAT_EQ(b->size.getValue(), 5);
    EXPECT_TRUE(a->size.getForwardConnections().empty());
}

TEST(Connections, ACycleIsCut)
{
    const Held<SoSample> a;
    const Held<SoSample> b;
    ASSERT_TRUE(b->size.connectFrom(&a->size));
    ASSERT_TRUE(a->size.connectFrom(&b->size));
    a->size = 7;
    EXPECT_FLOAT_EQ(b->size.getValue(), 7);
    EXPECT_FALSE(a->size.connectFrom(&a->size));
}

TEST(Connections, ASourceThatGoesLeavesItsLastValue)
{
    const Held<SoSample> a;
    {
        const Held<SoSample> b;
        a->size.connectFrom(&b->size);
        b->size = 8;
    }
    EXPECT_FLOAT_EQ(a->size.getValue(), 8);
    EXPECT_FALSE(a->size.isConnected());
}

TEST(Connections, ConvertWhereThatMakesSense)
{
    const Held<SoSample> a;
    const Held<SoSample> b;
    ASSERT_TRUE(b->open.connectFrom(&a->size));
    ASSERT_TRUE(b->values.connectFrom(&a->place));
    a->size = 0;
    EXPECT_FALSE(b->open.getValue());
    a->place = SbVec3f(4, 5, 6);
    ASSERT_EQ(b->values.getNum(), 3);
    EXPECT_FLOAT_EQ(b->values[2], 6);
    EXPECT_FALSE(b->held.connectFrom(&a->size));
}

TEST(Paths, FollowChangesOfTheChildrenTheyLeadThrough)
{
    const Held<SoSample> root;
    for (int i = 0; i < 3; ++i)
        root->addChild(new SoSample);
    auto* path = new SoPath(root.get());
    path->ref();
    path->append(2);
    root->insertChild(new SoSample, 0);
    EXPECT_EQ(path->getIndex(1), 3);
    root->removeChild(1);
    EXPECT_EQ(path->getIndex(1), 2);
    EXPECT_EQ(path->getTail(), root->getChild(2));
    root->replaceChild(2, new SoSample);
    EXPECT_EQ(path->getLength(), 1);
    path->unref();
}

} // namespace
