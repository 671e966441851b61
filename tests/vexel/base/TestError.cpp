#include <vexel/base/SoDebugError.h>
#include <vexel/base/SoErrorStack.h>
#include <vexel/base/SoPreferences.h>
#include <vexel/base/SoReadError.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using Texts = std::vector<std::string>;

/** Collects the messages of all kinds, each kind with a letter of its own in front. */
class Error : public testing::Test {
protected:
    void SetUp() override
    {
        SoError::setHandlerCallback(collect<'E'>, &texts);
        SoDebugError::setHandlerCallback(collect<'D'>, &texts);
        SoReadError::setHandlerCallback(collect<'R'>, &texts);
        SoErrorStack::setHandlerCallback(collect<'S'>, &texts);
    }
    void TearDown() override
    {
        SoError::setHandlerCallback(nullptr);
        SoDebugError::setHandlerCallback(nullptr);
        SoReadError::setHandlerCallback(nullptr);
        SoErrorStack::setHandlerCallback(nullptr);
        SoPreferences::removeValue("VXL_DEBUG_STACKERROR");
        SoPreferences::removeValue("VXL_STACKWALKER_HTML_OUTPUT");
    }

    template <char Kind>
    static void collect(const SoError* error, void* data)
    {
        const std::string text = error->getDebugString().toUtf8().toStdString();
        static_cast<Texts*>(data)->push_back(std::string(1, Kind) + "|" + text);
    }

    Texts texts;
};

SbString stackOfPost()
{
    SbString stack;
    SoErrorStack::setHandlerCallback(
        [](const SoError* error, void* data) {
            *static_cast<SbString*>(data) = dynamic_cast<const SoErrorStack&>(*error).getStack();
        },
        &stack);
    SoErrorStack::post("broken");
    return stack;
}

} // namespace

TEST_F(Error, EachKindReachesItsOwnHandlerInOrder)
{
    SoReadError::post("a.vx, line 3", "unknown word \"%s\"", "Cubex");
    SoError::post("%d of %d", 1, 2);
    SoDebugError::post("SoGroup::addChild", "no child");
    SoErrorStack::post("cannot go on");
    SoDebugError::postWarning("SoA::b", "w");
    SoDebugError::postInfo("SoA::b", "i");
    EXPECT_EQ(texts, Texts({"R|a.vx, line 3: unknown word \"Cubex\"", "E|1 of 2",
                            "D|Error in SoGroup::addChild: no child", "S|Critical error: cannot go on",
                            "D|Warning in SoA::b: w", "D|Information from SoA::b: i"}));
}

TEST_F(Error, LongTextsAndUtf8AreKept)
{
    const std::string text = std::string(10000, 'x') + "\xe2\x82\xac";
    SoError::post("%s", text.c_str());
    EXPECT_EQ(texts, Texts({"E|" + text}));
}

TEST_F(Error, FormatsAsPrintf)
{
    SoError::post("%5.2f|%-4s|%zu|%lld|%x|%c|100%%", 3.14159, "ab", std::size_t(7), -5LL, 255u, 'c');
    EXPECT_EQ(texts, Texts({"E| 3.14|ab  |7|-5|ff|c|100%"}));
}

TEST_F(Error, AHandlerMayPostItself)
{
    SoReadError::setHandlerCallback([](const SoError*, void*) { SoError::post("from the handler"); });
    SoReadError::post("a.vx", "x");
    EXPECT_EQ(texts, Texts({"E|from the handler"}));
}

TEST_F(Error, AHandlerMayReplaceItself)
{
    SoError::setHandlerCallback(
        [](const SoError* error, void* data) {
            collect<'1'>(error, data);
            SoError::setHandlerCallback(collect<'2'>, data);
        },
        &texts);
    SoError::post("a");
    SoError::post("b");
    EXPECT_EQ(texts, Texts({"1|a", "2|b"}));
}

TEST_F(Error, HandlersAreAnswered)
{
    EXPECT_EQ(SoDebugError::getHandlerCallback(), collect<'D'>);
    EXPECT_EQ(SoDebugError::getHandlerData(), &texts);
    EXPECT_EQ(SoError::getHandlerCallback(), collect<'E'>);
}

TEST_F(Error, TheFirstHandlerPrints)
{
    SoDebugError::setHandlerCallback(nullptr);
    testing::internal::CaptureStderr();
    SoDebugError::post("SoA::b", "text %d", 5);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "Error in SoA::b: text 5\n");
    EXPECT_TRUE(texts.empty());
}

TEST_F(Error, SeverityIsKnown)
{
    SoDebugError::Severity severity = SoDebugError::ERROR;
    SoDebugError::setHandlerCallback(
        [](const SoError* error, void* data) {
            *static_cast<SoDebugError::Severity*>(data) = dynamic_cast<const SoDebugError&>(*error).getSeverity();
        },
        &severity);
    SoDebugError::postWarning("SoA::b", "w");
    EXPECT_EQ(severity, SoDebugError::WARNING);
}

TEST_F(Error, StackIsCollectedOnlyWhenAsked)
{
    SoPreferences::setValue("VXL_DEBUG_STACKERROR", "0");
    EXPECT_TRUE(stackOfPost().isEmpty());
    SoPreferences::setValue("VXL_DEBUG_STACKERROR", "1");
    const SbString stack = stackOfPost();
    EXPECT_TRUE(stack.startsWith("#0 "));
    EXPECT_GE(stack.getSubString(0, stack.find("\n")).find("test_vexel_base"), 0);
    EXPECT_LT(stack.find("SoErrorStack::post"), 0);
}

TEST_F(Error, StackAsHtml)
{
    SoPreferences::setValue("VXL_DEBUG_STACKERROR", "1");
    SoPreferences::setValue("VXL_STACKWALKER_HTML_OUTPUT", "1");
    const SbString stack = stackOfPost();
    EXPECT_TRUE(stack.startsWith("<pre>#0 "));
    EXPECT_TRUE(stack.endsWith("</pre>"));
    EXPECT_EQ(stack.getSubString(5).find("<"), stack.getLength() - 11);
}
