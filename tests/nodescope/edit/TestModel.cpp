#include "EditFixture.h"
#include "RandomGraph.h"

#include <nodescope/edit/CommandHistory.h>

#include <QMessageBox>
#include <QTimer>

namespace {

constexpr int Batches = 40;
constexpr int Steps_in_a_batch = 250;
constexpr int First_size = 60;

/** Accepts each box that tells of a refused edit. */
class RefusalCloser : public QObject {
public:
    RefusalCloser() { qApp->installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Show) {
            if (auto* box = qobject_cast<QMessageBox*>(watched))
                QTimer::singleShot(0, box, &QDialog::accept);
        }
        return false;
    }
};

void appendRows(QList<SoTreeViewItem*>& rows, SoTreeViewItem* row)
{
    rows.append(row);
    for (int i = 0; i < row->childCount(); ++i)
        appendRows(rows, row->childRow(i));
}

std::string describe(const SoTreeViewItem& row)
{
    const QString text = QStringLiteral("%1 '%2' below '%3'%4")
                             .arg(row.text(SoTreeViewItem::TypeColumn), row.text(SoTreeViewItem::NameColumn),
                                  row.parentRow() ? row.parentRow()->text(0) : QString(),
                                  row.fromField() ? QStringLiteral(" in a field") : QString());
    return text.toStdString();
}

/** Random edits, of a host and of a user; the parameter is the seed. NODESCOPE_MODEL_SEED replaces it. */
class Model : public EditTest, public testing::WithParamInterface<unsigned> {
protected:
    Model()
        : seed(qEnvironmentVariableIsSet("NODESCOPE_MODEL_SEED") ? qEnvironmentVariable("NODESCOPE_MODEL_SEED").toUInt()
                                                                 : GetParam()),
          random(seed)
    {
    }

    void SetUp() override
    {
        EditTest::SetUp();
        history = manager.findChild<CommandHistory*>();
        TreeTest::show(random.make(First_size));
    }

    SoSeparator* root() const
    {
        return selection->getNumChildren() > 0 ? static_cast<SoSeparator*>(selection->getChild(0)) : nullptr;
    }
    QList<SoTreeViewItem*> allRows() const
    {
        QList<SoTreeViewItem*> rows;
        if (top())
            appendRows(rows, top());
        return rows;
    }
    SoTreeViewItem* anyRow(const QList<SoTreeViewItem*>& rows) { return rows[random.below(rows.size())]; }

    void editAsHost()
    {
        if (!root() || random.below(500) == 0)
            manager.setScene(random.make(First_size));
        random.change(*root());
    }

    void editAsUser()
    {
        const QList<SoTreeViewItem*> rows = allRows();
        if (rows.isEmpty()) {
            manager.undo();
            return;
        }
        view->setCurrentItem(anyRow(rows));
        SoTreeViewItem* const row = view->currentRow();
        switch (random.below(12)) {
        case 0:
            row->setExpanded(!row->isExpanded());
            break;
        case 1:
            if (row != top() || random.below(10) == 0)
                manager.treeDeleteNode();
            break;
        case 2:
            if (row != top())
                manager.cutNode();
            break;
        case 3:
            manager.copyNode();
            break;
        case 4:
            manager.pasteNode();
            break;
        case 5:
            manager.treeInsertNode(random.below(2) == 0 ? "Group" : "Sphere");
            break;
        case 6:
        case 7:
            manager.treeMoveNode(row, anyRow(rows), random.below(2) == 0);
            break;
        case 8:
            manager.nodeSetOverride(!row->node()->isOverride());
            break;
        case 9:
            row->setBookmarked(true);
            break;
        case 10:
            manager.undo();
            break;
        default:
            manager.redo();
            break;
        }
    }

    /** The rows are those that a view of its own builds, and the registry knows them all. */
    void expectRowsOfTheGraph()
    {
        SoNodescopeTreeView anew;
        anew.reset(root());
        QList<SoTreeViewItem*> wanted;
        if (anew.topLevelItem(0))
            appendRows(wanted, static_cast<SoTreeViewItem*>(anew.topLevelItem(0)));
        const QList<SoTreeViewItem*> present = allRows();
        for (int i = 0; i < std::min(wanted.size(), present.size()); ++i) {
            ASSERT_EQ(describe(*present[i]), describe(*wanted[i])) << "row " << i;
            ASSERT_EQ(present[i]->node(), wanted[i]->node()) << "row " << i << ", " << describe(*wanted[i]);
            ASSERT_EQ(present[i]->storedIndex(), wanted[i]->storedIndex()) << "row " << i;
            ASSERT_EQ(present[i]->icon(SoTreeViewItem::ReferenceIconColumn).isNull(),
                      wanted[i]->icon(SoTreeViewItem::ReferenceIconColumn).isNull());
            ASSERT_TRUE(view->rowRegistry().rows(present[i]->node()).contains(present[i])) << "row " << i;
        }
        ASSERT_EQ(present.size(), wanted.size());
    }

    const unsigned seed;
    RandomGraph random;
    RefusalCloser refusals;
    CommandHistory* history = nullptr;
};

} // namespace

TEST_P(Model, RowsEqualTheGraphWhateverHappens)
{
    SCOPED_TRACE(testing::Message() << "NODESCOPE_MODEL_SEED=" << seed);
    for (int batch = 0; batch < Batches; ++batch) {
        for (int step = 0; step < Steps_in_a_batch; ++step) {
            if (random.below(2) == 0)
                editAsHost();
            else
                editAsUser();
        }
        ASSERT_NO_FATAL_FAILURE(expectRowsOfTheGraph()) << "after batch " << batch;
    }
}

TEST_P(Model, UndoingEverythingGivesTheFormerText)
{
    SCOPED_TRACE(testing::Message() << "NODESCOPE_MODEL_SEED=" << seed);
    for (int batch = 0; batch < Batches; ++batch) {
        for (int step = 0; step < 20; ++step)
            editAsHost();
        manager.clearUndoCommand();
        std::string former = text();
        for (int step = 0; step < Steps_in_a_batch; ++step) {
            const int entries = history->count();
            const int index = history->currentIndex();
            editAsUser();
            // A move to the index that the node had is no entry: it stays.
            if (history->count() == entries && history->currentIndex() == index) {
                manager.clearUndoCommand();
                former = text();
            }
        }
        ASSERT_NO_FATAL_FAILURE(expectRowsOfTheGraph()) << "after batch " << batch;
        while (action(ActionId::Undo).isEnabled())
            manager.undo();
        ASSERT_EQ(text(), former) << "after batch " << batch;
        ASSERT_NO_FATAL_FAILURE(expectRowsOfTheGraph()) << "after undoing batch " << batch;
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, Model, testing::Range(1u, 11u));
