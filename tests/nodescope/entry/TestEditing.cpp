#include "InspectionFixture.h"

#include <nodescope/edit/SoCommandManager.h>
#include <nodescope/edit/SoNodescopeAddDialog.h>
#include <nodescope/tree/SoNodescopeTreeView.h>
#include <nodescope/tree/SoTreeViewItem.h>
#include <tests/support/DesktopInput.h>
#include <vexel/actions/SoWriteAction.h>
#include <vexel/io/SoOutput.h>
#include <vexel/nodes/SoSelection.h>

#include <QAction>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QDragMoveEvent>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTimer>
#include <cstdlib>
#include <stdexcept>

Q_DECLARE_METATYPE(SoTreeViewItem*)

namespace {

/** Carries out one drag as it goes on, in the words of the desktop: on to the target once it has begun, then lets go.
 */
class DragDriver : public QObject {
public:
    DragDriver(SoNodescopeTreeView& tree, const QPoint& target) : m_tree(tree), m_target(target)
    {
        m_tree.viewport()->installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::DragEnter)
            moveToTarget();
        if (event->type() == QEvent::DragMove && !m_isDropped) {
            const QPoint there = m_tree.viewport()->mapToGlobal(static_cast<QDragMoveEvent*>(event)->pos());
            if (there == m_target) {
                m_isDropped = true;
                DesktopInput::begin({"mouseup", "1"});
            }
        }
        return false;
    }

private:
    void moveToTarget() const
    {
        DesktopInput::begin({"mousemove", QString::number(m_target.x()), QString::number(m_target.y())});
    }

    SoNodescopeTreeView& m_tree;
    QPoint m_target;
    bool m_isDropped = false;
};

/** The main window with a scene of the gallery, used by mouse and keys. */
class EditingSession : public InspectionTest {
protected:
    void open(const QString& file)
    {
        qRegisterMetaType<SoTreeViewItem*>();
        SoNodescopeImpl::startStandalone(m_count, m_arguments);
        frame().openFile(file);
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&frame()));
        activate();
    }

    static void activate()
    {
        DesktopInput::begin({"windowfocus", QString::number(frame().winId())});
        ASSERT_TRUE(QTest::qWaitForWindowActive(&frame()));
    }
    static SoNodescopeTreeView& tree() { return *SoNodescopeViewer::getInstance()->treeView(); }
    static std::string current()
    {
        const SoTreeViewItem* row = tree().currentRow();
        return row ? (row->text(0) + " " + row->text(1)).toStdString() : std::string();
    }
    static SoTreeViewItem* top() { return static_cast<SoTreeViewItem*>(tree().topLevelItem(0)); }
    /** The child row with a name. */
    static SoTreeViewItem* row(const SoTreeViewItem* above, const char* name)
    {
        for (int i = 0; i < above->childCount(); ++i) {
            if (above->childRow(i)->text(SoTreeViewItem::NameColumn) == name)
                return above->childRow(i);
        }
        throw std::runtime_error(std::string("no row ") + name);
    }
    static QPoint placeOf(SoTreeViewItem* row)
    {
        tree().scrollToItem(row);
        QRect place = tree().visualItemRect(row);
        place.setRight(tree().columnViewportPosition(0) + tree().columnWidth(0));
        return place.center();
    }
    static void click(SoTreeViewItem* row) { QTest::mouseClick(tree().viewport(), Qt::LeftButton, {}, placeOf(row)); }
    static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }
    /** Finds a node by its type with the box of the tool bar. */
    void find(const char* type)
    {
        QTest::mouseClick(frame().searchBox()->lineEdit(), Qt::LeftButton);
        frame().searchBox()->lineEdit()->selectAll();
        QTest::keyClicks(frame().searchBox()->lineEdit(), type);
        press(Qt::Key_Return);
    }
    /** Clicks an entry of a menu of the menu bar. */
    void choose(const char* menuTitle, const char* entry)
    {
        for (QAction* each : frame().menuBar()->actions()) {
            if (each->text() != menuTitle)
                continue;
            QTest::mouseClick(frame().menuBar(), Qt::LeftButton, {}, frame().menuBar()->actionGeometry(each).center());
            QMenu* const menu = each->menu();
            ASSERT_TRUE(menu->isVisible());
            for (QAction* one : menu->actions()) {
                if (one->text() == entry)
                    QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(one).center());
            }
            EXPECT_FALSE(menu->isVisible()) << "no entry " << entry;
        }
    }
    /** Clicks an entry of the menu of the current row. */
    static void chooseFromContextMenu(const char* entry)
    {
        bool isChosen = false;
        const QPoint place = placeOf(tree().currentRow());
        QTimer::singleShot(0, [&isChosen, entry] {
            auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            ASSERT_TRUE(menu);
            for (QAction* one : menu->actions()) {
                if (one->text() != entry)
                    continue;
                isChosen = true;
                QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(one).center());
            }
            menu->close();
        });
        QContextMenuEvent event(QContextMenuEvent::Mouse, place, tree().viewport()->mapToGlobal(place));
        QApplication::sendEvent(tree().viewport(), &event);
        EXPECT_TRUE(isChosen) << entry;
    }
    /** Drags a row onto another with the mouse of the display. */
    void drag(SoTreeViewItem* row, SoTreeViewItem* target)
    {
        const auto global = [](SoTreeViewItem* each) { return tree().viewport()->mapToGlobal(placeOf(each)); };
        const QPoint from = global(row);
        const DragDriver driver(tree(), global(target));
        const auto words = [](const QPoint& place) {
            return QStringList{"mousemove", QString::number(place.x()), QString::number(place.y())};
        };
        QSignalSpy moved(&tree(), &SoNodescopeTreeView::moveRequested);
        DesktopInput::begin(words(from) + QStringList{"mousedown", "1"} + words(from + QPoint(0, 4)) +
                            words(from + QPoint(0, 12)) + words(from + QPoint(0, 16)));
        ASSERT_TRUE(moved.count() > 0 || moved.wait(Deadline));
    }

    /** The scene as it would be saved. */
    static QByteArray writtenScene()
    {
        SoOutput output;
        void* buffer = std::malloc(1024);
        std::size_t size = 1024;
        output.setBuffer(buffer, size, std::realloc);
        SoWriteAction(&output).apply(SoNodescopeViewer::getInstance()->selection()->getChild(0));
        output.getBuffer(buffer, size);
        const QByteArray text(static_cast<const char*>(buffer), int(size));
        std::free(buffer);
        return text;
    }
    /** The lines of a node in a written scene, from the first with its name to the brace that closes it. */
    static QByteArray block(const QByteArray& scene, const char* name)
    {
        const int begin = scene.lastIndexOf('\n', scene.indexOf(name)) + 1;
        const QByteArray indent(scene.indexOf(name) - begin, ' ');
        const QByteArray last = "\n" + indent + "}\n";
        return scene.mid(begin, scene.indexOf(last, begin) + last.size() - begin);
    }
    /** The written form of a scene with a copy of its lamp beside it, whose names are told from those of the first. */
    static QByteArray withLampBeside(const QByteArray& scene)
    {
        const int begin = scene.indexOf("DEF workbench");
        const auto indented = [begin](const QByteArray& text) {
            QByteArray body = text.mid(begin);
            body.chop(1);
            return "  " + body.replace("\n", "\n  ") + "\n";
        };
        QByteArray lamp = scene;
        for (const char* beside : {"GradientBackground", "DEF bench", "DEF parts"})
            lamp.replace(block(scene, beside), "");
        QString copy = QString::fromLatin1(indented(lamp));
        copy.replace(QRegularExpression("(DEF|USE) (\\w+)"), "\\1 \\2+1");
        return scene.left(begin) + "Separator {\n" + indented(scene) + copy.toLatin1() + "}\n";
    }

    static constexpr int Deadline = 20000; // milliseconds; nothing is waited for that long unless it never comes
    int m_count = 1;
    char m_name[5] = "test";
    char* m_arguments[2] = {m_name, nullptr};
};

} // namespace

