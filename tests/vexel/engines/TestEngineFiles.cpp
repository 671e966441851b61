#include <vexel/engines/SoCalculator.h>
#include <vexel/engines/SoComposeRotation.h>
#include <vexel/engines/SoElapsedTime.h>
#include <vexel/nodes/SoMaterial.h>
#include <vexel/nodes/SoTransform.h>

#include "EngineFixture.h"
#include <tests/vexel/io/SceneText.h>

namespace {

using EngineFiles = EngineTest;

const std::string Turning = R"(#Vexel V2.1 ascii

Separator {
  Transform {
    rotation = ComposeRotation {
      axis 0 1 0
      angle 0 = DEF watch ElapsedTime {
        speed 0.5
      } . timeOut
    } . rotation
  }
  DEF red Material {
    transparency 0 = DEF calc Calculator {
      a 0 = USE watch . timeOut
      expression "oa = a / 10"
    } . oa
  }
  Material {
    transparency 0 = USE calc . oa
  }
}
)";

} // namespace

TEST_F(EngineFiles, AreReadAndWrittenWithTheirConnections)
{
    const ReadErrors readErrors;
    const Scene scene(Turning);
    ASSERT_TRUE(scene.root);
    const std::string ascii = written(scene.root);
    EXPECT_EQ(rewritten(ascii), ascii);
    EXPECT_EQ(rewritten(written(scene.root, true)), ascii);
    EXPECT_EQ(readErrors.texts, std::vector<std::string>());

    auto* transform = static_cast<SoTransform*>(scene.root->getChild(0));
    auto* red = static_cast<SoMaterial*>(scene.root->getChild(1));
    auto* other = static_cast<SoMaterial*>(scene.root->getChild(2));
    ASSERT_TRUE(transform->rotation.isConnectedFromEngine());
    auto* compose = static_cast<SoComposeRotation*>(transform->rotation.getConnectedEngine()->getContainer());
    ASSERT_TRUE(compose->isOfType(SoComposeRotation::getClassTypeId()));
    auto* watch = static_cast<SoElapsedTime*>(compose->angle.getConnectedEngine()->getContainer());
    EXPECT_EQ(watch->getName(), SbName("watch"));
    EXPECT_EQ(red->transparency.getConnectedEngine(), other->transparency.getConnectedEngine());

    // The whole chain moves.
    SoSFTime clock;
    clock.setValue(0.0);
    watch->timeIn.connectFrom(&clock);
    transform->rotation.getValue();
    clock.setValue(4.0);
    EXPECT_TRUE(transform->rotation.getValue().equals(SbRotation(SbVec3f(0, 1, 0), 2), 1e-5f));
    EXPECT_FLOAT_EQ(other->transparency[0], 0.2f);
}

TEST_F(EngineFiles, HaveNothingToWriteWhenNew)
{
    for (const SoType type : SoType::getAllDerivedFrom(SoEngine::getClassTypeId())) {
        if (!type.canCreateInstance())
            continue;
        auto* engine = static_cast<SoEngine*>(type.createInstance());
        engine->ref();
        EXPECT_TRUE(engine->hasDefaultValues()) << type.getName().getString();
        EXPECT_EQ(engine->get(), SbString()) << type.getName().getString();
        EXPECT_FALSE(engine->getOutputs().empty());
        engine->unref();
    }
}

TEST_F(EngineFiles, AWatchWithoutAClockStaysSo)
{
    const std::string text = R"(#Vexel V2.1 ascii

Material {
  transparency 0 = ElapsedTime {
    timeIn 0
  } . timeOut
}
)";
    const Scene scene(text);
    auto* material = static_cast<SoMaterial*>(scene.root->getChild(0));
    auto* watch = static_cast<SoElapsedTime*>(material->transparency.getConnectedEngine()->getContainer());
    EXPECT_FALSE(watch->timeIn.isConnected());
    EXPECT_EQ(written(material), text);
    const Scene again(written(material, true));
    EXPECT_EQ(written(again.root->getChild(0)), text);
}

TEST_F(EngineFiles, AnEngineMayFeedTheNodeThatFeedsIt)
{
    const std::string text = R"(#Vexel V2.1 ascii

DEF ball Material {
  shininess 0.25
  transparency 0.5 = Calculator {
    a 0.25 = USE ball . shininess
    expression "oa = a * 2"
  } . oa
}
)";
    const ReadErrors readErrors;
    const Scene scene(text);
    auto* ball = static_cast<SoMaterial*>(scene.root->getChild(0));
    EXPECT_FLOAT_EQ(ball->transparency[0], 0.5f);
    ball->shininess = 0.125f;
    EXPECT_FLOAT_EQ(ball->transparency[0], 0.25f);
    ball->shininess = 0.25f;
    EXPECT_EQ(written(ball), text);
    EXPECT_EQ(rewritten(written(ball, true)), rewritten(text));
    EXPECT_EQ(readErrors.texts, std::vector<std::string>());
}

TEST_F(EngineFiles, ARingOfEnginesIsRefused)
{
    const ReadErrors readErrors;
    const Scene scene("#Vexel V2.1 ascii\nMaterial { transparency = DEF x Calculator {\n"
                      "a = Calculator { a = USE x . oa } . oa } . oa }");
    ASSERT_EQ(readErrors.texts.size(), 1u);
    EXPECT_NE(
        readErrors.texts[0].find("no connection to \"oa\": its type does not fit, or the value would depend on itself"),
        std::string::npos);
}

TEST_F(EngineFiles, AChainThatTheStackCannotBearIsCut)
{
    constexpr int Length = 20000;
    std::string text = "#Vexel V2.1 ascii\nSeparator { Material { transparency = DEF c0 Calculator { } . oa }\n";
    for (int i = 1; i < Length; ++i) {
        const std::string number = std::to_string(i);
        text += "Material { transparency = DEF c" + number + " Calculator { a = USE c" + std::to_string(i - 1) +
                " . oa } . oa }\n";
    }
    text += "}";
    const ReadErrors readErrors;
    {
        const Scene scene(text);
        auto* first = static_cast<SoMaterial*>(static_cast<SoGroup*>(scene.root)->getChild(0));
        auto* engine = static_cast<SoCalculator*>(first->transparency.getConnectedEngine()->getContainer());
        engine->a = 5; // walks along the chain
        EXPECT_EQ(rewritten(written(scene.root, true)), written(scene.root));
    }
    ASSERT_FALSE(readErrors.texts.empty());
    EXPECT_NE(readErrors.texts[0].find("there are too many connections one behind the other"), std::string::npos);
}
