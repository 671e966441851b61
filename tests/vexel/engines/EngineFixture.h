#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include <vexel/base/SbString.h>
#include <vexel/base/SoDebugError.h>
#include <vexel/io/SoDB.h>

/** Collects what is posted as SoDebugError, and checks that no object is left at the end. */
class EngineTest : public testing::Test {
protected:
    EngineTest()
    {
        SoDB::init();
        m_living = SoBase::getNumLiving();
        SoDebugError::setHandlerCallback(
            [](const SoError* error, void* data) {
                static_cast<EngineTest*>(data)->errors.push_back(error->getDebugString().toUtf8().toStdString());
            },
            this);
    }
    ~EngineTest() override
    {
        SoDebugError::setHandlerCallback(nullptr, nullptr);
        EXPECT_EQ(SoBase::getNumLiving(), m_living);
    }

    std::vector<std::string> errors;

private:
    std::int64_t m_living = 0;
};

/** An engine for the length of a test. */
template <class Engine>
class HeldEngine {
public:
    HeldEngine() : m_engine(new Engine) { m_engine->ref(); }
    HeldEngine(const HeldEngine&) = delete;
    HeldEngine& operator=(const HeldEngine&) = delete;
    ~HeldEngine() { m_engine->unref(); }

    Engine* operator->() const { return m_engine; }
    Engine* get() const { return m_engine; }

private:
    Engine* m_engine;
};
