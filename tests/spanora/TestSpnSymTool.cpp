#include <spanora/SpnSymTool.h>
#include <vexel/base/SoDebugError.h>
#include <vexel/base/SoPreferences.h>

#include <gtest/gtest.h>

namespace {

class SpnSymToolTest : public testing::Test {
protected:
    SpnSymToolTest()
    {
        SoPreferences::setValue("TEST_MODULE_INITS", "0");
        SoPreferences::setValue("TEST_MODULE_FINISHES", "0");
        SoDebugError::setHandlerCallback(
            [](const SoError* error, void* data) {
                static_cast<SpnSymToolTest*>(data)->m_message = error->getDebugString().toUtf8().toStdString();
            },
            this);
    }
    ~SpnSymToolTest() override { SoDebugError::setHandlerCallback(nullptr); }

    static int inits() { return SoPreferences::getInt("TEST_MODULE_INITS", -1); }
    static int finishes() { return SoPreferences::getInt("TEST_MODULE_FINISHES", -1); }

    std::string m_message;
};

} // namespace

TEST_F(SpnSymToolTest, AModuleIsStartedOnceAndFinishedOnce)
{
    EXPECT_TRUE(SpnSymTool::initModule("spanora_test_GoodModule"));
    EXPECT_TRUE(SpnSymTool::initModule("spanora_test_GoodModule"));
    EXPECT_EQ(inits(), 1);
    SpnSymTool::finishModule("spanora_test_GoodModule");
    SpnSymTool::finishModule("spanora_test_GoodModule");
    EXPECT_EQ(finishes(), 1);
    EXPECT_TRUE(SpnSymTool::initModule("spanora_test_GoodModule"));
    SpnSymTool::finishModule("spanora_test_GoodModule");
    EXPECT_EQ(inits(), 2);
    EXPECT_EQ(finishes(), 2);
    EXPECT_EQ(m_message, "");
}

TEST_F(SpnSymToolTest, AMissingModuleIsNoError)
{
    EXPECT_FALSE(SpnSymTool::initModule("NoSuchModule"));
    SpnSymTool::finishModule("NoSuchModule");
    EXPECT_EQ(m_message, "");
}

TEST_F(SpnSymToolTest, ALibraryThatIsNoModuleIsToldAbout)
{
    EXPECT_FALSE(SpnSymTool::initModule("spanora_test_HalfModule"));
    EXPECT_NE(m_message.find("the module 'spanora_test_HalfModule' cannot be used: it has no functions spnInitModule "
                             "and spnFinishModule"),
              std::string::npos)
        << m_message;
}
