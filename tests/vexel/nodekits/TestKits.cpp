#include <gtest/gtest.h>

#include <string>

#include <vexel/actions/SoGetBoundingBoxAction.h>
#include <vexel/actions/SoWriteAction.h>
#include <vexel/base/SbString.h>
#include <vexel/io/SoDB.h>
#include <vexel/io/SoInput.h>
#include <vexel/io/SoOutput.h>
#include <vexel/nodekits/SoAppearanceKit.h>
#include <vexel/nodekits/SoCameraKit.h>
#include <vexel/nodekits/SoNodeKitListPart.h>
#include <vexel/nodekits/SoNodekitCatalog.h>
#include <vexel/nodekits/SoSceneKit.h>
#include <vexel/nodekits/SoShapeKit.h>
#include <vexel/nodes/SoGroup.h>
#include <vexel/nodes/SoMaterial.h>
#include <vexel/nodes/SoSeparator.h>
#include <vexel/nodes/SoSphere.h>
#include <vexel/nodes/SoTransform.h>

namespace {

std::string written(SoNode* node)
{
    SoOutput out;
    SoWriteAction action(&out);
    action.apply(node);
    return out.getText();
}

class Kits : public testing::Test {
protected:
    static void SetUpTestSuite() { SoDB::init(); }
    void SetUp() override
    {
        kit = new SoShapeKit;
        kit->ref();
    }
    void TearDown() override { kit->unref(); }

    SoShapeKit* kit = nullptr;
};

} // namespace

TEST_F(Kits, CatalogKnowsPartsParentsAndSiblings)
{
    const SoNodekitCatalog& catalog = kit->getNodekitCatalog();
    EXPECT_EQ(catalog.getPartNumber("this"), 0);
    EXPECT_EQ(catalog.getType(0), SoShapeKit::getClassTypeId());
    EXPECT_EQ(catalog.getPartNumber("nothing"), SoNodekitCatalog::NotFound);
    const int shape = catalog.getPartNumber("shape");
    ASSERT_GT(shape, 0);
    EXPECT_EQ(catalog.getParentName(shape), SbName("shapeSeparator"));
    EXPECT_EQ(catalog.getParentPartNumber(catalog.getPartNumber("topSeparator")), 0);
    EXPECT_FALSE(catalog.isNullByDefault(shape));
    EXPECT_TRUE(catalog.isPublic(shape));
    EXPECT_FALSE(catalog.isPublic(catalog.getPartNumber("topSeparator")));
    EXPECT_FALSE(catalog.isLeaf(catalog.getPartNumber("shapeSeparator")));
    const int list = catalog.getPartNumber("childList");
    EXPECT_TRUE(catalog.isList(list));
    EXPECT_EQ(catalog.getListContainerType(list), SoSeparator::getClassTypeId());
    EXPECT_EQ(catalog.getListItemTypes(list).size(), 2u);
}

TEST_F(Kits, EveryPartOfEveryKitCanBeMadeAndNamesItself)
{
    for (const SoType type : SoType::getAllDerivedFrom(SoBaseKit::getClassTypeId())) {
        if (!type.canCreateInstance())
            continue;
        auto* any = static_cast<SoBaseKit*>(type.createInstance());
        any->ref();
        const SoNodekitCatalog& catalog = any->getNodekitCatalog();
        for (int part = 1; part < catalog.getNumEntries(); ++part) {
            const SbName name = catalog.getName(part);
            SCOPED_TRACE(std::string(type.getName().getString()) + "." + name.getString());
            if (!catalog.isPublic(part)) {
                EXPECT_EQ(any->getPart(name, true), nullptr);
                continue;
            }
            SoNode* node = any->getPart(name, true);
            ASSERT_NE(node, nullptr);
            EXPECT_EQ(node->getTypeId(), catalog.getDefaultType(part));
            EXPECT_EQ(any->getPartString(node), SbString(name));
            EXPECT_EQ(any->getPart(name, false), node);
        }
        any->unref();
    }
}

TEST_F(Kits, NestedAndListPartsAreNamedByPaths)
{
    SoNode* material = kit->getPart("appearance.material", true);
    ASSERT_NE(material, nullptr);
    EXPECT_EQ(kit->getPartString(material), "appearance.material");
    auto* list = static_cast<SoNodeKitListPart*>(kit->getPart("childList", true));
    for (int i = 0; i < 4; ++i)
        list->addChild(new SoShapeKit);
    EXPECT_EQ(kit->getPartString(list->getChild(3)), "childList[3]");
    EXPECT_EQ(kit->getPart("childList[3]", false), list->getChild(3));
    EXPECT_EQ(kit->getPart("childList[4]", false), nullptr);
    SoNode* inner = kit->getPart("childList[2].appearance.material", true);
    EXPECT_EQ(kit->getPartString(inner), "childList[2].appearance.material");
    for (const char* bad : {"childList[", "childList[x]", "childList[-1]", "childList[1]x", "material.", "."})
        EXPECT_EQ(kit->getPart(bad, true), nullptr) << bad;
    auto* stranger = new SoMaterial;
    stranger->ref();
    EXPECT_TRUE(kit->getPartString(stranger).isEmpty());
    EXPECT_FALSE(list->isChildPermitted(stranger));
    stranger->unref();
}

