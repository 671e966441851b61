#include "TreeFixture.h"

#include <vexel/base/SoPath.h>
#include <vexel/nodes/SoGroup.h>

#include <QDesktopServices>
#include <QHeaderView>
#include <QSignalSpy>
#include <QTest>
#include <QUrl>

namespace {

class TreeView : public TreeTest {};

const char Scene[] = "Separator { DEF a Material { } Group { Cube { } USE a } PerspectiveCamera { } DEF s Separator { "
                     "USE a Sphere { } } IndexedFaceSet { vertexProperty VertexProperty { } } }";

TEST_F(TreeView, HasFiveColumnsWithTheirWidths)
{
    EXPECT_EQ(view->columnCount(), 5);
    const char* labels[] = {"Type", "Name", "Ref. Count", "", ""};
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(view->headerItem()->text(i), QString(labels[i]));
    EXPECT_EQ(view->columnWidth(0), 200);
    EXPECT_EQ(view->columnWidth(1), 120);
    EXPECT_EQ(view->columnWidth(3), 44);
    EXPECT_EQ(view->columnWidth(4), 24);
    EXPECT_TRUE(view->uniformRowHeights());
}

TEST_F(TreeView, ShowsTheRootCurrentAndOpen)
{
    qRegisterMetaType<SoTreeViewItem*>();
    QSignalSpy selected(view.get(), &SoNodescopeTreeView::rowSelected);
    show(Scene);
    EXPECT_EQ(view->currentRow(), top());
    EXPECT_TRUE(top()->isExpanded());
    ASSERT_EQ(selected.size(), 1);
    EXPECT_EQ(selected[0][0].value<SoTreeViewItem*>(), top());
    view->reset(nullptr);
    EXPECT_EQ(view->topLevelItemCount(), 0);
}

TEST_F(TreeView, FiltersRowsByCategory)
{
    show(Scene);
    view->setFilter(Nsc::All_categories & ~Nsc::Appearance);
    EXPECT_TRUE(row({0})->isHidden());
    EXPECT_TRUE(row({1, 1})->isHidden());
    EXPECT_FALSE(row({1})->isHidden());
    EXPECT_EQ(view->getFilter(), Nsc::All_categories & ~Nsc::Appearance);
    row({0})->setHidden(false);
    view->setFilter(Nsc::All_categories & ~Nsc::Appearance);
    EXPECT_FALSE(row({0})->isHidden()) << "the same mask does nothing";
    view->reapplyFilter();
    EXPECT_TRUE(row({0})->isHidden());
    view->setFilter(0);
    EXPECT_TRUE(top()->isHidden());
    view->setFilter(Nsc::All_categories);
    EXPECT_FALSE(top()->isHidden());
    EXPECT_FALSE(row({1, 1})->isHidden());
}

TEST_F(TreeView, HidesAndShowsTheReferencesOfSharedNodes)
{
    show(Scene);
    view->removeAllReferences();
    EXPECT_TRUE(row({0})->isActive());
    EXPECT_FALSE(row({1, 1})->isActive());
    EXPECT_TRUE(row({1, 1})->isIgnored());
    EXPECT_TRUE(row({1, 1})->references());
    EXPECT_FALSE(row({3, 0})->isActive());
    EXPECT_EQ(row({1})->childCount(false), 1);
    EXPECT_EQ(row({3, 1})->storedIndex(), 0);
    view->showAllReferences();
    EXPECT_TRUE(row({1, 1})->isActive());
    EXPECT_FALSE(row({1, 1})->isIgnored());
    EXPECT_EQ(row({1, 1})->references(), nullptr);
    EXPECT_EQ(row({3, 1})->storedIndex(), 1);
}

TEST_F(TreeView, GoesFromReferenceToReference)
{
    show(Scene);
    view->setCurrentItem(row({0}));
    EXPECT_EQ(view->nextReference(), row({1, 1}));
    EXPECT_EQ(view->currentRow(), row({1, 1}));
    EXPECT_TRUE(row({1})->isExpanded());
    EXPECT_EQ(view->nextReference(), row({3, 0}));
    EXPECT_EQ(view->nextReference(), row({0}));
    EXPECT_EQ(view->previousReference(), row({3, 0}));
    view->setCurrentItem(row({2}));
    EXPECT_EQ(view->nextReference(), nullptr);
}

TEST_F(TreeView, GoesFromBookmarkToBookmark)
{
    show(Scene);
    EXPECT_EQ(view->nextBookmark(), nullptr);
    for (SoTreeViewItem* marked : {row({1, 0}), row({3})}) {
        view->setCurrentItem(marked);
        view->toggleBookmark();
    }
    EXPECT_FALSE(row({3})->data(SoTreeViewItem::BookmarkColumn, Qt::DecorationRole).value<QIcon>().isNull());
    EXPECT_EQ(view->nextBookmark(), row({1, 0}));
    EXPECT_EQ(view->nextBookmark(), row({3}));
    view->setCurrentItem(row({2}));
    EXPECT_EQ(view->previousBookmark(), row({1, 0}));
    EXPECT_EQ(view->previousBookmark(), row({3}));
    view->setCurrentItem(row({4, 0}));
    EXPECT_EQ(view->nextBookmark(), row({1, 0}));
    view->clearBookmark();
    EXPECT_FALSE(row({3})->isBookmarked());
    EXPECT_EQ(view->nextBookmark(), nullptr);
}

TEST_F(TreeView, MarksTheNodeOfTheCurrentRowInTheSelection)
{
    SoSeparator* root = show(Scene);
    view->setCurrentItem(row({3, 1}));
    ASSERT_EQ(selection->getNumSelected(), 1);
    const SoPath* path = selection->getPath(0);
    EXPECT_EQ(path->getHead(), selection);
    EXPECT_EQ(path->getFullLength(), 4);
    EXPECT_EQ(path->getNode(3), static_cast<SoGroup*>(root->getChild(3))->getChild(1));
    view->setCurrentItem(row({4, 0}));
    EXPECT_EQ(selection->getPath(0)->getFullLength(), 4) << "a field row marks nothing";
    selection->deselectAll();
    view->setHighlightingEnabled(false);
    view->setCurrentItem(row({0}));
    EXPECT_EQ(selection->getNumSelected(), 0);
}

TEST_F(TreeView, FollowsAPickInTheSelection)
{
    show(Scene);
    qRegisterMetaType<SoTreeViewItem*>();
    QSignalSpy selected(view.get(), &SoNodescopeTreeView::rowSelected);
    auto* path = new SoPath(selection);
    path->ref();
    path->append(0);
    path->append(1);
    path->append(0);
    selection->pick(path, false);
    EXPECT_EQ(view->currentRow(), row({1, 0}));
    EXPECT_TRUE(row({1})->isExpanded());
    EXPECT_EQ(selected.size(), 1);
    EXPECT_EQ(selection->getNumSelected(), 1);
    path->unref();
}

TEST_F(TreeView, OpensEverythingBelowARowWithTheAsteriskKey)
{
    show(Scene);
    view->show();
    view->setFocus();
    QTest::keyClick(view.get(), Qt::Key_Asterisk);
    EXPECT_TRUE(row({1})->isExpanded());
    EXPECT_TRUE(row({4})->isExpanded());
}

TEST_F(TreeView, TellsAShiftClick)
{
    show(Scene);
    view->show();
    qRegisterMetaType<SoTreeViewItem*>();
    QSignalSpy selected(view.get(), &SoNodescopeTreeView::rowSelected);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::ShiftModifier, view->visualItemRect(row({2})).center());
    ASSERT_EQ(selected.size(), 1);
    EXPECT_EQ(selected[0][0].value<SoTreeViewItem*>(), row({2}));
    EXPECT_TRUE(selected[0][1].toBool());
    QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::NoModifier, view->visualItemRect(row({1})).center());
    EXPECT_FALSE(selected[1][1].toBool());
}

