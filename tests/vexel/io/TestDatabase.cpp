#include <gtest/gtest.h>

#include <atomic>
#include <thread>

#include <vexel/fields/SoSFFloat.h>
#include <vexel/fields/SoSFTime.h>
#include <vexel/sensors/SoAlarmSensor.h>
#include <vexel/sensors/SoIdleSensor.h>
#include <vexel/sensors/SoOneShotSensor.h>
#include <vexel/sensors/SoSensorManager.h>
#include <vexel/sensors/SoTimerSensor.h>

#include "SceneText.h"

namespace {

TEST(Database, ATextOfARegisteredHeaderIsRead)
{
    SoDB::init();
    EXPECT_FALSE(SoDB::isValidHeader("#Workshop 3"));
    int numCalls = 0;
    ASSERT_TRUE(SoDB::registerHeader(
        "#Workshop 3", false, [](void* data, SoInput*) { ++*static_cast<int*>(data); }, &numCalls));
    EXPECT_TRUE(SoDB::isValidHeader("#Workshop 3"));
    EXPECT_FALSE(SoDB::registerHeader("no comment", false, nullptr, nullptr));
    const Scene scene("#Workshop 3 more words\nSeparator { Group { } }");
    ASSERT_TRUE(scene.root);
    EXPECT_EQ(scene.root->getNumChildren(), 1);
    EXPECT_EQ(numCalls, 1);
}

TEST(Database, GlobalFieldsAreKnownByTheirNames)
{
    SoDB::init();
    EXPECT_EQ(SoDB::getGlobalField("speed"), nullptr);
    SoField* speed = SoDB::createGlobalField("speed", SoSFFloat::getClassTypeId());
    ASSERT_TRUE(speed);
    EXPECT_EQ(SoDB::createGlobalField("speed", SoSFFloat::getClassTypeId()), speed);
    EXPECT_EQ(SoDB::createGlobalField("speed", SoSFTime::getClassTypeId()), nullptr);
    EXPECT_EQ(SoDB::getGlobalField("speed"), speed);
    auto* realTime = static_cast<SoSFTime*>(SoDB::getGlobalField("realTime"));
    ASSERT_TRUE(realTime);
    EXPECT_GT(realTime->getValue().getValue(), 1e9);
}

TEST(Database, OneWriterOrManyReadersHoldTheLock)
{
    SoDB::init();
    std::atomic<int> readers{0};
    std::atomic<int> writers{0};
    std::atomic<bool> wrong{false};
    const auto read = [&] {
        for (int i = 0; i < 2000; ++i) {
            SoDB::readlock();
            SoDB::readlock();
            ++readers;
            wrong = wrong || writers > 0;
            --readers;
            SoDB::readunlock();
            SoDB::readunlock();
        }
    };
    const auto write = [&] {
        for (int i = 0; i < 2000; ++i) {
            SoDB::writelock();
            SoDB::writelock();
            SoDB::readlock();
            wrong = wrong || ++writers != 1 || readers > 0;
            --writers;
            SoDB::readunlock();
            SoDB::writeunlock();
            SoDB::writeunlock();
        }
    };
    std::vector<std::thread> threads;
    for (int i = 0; i < 2; ++i) {
        threads.emplace_back(read);
        threads.emplace_back(write);
    }
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_FALSE(wrong);
}

/** Appends a letter when a sensor triggers. */
template <char Letter>
void append(void* text, SoSensor*)
{
    *static_cast<std::string*>(text) += Letter;
}

TEST(Sensors, OfTheDelayQueueTriggerOnceEach)
{
    SoDB::init();
    std::string order;
    SoOneShotSensor one(append<'o'>, &order);
    SoIdleSensor idle(append<'i'>, &order);
    SoOneShotSensor gone(append<'g'>, &order);
    one.schedule();
    one.schedule();
    idle.schedule();
    gone.schedule();
    gone.unschedule();
    EXPECT_TRUE(one.isScheduled());
    SoSensorManager& manager = SoDB::getSensorManager();
    manager.processDelayQueue(false);
    EXPECT_EQ(order, "o");
    EXPECT_TRUE(idle.isScheduled());
    manager.processDelayQueue(true);
    EXPECT_EQ(order, "oi");
    manager.processDelayQueue(true);
    EXPECT_EQ(order, "oi");
}

TEST(Sensors, ThatScheduleThemselvesWaitForTheNextTurn)
{
    SoDB::init();
    std::string order;
    SoOneShotSensor again(
        [](void* text, SoSensor* sensor) {
            append<'a'>(text, sensor);
            sensor->schedule();
        },
        &order);
    again.schedule();
    SoDB::getSensorManager().processDelayQueue(true);
    EXPECT_EQ(order, "a");
    EXPECT_TRUE(again.isScheduled());
}

TEST(Sensors, OfTimeTriggerWhenTheyAreDue)
{
    SoDB::init();
    std::string order;
    SoSensorManager& manager = SoDB::getSensorManager();
    SoAlarmSensor past(append<'p'>, &order);
    SoAlarmSensor future(append<'f'>, &order);
    SoTimerSensor timer(append<'t'>, &order);
    past.setTime(SbTime::getTimeOfDay() - SbTime(1));
    future.setTimeFromNow(SbTime(1000));
    timer.setInterval(SbTime(1e-6));
    past.schedule();
    future.schedule();
    timer.schedule();
    SbTime due;
    EXPECT_TRUE(manager.isTimerSensorPending(due));
    const SbTime end = SbTime::getTimeOfDay() + SbTime(5);
    while (order.size() < 3 && SbTime::getTimeOfDay() < end)
        manager.processTimerQueue();
    EXPECT_EQ(order.front(), 'p');
    EXPECT_EQ(order.find('f'), std::string::npos);
    EXPECT_GE(std::count(order.begin(), order.end(), 't'), 2);
    EXPECT_FALSE(past.isScheduled());
    EXPECT_TRUE(timer.isScheduled());
}

} // namespace
