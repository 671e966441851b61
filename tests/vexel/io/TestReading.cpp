#include <gtest/gtest.h>

#include <vexel/fields/SoSFEnum.h>
#include <vexel/nodes/SoUnknownNode.h>

#include "SceneText.h"

namespace {

const std::string Header = "#Vexel V2.1 ascii\n";

using Texts = std::vector<std::string>;

TEST(Reading, KeepsOneRootSeparatorAsItIs)
{
    const Scene scene(Header + "DEF top Separator { Group { } Group { } }");
    ASSERT_TRUE(scene.root);
    EXPECT_EQ(scene.root->getName(), "top");
    EXPECT_EQ(scene.root->getNumChildren(), 2);
    EXPECT_EQ(scene.root->getRefCount(), 1);
}

TEST(Reading, PutsSeveralRootsUnderANewSeparator)
{
    const Scene scene(Header + "Group { }\r\nSeparator { }\rGroup { } # no line end");
    ASSERT_TRUE(scene.root);
    EXPECT_EQ(scene.root->getNumChildren(), 3);
}

TEST(Reading, TakesPrefixedTypeNamesCommasAndOddNames)
{
    const ReadErrors errors;
    const Scene scene(Header + "SoSeparator { , DEF _<PART> SoGroup { }, DEF tail:UNKNOWN Group { } DEF +1 Group { }"
                               " DEF Arm+3 Group { } USE Arm+3 USE +1 }");
    ASSERT_TRUE(scene.root);
    EXPECT_TRUE(errors.texts.empty());
    ASSERT_EQ(scene.root->getNumChildren(), 6);
    EXPECT_EQ(scene.root->getChild(0)->getName(), "_<PART>");
    EXPECT_EQ(scene.root->getChild(1)->getName(), "tail:UNKNOWN");
    EXPECT_TRUE(scene.root->getChild(2)->getName().isEmpty());
    EXPECT_EQ(scene.root->getChild(3)->getName(), "Arm");
    EXPECT_EQ(scene.root->getChild(4), scene.root->getChild(3));
    EXPECT_EQ(scene.root->getChild(5), scene.root->getChild(2));
}

TEST(Reading, UseTakesTheLatestDefinitionBeforeIt)
{
    const Scene scene(Header + "Separator { DEF a Group { } USE a DEF a Separator { } USE a }");
    EXPECT_EQ(scene.root->getChild(1), scene.root->getChild(0));
    EXPECT_EQ(scene.root->getChild(3), scene.root->getChild(2));
}

struct Fault {
    const char* text;
    Texts errors;
    const char* kept;
};

class Faults : public testing::TestWithParam<Fault> {};

TEST_P(Faults, AreReportedWithTheirPlaceAndWhatIsGoodIsKept)
{
    const ReadErrors errors;
    const Scene scene(Header + GetParam().text);
    EXPECT_EQ(errors.texts, GetParam().errors);
    ASSERT_TRUE(scene.root);
    EXPECT_EQ(written(scene.root), rewritten(Header + GetParam().kept));
}

INSTANTIATE_TEST_SUITE_P(
    Reading, Faults,
    testing::Values(
        Fault{"Separator { USE nobody Group { } }",
              {"text:2:17: USE of \"nobody\", which no DEF before it defines"},
              "Separator { Group { } }"},
        Fault{
            "Separator { DEF a Separator { USE a Group { } } }",
            {"text:2:35: USE of \"a\" inside its own definition; a graph cannot contain itself, the reference is left "
             "out"},
            "Separator { DEF a Separator { Group { } } }"},
        Fault{"Separator {\n  Group { }\n  Separator {\n",
              {"text:5:1: the closing brace of the Separator that begins in line 4 is missing",
               "text:5:1: the closing brace of the Separator that begins in line 2 is missing"},
              "Separator { Group { } Separator { } }"},
        Fault{"Separator { Group { } }\n}\n",
              {"text:3:1: a closing brace without an opening one; it is passed over"},
              "Separator { Group { } }"},
        Fault{"Separator { colour 1 2 3 renderCulling ON shade [ { 1 } ] Group { } }",
              {"text:2:13: \"colour\" is no field of Separator; it is passed over",
               "text:2:43: \"shade\" is no field of Separator; it is passed over"},
              "Separator { renderCulling ON Group { } }"},
        Fault{"Separator { Separator { renderCulling PERHAPS Group { } } Group { } }",
              {"text:2:39: expected OFF, ON or AUTO"},
              "Separator { Separator { } Group { } }"},
        Fault{"Separator { renderCulling ON renderCulling OFF }", {}, "Separator { renderCulling OFF }"},
        Fault{"Separator { Group }",
              {"text:2:13: \"Group\" is no field of Separator; it is passed over"},
              "Separator { }"},
        Fault{
            "Separator { DEF }", {"text:2:13: \"DEF\" is no field of Separator; it is passed over"}, "Separator { }"}));

TEST(Reading, CountsErrorsBeyondAHundredOnly)
{
    std::string text = Header + "Separator {\n";
    for (int i = 0; i < 150; ++i)
        text += "USE nobody\n";
    const ReadErrors errors;
    const Scene scene(text + "}");
    ASSERT_EQ(errors.texts.size(), 101u);
    EXPECT_NE(errors.texts.back().find("150 errors in all"), std::string::npos) << errors.texts.back();
}

TEST(Reading, LeavesOutWhatIsNestedTooDeep)
{
    std::string text = Header;
    for (int i = 0; i < 100000; ++i)
        text += "Separator {";
    const ReadErrors errors;
    const Scene scene(text);
    ASSERT_TRUE(scene.root);
    ASSERT_FALSE(errors.texts.empty());
    EXPECT_NE(errors.texts.front().find("more than 1000 nodes inside each other"), std::string::npos);
}

TEST(Reading, AnUnknownNodeKeepsItsTextFieldsAndChildren)
{
    const std::string text = Header + R"(
Separator {
  Gadget {
    size 1 2 # a comment
    label "a } brace"
  }
  Holder {
    Group {
    }
    DEF inner Separator {
      renderCulling ON
    }
  }
  Declared {
    fields [ SFFloat width, MFVec3f points ]
    isA [ "Group" ]
    width 2.5
    points [ 0 0 0,
        1 2 3 ]
    Group {
    }
  }
  USE inner
}
)";
    const ReadErrors errors;
    const Scene scene(text);
    ASSERT_TRUE(scene.root);
    EXPECT_TRUE(errors.texts.empty());
    auto* gadget = static_cast<SoUnknownNode*>(scene.root->getChild(0));
    EXPECT_EQ(gadget->getNodeTypeName(), "Gadget");
    EXPECT_NE(gadget->getBodyText().find("a } brace"), std::string::npos);
    EXPECT_EQ(scene.root->getChild(1)->getChildren()->getLength(), 2);
    EXPECT_TRUE(scene.root->getChild(2)->getField("points"));
    const std::string once = written(scene.root);
    EXPECT_EQ(rewritten(once), once);
    EXPECT_EQ(rewritten(written(scene.root, true)), once);
    EXPECT_NE(once.find("label \"a } brace\""), std::string::npos);
    EXPECT_NE(once.find("width 2.5"), std::string::npos);
}