TEST_F(TreeView, AsksForTheDeletionOfTheCurrentRow)
{
    show(Scene);
    view->show();
    qRegisterMetaType<SoTreeViewItem*>();
    QSignalSpy asked(view.get(), &SoNodescopeTreeView::deleteRequested);
    view->setCurrentItem(row({2}));
    QTest::keyClick(view.get(), Qt::Key_Delete);
    ASSERT_EQ(asked.size(), 1);
    EXPECT_EQ(asked[0][0].value<SoTreeViewItem*>(), row({2}));
    view->setCurrentItem(nullptr);
    QTest::keyRelease(view.get(), Qt::Key_Delete);
    EXPECT_EQ(asked.size(), 1);
}

/** Stands in for the desktop's browser. */
class Browser : public QObject {
    Q_OBJECT
public:
    Browser() { QDesktopServices::setUrlHandler("https", this, "open"); }
    ~Browser() override { QDesktopServices::unsetUrlHandler("https"); }

    QStringList pages;

public slots:
    void open(const QUrl& page) { pages.append(page.toString()); }
};

TEST_F(TreeView, OpensTheClassReferenceWithF1)
{
    show(Scene);
    view->show();
    Browser browser;
    QTest::keyClick(view.get(), Qt::Key_F1);
    view->setCurrentItem(row({4}));
    QTest::keyClick(view.get(), Qt::Key_F1);
    ASSERT_EQ(browser.pages.size(), 2);
    EXPECT_TRUE(browser.pages[0].endsWith("_so_separator.html")) << browser.pages[0].toStdString();
    EXPECT_TRUE(browser.pages[1].endsWith("_so_indexed_face_set.html")) << browser.pages[1].toStdString();
}

} // namespace

#include "TestTreeView.moc"