TEST_F(Kits, PartsStandInTheOrderOfTheCatalogBelowTheKit)
{
    kit->getPart("shape", true);
    kit->getPart("transform", true);
    kit->getPart("appearance.material", true);
    ASSERT_EQ(kit->getChildren()->getLength(), 1);
    const SoChildList& top = *(*kit->getChildren())[0]->getChildren();
    ASSERT_EQ(top.getLength(), 3);
    EXPECT_EQ(top[0], kit->appearance.getValue());
    EXPECT_EQ(top[1], kit->transform.getValue());
    EXPECT_EQ(top[2], kit->shapeSeparator.getValue());
    kit->transform = nullptr;
    EXPECT_EQ(top.getLength(), 2);
}

TEST_F(Kits, SetPartRefusesWhatDoesNotFit)
{
    auto* sphere = new SoSphere;
    EXPECT_TRUE(kit->setPart("shape", sphere));
    EXPECT_EQ(kit->shape.getValue(), sphere);
    auto* material = new SoMaterial;
    material->ref();
    EXPECT_FALSE(kit->setPart("shape", material));
    EXPECT_FALSE(kit->setPart("topSeparator", material));
    EXPECT_FALSE(kit->setPart("nothing", material));
    EXPECT_TRUE(kit->setPart("appearance.material", material));
    EXPECT_EQ(kit->shape.getValue(), sphere);
    material->unref();
}

TEST_F(Kits, SetTakesFieldsOfParts)
{
    EXPECT_TRUE(kit->set("appearance.material { diffuseColor 1 0 0 } transform { translation 3 0 0 }"));
    EXPECT_TRUE(kit->set(SbName("shape"), "width 4"));
    EXPECT_FALSE(kit->set("nothing { }"));
    EXPECT_FALSE(kit->set("transform { translation 1"));
    EXPECT_FALSE(kit->set("transform { nofield 1 }"));
    EXPECT_EQ(static_cast<SoMaterial*>(kit->getPart("appearance.material", false))->diffuseColor[0], SbColor(1, 0, 0));
    SoGetBoundingBoxAction box(SbViewportRegion(100, 100));
    box.apply(kit);
    EXPECT_EQ(box.getBoundingBox().getMin(), SbVec3f(1, -1, -1));
    EXPECT_EQ(box.getBoundingBox().getMax(), SbVec3f(5, 1, 1));
}

TEST_F(Kits, OnlyWhatDiffersFromANewKitIsWritten)
{
    const auto isEmptyText = [](const std::string& text) { return text.find("ShapeKit {\n}") != std::string::npos; };
    EXPECT_TRUE(isEmptyText(written(kit))) << written(kit);
    kit->getPart("appearance", true);
    kit->getPart("childList", true);
    EXPECT_TRUE(isEmptyText(written(kit))) << written(kit);
    kit->getPart("appearance.material", true);
    EXPECT_NE(written(kit).find("appearance AppearanceKit {\n    material Material {"), std::string::npos)
        << written(kit);
    kit->set("shape { width 5 }");
    EXPECT_NE(written(kit).find("shape Cube {\n    width 5\n  }"), std::string::npos) << written(kit);
}

TEST_F(Kits, ComeBackFromTheirTextAndFromTheirCopy)
{
    kit->set("appearance.material { diffuseColor 1 0 0 } shape { width 5 }");
    auto* inner = new SoShapeKit;
    inner->setPart("shape", new SoSphere);
    static_cast<SoNodeKitListPart*>(kit->getPart("childList", true))->addChild(inner);
    const std::string text = written(kit);
    SoInput in;
    in.setBuffer(text.data(), text.size());
    SoNode* again = nullptr;
    ASSERT_TRUE(SoDB::read(&in, again));
    ASSERT_NE(again, nullptr);
    again->ref();
    EXPECT_EQ(in.getNumErrors(), 0);
    EXPECT_EQ(written(again), text);
    auto* readKit = static_cast<SoShapeKit*>(again);
    EXPECT_TRUE(
        static_cast<SoNodeKitListPart*>(readKit->childList.getValue())->isTypePermitted(SoShapeKit::getClassTypeId()));
    SoNode* copy = kit->copy();
    copy->ref();
    EXPECT_EQ(written(copy), text);
    EXPECT_NE(static_cast<SoShapeKit*>(copy)->shape.getValue(), kit->shape.getValue());
    EXPECT_EQ((*copy->getChildren())[0], static_cast<SoShapeKit*>(copy)->topSeparator.getValue());
    EXPECT_NE((*copy->getChildren())[0], kit->topSeparator.getValue());
    EXPECT_EQ(written(kit), text);
    copy->unref();
    again->unref();
}

TEST_F(Kits, SceneKitSwitchesCameras)
{
    auto* scene = new SoSceneKit;
    scene->ref();
    EXPECT_EQ(scene->getCameraNumber(), -1);
    auto* list = static_cast<SoNodeKitListPart*>(scene->getPart("cameraList", true));
    auto* first = new SoCameraKit;
    auto* second = new SoCameraKit;
    list->addChild(first);
    list->addChild(second);
    scene->setCameraNumber(second);
    EXPECT_EQ(scene->getCameraNumber(), 1);
    scene->setCameraNumber(0);
    EXPECT_EQ(scene->getCameraNumber(), 0);
    scene->unref();
}