TEST(Reading, RefusesWhatIsNoSceneFile)
{
    EXPECT_TRUE(SoDB::isValidHeader("#Vexel V2.1 ascii"));
    EXPECT_TRUE(SoDB::isValidHeader("#Vexel V2.0 ascii made by hand"));
    EXPECT_TRUE(SoDB::isValidHeader("#Vexel V2.1 binary   "));
    EXPECT_FALSE(SoDB::isValidHeader("#Vexel V2.1 asciii"));
    EXPECT_FALSE(SoDB::isValidHeader("solid cube"));
    EXPECT_FALSE(SoDB::isValidHeader(""));
}

class CutOff : public testing::TestWithParam<const char*> {};

TEST_P(CutOff, IsCompletedSoThatItReadsBack)
{
    const ReadErrors errors;
    const std::string once = rewritten(Header + GetParam());
    EXPECT_FALSE(errors.texts.empty());
    const ReadErrors none;
    EXPECT_EQ(rewritten(once), once);
    EXPECT_TRUE(none.texts.empty());
}

INSTANTIATE_TEST_SUITE_P(Reading, CutOff,
                         testing::Values("Separator { Gadget { size 1 { 2 ", "Separator { Gadget { label \"a } b",
                                         "Separator { Gadget { label \"a\\", "Holder { Gadget {# comment",
                                         "Gadget { fields [ SFBool a SFNothing b ] a TRUE {"));

TEST(Reading, ABraceMakesANodeOfAWordThatIsAFieldTooAndZeroIsWhiteSpace)
{
    const ReadErrors errors;
    const std::string once = rewritten(Header + "Separator { renderCulling { size 1 } renderCulling ON }");
    EXPECT_TRUE(errors.texts.empty());
    EXPECT_EQ(rewritten(once), once);
    EXPECT_EQ(rewritten(Header + std::string("Separator\0{ \0 }", 15)), rewritten(Header + "Separator { }"));
}

} // namespace
