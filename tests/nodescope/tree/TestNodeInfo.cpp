#include <gtest/gtest.h>

#include <nodescope/tree/NscNodeInfo.h>

#include <vexel/base/SoType.h>
#include <vexel/io/SoDB.h>
#include <vexel/nodes/SoNode.h>

#include <QPixmap>

namespace {

struct Expectation {
    const char* type;
    Nsc::NodeCategory category;
};

class Classification : public testing::TestWithParam<Expectation> {};

TEST_P(Classification, PutsTheTypeIntoItsCategory)
{
    SoDB::init();
    const SoType type = SoType::fromName(GetParam().type);
    ASSERT_FALSE(type.isBad()) << GetParam().type;
    EXPECT_EQ(NscNodeInfo::category(type), GetParam().category) << GetParam().type;
}

INSTANTIATE_TEST_SUITE_P(
    NodeInfo, Classification,
    testing::Values(Expectation{"Group", Nsc::Group}, Expectation{"Switch", Nsc::Switch},
                    Expectation{"Separator", Nsc::Separator}, Expectation{"Selection", Nsc::Selection},
                    Expectation{"LOD", Nsc::Group}, Expectation{"Dragger", Nsc::Manipulator},
                    Expectation{"ShapeKit", Nsc::Nodekit}, Expectation{"SceneKit", Nsc::Nodekit},
                    Expectation{"TransformManip", Nsc::Manipulator}, Expectation{"Transform", Nsc::Transform},
                    Expectation{"RotationXYZ", Nsc::Transform}, Expectation{"Texture2Transform", Nsc::Transform},
                    Expectation{"Callback", Nsc::Callback}, Expectation{"EventCallback", Nsc::Callback},
                    Expectation{"Cube", Nsc::Shape}, Expectation{"IndexedFaceSet", Nsc::Shape},
                    Expectation{"Text2", Nsc::Shape}, Expectation{"PerspectiveCamera", Nsc::Camera},
                    Expectation{"DirectionalLight", Nsc::Light}, Expectation{"DirectionalLightManip", Nsc::Manipulator},
                    Expectation{"PointLightManip", Nsc::Manipulator}, Expectation{"SpotLightManip", Nsc::Manipulator},
                    Expectation{"ClipPlaneManip", Nsc::Manipulator}, Expectation{"ClipPlane", Nsc::Property},
                    Expectation{"VertexProperty", Nsc::Topology}, Expectation{"Coordinate3", Nsc::Topology},
                    Expectation{"Coordinate4", Nsc::Topology}, Expectation{"Normal", Nsc::Topology},
                    Expectation{"TextureCoordinate2", Nsc::Topology}, Expectation{"ShapeHints", Nsc::Appearance},
                    Expectation{"Material", Nsc::Appearance}, Expectation{"GradientBackground", Nsc::Appearance},
                    Expectation{"Texture2", Nsc::Appearance}, Expectation{"PickStyle", Nsc::Appearance},
                    Expectation{"Info", Nsc::Property}, Expectation{"NormalBinding", Nsc::Property},
                    Expectation{"SFFloat", Nsc::Property}));

TEST(NodeInfo, EveryNodeTypeHasOneOfTheFourteenCategories)
{
    SoDB::init();
    for (const SoType type : SoType::getAllDerivedFrom(SoNode::getClassTypeId())) {
        const int category = NscNodeInfo::category(type);
        EXPECT_TRUE(category > 0 && category <= int(Nsc::Transform) && (category & (category - 1)) == 0)
            << type.getName().getString();
    }
}

TEST(NodeInfo, AnswersNamesAndKeysAsTabled)
{
    const char* names[] = {"Appearance", "Callback",  "Camera",    "Group", "Light",  "Manipulator", "Nodekit",
                           "Property",   "Selection", "Separator", "Shape", "Switch", "Topology",    "Transform"};
    for (int bit = 0; bit < 14; ++bit) {
        const auto category = static_cast<Nsc::NodeCategory>(1 << bit);
        EXPECT_EQ(NscNodeInfo::categoryName(category), QString(names[bit]));
        EXPECT_EQ(NscNodeInfo::iconPath(category), QString("treeview.") + QString(names[bit]).toLower());
        EXPECT_FALSE(NscNodeInfo::pixmap(category)->isNull()) << names[bit];
    }
    EXPECT_TRUE(NscNodeInfo::categoryName(Nsc::Unknown).isEmpty());
    EXPECT_TRUE(NscNodeInfo::iconPath(Nsc::Unknown).isEmpty());
    EXPECT_FALSE(NscNodeInfo::pixmap(Nsc::Unknown)->isNull());
    EXPECT_EQ(NscNodeInfo::categoryName(Nsc::ReservedManipulator), "Manipulator");
    EXPECT_EQ(NscNodeInfo::iconPath(Nsc::ReservedAppearance), "treeview.appearance");
    EXPECT_EQ(NscNodeInfo::pixmap(Nsc::ReservedManipulator), nullptr);
    EXPECT_EQ(NscNodeInfo::pixmap(Nsc::ReservedAppearance), nullptr);
    const auto mixed = static_cast<Nsc::NodeCategory>(3);
    EXPECT_TRUE(NscNodeInfo::categoryName(mixed).isEmpty());
    EXPECT_EQ(NscNodeInfo::pixmap(mixed), nullptr);
}

TEST(NodeInfo, SharesItsIconsUntilTheyAreForgotten)
{
    QPixmap* first = NscNodeInfo::pixmap(Nsc::Shape);
    EXPECT_EQ(NscNodeInfo::pixmap(Nsc::Shape), first);
    NscNodeInfo::clean();
    EXPECT_EQ(NscNodeInfo::m_shapePixmap, nullptr);
    EXPECT_NE(NscNodeInfo::pixmap(Nsc::Shape), first);
    EXPECT_FALSE(first->isNull());
    delete first;
}

} // namespace