TEST_F(EditingSession, EndsInTheFileThatWasMeant)
{
    open(SCENE_FOLDER "/workbench.vx");
    QByteArray expected = writtenScene();

    find("Switch");
    ASSERT_EQ(current(), "Switch parts");
    click(tree().currentRow());
    press(Qt::Key_Right);
    ASSERT_TRUE(tree().currentRow()->isExpanded());

    SoTreeViewItem* const parts = tree().currentRow();
    drag(row(parts, "ball"), row(top(), "bench"));
    const QByteArray ballText = block(expected, "DEF ball");
    expected.remove(expected.indexOf(ballText), ballText.size());
    const int behindBench = expected.indexOf("  DEF lamp");
    expected.insert(expected.lastIndexOf("  }\n", behindBench), ballText);
    EXPECT_EQ(writtenScene().toStdString(), expected.toStdString());

    click(row(parts, "pin"));
    press(Qt::Key_Delete);
    const QByteArray withPin = expected;
    const QByteArray pinText = block(expected, "DEF pin");
    expected.remove(expected.indexOf(pinText), pinText.size());
    EXPECT_EQ(writtenScene().toStdString(), expected.toStdString());
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(writtenScene().toStdString(), withPin.toStdString());
    press(Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(writtenScene().toStdString(), expected.toStdString());

    click(row(top(), "lamp"));
    chooseFromContextMenu("Add Node");
    auto* const dialog = frame().findChild<SoNodescopeAddDialog*>();
    ASSERT_TRUE(dialog && dialog->isVisible());
    QTest::keyClicks(dialog->findChild<QLineEdit*>(), "rotationxyz");
    for (auto* button : dialog->findChildren<QPushButton*>()) {
        if (button->text() == "&Add")
            QTest::mouseClick(button, Qt::LeftButton);
    }
    QTest::keyClick(dialog, Qt::Key_Escape);
    const int behindLamp = expected.indexOf("  DEF parts");
    expected.insert(expected.lastIndexOf("  }\n", behindLamp), "    RotationXYZ {\n    }\n");
    EXPECT_EQ(writtenScene().toStdString(), expected.toStdString());

    activate();
    choose("&Edit", "&Copy");
    choose("&Edit", "&Paste");
    ASSERT_EQ(tree().topLevelItemCount(), 2);

    ModalAnswers answers;
    answers.expectFileDialog("Nodescope -- Save As", [this](QFileDialog& files) { files.selectFile(path("out.vx")); });
    choose("File", "Save &As...");
    QFile written(path("out.vx"));
    ASSERT_TRUE(written.open(QIODevice::ReadOnly));
    EXPECT_EQ(written.readAll().toStdString(), withLampBeside(expected).toStdString());
}
