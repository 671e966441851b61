#include <vexel/engines/SoElapsedTime.h>
#include <vexel/fields/SoSFFloat.h>
#include <vexel/sensors/SoFieldSensor.h>

#include "EngineFixture.h"

namespace {

/** A watch with a clock that the test sets. */
class ElapsedTimeTest : public EngineTest {
protected:
    ElapsedTimeTest()
    {
        m_clock.setValue(100.0);
        m_watch->timeIn.connectFrom(&m_clock);
        m_elapsed.connectFrom(&m_watch->timeOut);
    }

    double at(double time)
    {
        m_clock.setValue(time);
        return m_elapsed.getValue().getValue();
    }

    SoSFTime m_clock;
    HeldEngine<SoElapsedTime> m_watch;
    SoSFTime m_elapsed;
};

} // namespace

TEST_F(ElapsedTimeTest, CountsFromTheFirstQuestion)
{
    EXPECT_EQ(at(103), 0);
    EXPECT_EQ(at(105), 2);
    m_watch->reset.setValue();
    EXPECT_EQ(m_elapsed.getValue().getValue(), 0);
    EXPECT_EQ(at(106.5), 1.5);
}

TEST_F(ElapsedTimeTest, ChangesCountFromTheirMomentOnAlsoWhenNobodyAsks)
{
    EXPECT_EQ(at(100), 0);
    m_clock.setValue(102.0);
    m_watch->speed = 10;
    m_clock.setValue(103.0);
    m_watch->pause = true;
    EXPECT_EQ(at(200), 12);
    m_watch->pause = false;
    m_watch->speed = -1;
    EXPECT_EQ(at(202), 10);
}

TEST_F(ElapsedTimeTest, AWatchThatIsOffGivesNothing)
{
    EXPECT_EQ(at(100), 0);
    EXPECT_EQ(at(104), 4);
    m_watch->on = false;
    EXPECT_EQ(at(110), 4);
    m_elapsed.setValue(77.0);
    EXPECT_EQ(at(111), 77);
    m_watch->on = true;
    EXPECT_EQ(at(112), 5);
}

TEST_F(ElapsedTimeTest, AWatchThatStandsStillTellsNobody)
{
    int calls = 0;
    SoFieldSensor sensor([](void* data, SoSensor*) { ++*static_cast<int*>(data); }, &calls);
    sensor.setPriority(0);
    sensor.attach(&m_elapsed);
    EXPECT_EQ(at(100), 0);
    m_watch->pause = true;
    EXPECT_EQ(at(101), 0);
    calls = 0;
    m_clock.setValue(102.0);
    m_clock.setValue(103.0);
    EXPECT_EQ(calls, 0);
    m_watch->pause = false;
    m_clock.setValue(104.0);
    EXPECT_EQ(calls, 2);
}

TEST_F(ElapsedTimeTest, RunsByTheClockOfTheProcess)
{
    const HeldEngine<SoElapsedTime> watch;
    EXPECT_EQ(watch->timeIn.getConnectedField(), SoDB::getGlobalField("realTime"));
    EXPECT_TRUE(watch->timeIn.isDefault());
    SoSFFloat seconds; // of another type
    ASSERT_TRUE(seconds.connectFrom(&watch->timeOut));
    EXPECT_EQ(seconds.getValue(), 0);
    auto* realTime = static_cast<SoSFTime*>(SoDB::getGlobalField("realTime"));
    realTime->setValue(realTime->getValue() + SbTime(3));
    EXPECT_NEAR(static_cast<double>(seconds.getValue()), 3, 1e-3);
}
