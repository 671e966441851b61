#include "EditFixture.h"

#include <vexel/nodes/SoCoordinate3.h>

#include <QClipboard>

#include <vector>

namespace {

/** Cut, copy and paste of the main window: scene text goes through the clipboard of the desktop. */
class SceneClipboardTest : public EditTest {
protected:
    void SetUp() override
    {
        EditTest::SetUp();
        view->setHighlightingEnabled(true);
        clipboard().clear();
    }
    void TearDown() override
    {
        selection->deselectAll();
        clipboard().clear();
        EditTest::TearDown();
    }

    static QClipboard& clipboard() { return *QGuiApplication::clipboard(); }
    /** Shows a scene and marks a row of it. */
    void showAndMark(const std::string& scene, const std::vector<int>& places)
    {
        show(scene);
        selection->deselectAll();
        SoTreeViewItem* marked = top();
        for (const int place : places)
            marked = marked->childRow(place);
        view->setCurrentItem(marked);
        ASSERT_EQ(selection->getNumSelected(), 1);
    }
    std::string rowsOf(int topLevel) const
    {
        const QTreeWidgetItem* item = view->topLevelItem(topLevel);
        std::string text = item->text(0).toStdString() + ":";
        for (int i = 0; i < item->childCount(); ++i)
            text += " " + item->child(i)->text(0).toStdString();
        return text;
    }
};

struct CutCase {
    const char* name;
    const char* scene;
    std::vector<int> marked;
    const char* left;
};

class Cutting : public SceneClipboardTest, public testing::WithParamInterface<CutCase> {};

} // namespace

TEST_P(Cutting, TakesAlongWhatItLeavesWithoutShapes)
{
    const CutCase& row = GetParam();
    showAndMark(row.scene, row.marked);
    action(ActionId::Cut).trigger();
    EXPECT_EQ(rows(), row.left);
    EXPECT_FALSE(clipboard().text().isEmpty());
    EXPECT_FALSE(action(ActionId::Undo).isEnabled()) << "the history is not concerned";
}

INSTANTIATE_TEST_SUITE_P(
    Table, Cutting,
    testing::Values(CutCase{"TheNodeAlone", "Separator { Cube { } Sphere { } }", {0}, "Separator\n Sphere\n"},
                    CutCase{"SeparatorsWithoutShapes",
                            "Separator { Cube { } Separator { Material { } Separator { Sphere { } } } }",
                            {1, 1, 0},
                            "Separator\n Cube\n"},
                    CutCase{"NoSeparatorWithAShape",
                            "Separator { Separator { Cone { } Separator { Material { } Sphere { } } } }",
                            {0, 1, 1},
                            "Separator\n Separator\n  Cone\n"},
                    CutCase{"EmptyGroups",
                            "Separator { Cube { } Group { Group { Sphere { } } } }",
                            {1, 0, 0},
                            "Separator\n Cube\n"},
                    CutCase{"NoGroupWithChildren",
                            "Separator { Cube { } Group { Material { } Sphere { } } }",
                            {1, 1},
                            "Separator\n Cube\n Group\n  Material\n"},
                    CutCase{"TheSeparatorAboveAGroupWithChildren",
                            "Separator { Cube { } Separator { Group { Material { } Sphere { } } } }",
                            {1, 0, 1},
                            "Separator\n Cube\n"},
                    CutCase{"TheWholeScene", "Separator { Separator { Cube { } } }", {0, 0}, ""}),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(SceneClipboardTest, ACopyCanBePastedBesideTheScene)
{
    showAndMark("Separator { Sphere { } Material { } Group { Cone { } DEF marked Cube { width 3 } } Sphere { } }",
                {2, 1});
    const std::string before = text();
    action(ActionId::Copy).trigger();
    EXPECT_EQ(text(), before);
    EXPECT_TRUE(clipboard().text().startsWith("#Vexel V2.1 ascii")) << clipboard().text().toStdString();
    action(ActionId::Paste).trigger();
    ASSERT_EQ(view->topLevelItemCount(), 2);
    EXPECT_EQ(text(), before);
    EXPECT_EQ(rowsOf(1), "Separator: Material Group") << "with what belongs to the marked node only";
    EXPECT_EQ(group(group(selection->getChild(1))->getChild(1))->getNumChildren(), 1);
    EXPECT_NE(selection->getChild(0), selection->getChild(1)) << "a copy";
    EXPECT_FALSE(action(ActionId::Undo).isEnabled());
}

TEST_F(SceneClipboardTest, WithNothingMarkedTheClipboardStays)
{
    show("Separator { Cube { } }");
    selection->deselectAll();
    clipboard().setText("as it was");
    const std::string before = text();
    action(ActionId::Copy).trigger();
    action(ActionId::Cut).trigger();
    EXPECT_EQ(clipboard().text(), "as it was");
    EXPECT_EQ(text(), before);
}

TEST_F(SceneClipboardTest, TextThatIsNoSceneChangesNothing)
{
    show("Separator { Cube { } }");
    const std::string before = text();
    for (const char* pasted : {"", "no scene", "#Vexel V2.1 ascii\n", "#Vexel V2.1 ascii\nSeparator {",
                               "#Vexel V2.1 ascii\nPath {", "#Vexel V2.1 ascii\nCube { width }", "\xff\xfe"}) {
        clipboard().setText(QString::fromLatin1(pasted));
        action(ActionId::Paste).trigger();
        EXPECT_EQ(text(), before) << pasted;
        EXPECT_EQ(selection->getNumChildren(), 1) << pasted;
    }
}

TEST_F(SceneClipboardTest, TakesTextsOfAnyLength)
{
    std::string points;
    for (int i = 0; i < 20000; ++i)
        points += std::to_string(i) + " 0.5 -1,\n";
    showAndMark("Separator { Coordinate3 { point [ " + points + " ] } Cube { } }", {0});
    action(ActionId::Copy).trigger();
    EXPECT_GT(clipboard().text().size(), 32000 * 4);
    action(ActionId::Paste).trigger();
    ASSERT_EQ(selection->getNumChildren(), 2);
    const auto* pasted = static_cast<SoCoordinate3*>(group(selection->getChild(1))->getChild(0));
    ASSERT_EQ(pasted->point.getNum(), 20000);
    EXPECT_EQ(pasted->point[19999], SbVec3f(19999, 0.5F, -1));
}

TEST_F(SceneClipboardTest, ANameBeyondAsciiComesBack)
{
    showAndMark("Separator { Info { string \"Gr\xc3\xb6\xc3\x9f"
                "e\" } }",
                {0});
    const std::string before = text();
    action(ActionId::Copy).trigger();
    action(ActionId::Paste).trigger();
    ASSERT_EQ(selection->getNumChildren(), 2);
    selection->removeChild(0);
    EXPECT_EQ(text(), before);
}

TEST_F(SceneClipboardTest, WhatWasPastedCanBeCutAgain)
{
    showAndMark("Separator { Cube { } }", {0});
    action(ActionId::Copy).trigger();
    action(ActionId::Paste).trigger();
    view->setCurrentItem(view->topLevelItem(1)->child(0));
    action(ActionId::Cut).trigger();
    EXPECT_EQ(view->topLevelItemCount(), 1);
    EXPECT_EQ(rows(), "Separator\n Cube\n");
}
