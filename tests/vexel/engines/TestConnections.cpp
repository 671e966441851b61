#include <vexel/engines/SoCalculator.h>
#include <vexel/fields/SoSFFloat.h>
#include <vexel/sensors/SoFieldSensor.h>

#include <memory>

#include "EngineFixture.h"

namespace {

using EngineConnections = EngineTest;

/** Counts what a field tells. */
class Counter {
public:
    explicit Counter(SoField& field)
    {
        m_sensor.setPriority(0);
        m_sensor.attach(&field);
    }
    int calls = 0;

private:
    SoFieldSensor m_sensor{[](void* data, SoSensor*) { ++static_cast<Counter*>(data)->calls; }, this};
};

} // namespace

TEST_F(EngineConnections, HoldTheEngine)
{
    SoSFFloat field;
    field.connectFrom(&(new SoCalculator)->oa);
    EXPECT_EQ(field.getConnectedEngine()->getContainer()->getRefCount(), 1);
    field.connectFrom(field.getConnectedEngine());
    EXPECT_EQ(field.getConnectedEngine()->getContainer()->getRefCount(), 1);
    field.disconnect();
    EXPECT_FALSE(field.isConnected());
}

TEST_F(EngineConnections, ARingIsRefused)
{
    const HeldEngine<SoCalculator> first;
    const HeldEngine<SoCalculator> second;
    const HeldEngine<SoCalculator> third;
    EXPECT_FALSE(first->a.connectFrom(&first->oa));
    EXPECT_TRUE(second->a.connectFrom(&first->oa));
    EXPECT_TRUE(third->a.connectFrom(&second->oa));
    EXPECT_TRUE(third->b.connectFrom(&first->oa));
    EXPECT_FALSE(first->b.connectFrom(&third->ob));
    EXPECT_FALSE(first->b.isConnected());
    third->a.disconnect();
    third->b.disconnect();
    EXPECT_TRUE(first->b.connectFrom(&third->ob));
    first->b.disconnect();
}

TEST_F(EngineConnections, ARingThroughAFieldKeepsItsValues)
{
    SoSFFloat field;
    auto* engine = new SoCalculator;
    engine->expression = "oa = a + 1";
    field.setValue(5);
    ASSERT_TRUE(engine->a.connectFrom(&field));
    ASSERT_TRUE(field.connectFrom(&engine->oa));
    EXPECT_EQ(field.getValue(), 6);
    engine->b = 1; // a change that is not of the ring
    field.getValue();
    field.disconnect();
}

TEST_F(EngineConnections, ALadderOfDoubleConnectionsCostsItsLength)
{
    const HeldEngine<SoCalculator> first;
    SoCalculator* last = first.get();
    last->expression = "oa = a; ob = a";
    SoMFFloat end;
    for (int i = 0; i < 60; ++i) {
        auto* next = new SoCalculator;
        next->expression = "oa = (a + b) / 2; ob = a";
        next->a.connectFrom(&last->oa);
        next->b.connectFrom(&last->ob);
        last = next;
        end.connectFrom(&last->oa);
    }
    Counter counter(end);
    first->a = 7; // would take 2 to the power of 60 calls
    EXPECT_EQ(counter.calls, 1);
    ASSERT_EQ(end.getNum(), 1);
    EXPECT_EQ(end[0], 7);
    first->a = 8;
    EXPECT_EQ(counter.calls, 2);
    EXPECT_EQ(end[0], 8);
}

TEST_F(EngineConnections, WhoAsksInBetweenIsToldAgain)
{
    const HeldEngine<SoCalculator> first;
    const HeldEngine<SoCalculator> second;
    first->expression = "oa = a; ob = a";
    second->expression = "oa = a + b";
    second->a.connectFrom(&first->oa);
    second->b.connectFrom(&first->ob);
    SoMFFloat sum;
    sum.connectFrom(&second->oa);
    // Asks for the value as soon as it is told, when only one of the two inputs knows of the change.
    SoFieldSensor eager([](void* data, SoSensor*) { static_cast<SoMFFloat*>(data)->getNum(); }, &sum);
    eager.setPriority(0);
    eager.attach(&sum);
    first->a = 3;
    EXPECT_EQ(sum[0], 6);
}

TEST_F(EngineConnections, SensorsAreToldOfConnectingAndCutting)
{
    const HeldEngine<SoCalculator> engine;
    SoSFFloat source;
    SoSFFloat field;
    Counter counter(field);
    ASSERT_TRUE(field.connectFrom(&source));
    EXPECT_EQ(counter.calls, 1);
    ASSERT_TRUE(field.connectFrom(&engine->oa)); // one change, though another connection is cut
    EXPECT_EQ(counter.calls, 2);
    field.disconnect();
    EXPECT_EQ(counter.calls, 3);
    field.disconnect();
    EXPECT_EQ(counter.calls, 3);
    field.enableConnection(false);
    ASSERT_TRUE(field.connectFrom(&source));
    EXPECT_EQ(counter.calls, 4);
    field.disconnect();
    {
        SoSFFloat shortLived;
        field.connectFrom(&shortLived);
        counter.calls = 0;
    }
    EXPECT_FALSE(field.isConnected());
    EXPECT_EQ(counter.calls, 1);
}

TEST_F(EngineConnections, SensorsAreToldOfTheMarkOfADefault)
{
    SoSFFloat field;
    Counter counter(field);
    field.setDefault(true);
    EXPECT_EQ(counter.calls, 0);
    field.setDefault(false);
    field.setDefault(true);
    EXPECT_EQ(counter.calls, 2);
}
