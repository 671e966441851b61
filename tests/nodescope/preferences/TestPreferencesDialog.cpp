#include <nodescope/preferences/SoNodescopePreferences.h>

#include <QApplication>
#include <QLabel>
#include <QPointer>
#include <QTest>
#include <gtest/gtest.h>

namespace {

/** Loads and saves a page, and writes down the calls in a list that several share. */
class PageOwner : public QObject {
    Q_OBJECT
public:
    PageOwner(const QString& name, QStringList& calls) : m_calls(calls), m_name(name) {}

    PreferenceRecord record() { return {&m_page, m_name, this, SLOT(reInit()), SLOT(save())}; }

    QDialog* m_dialog = nullptr; ///< set: a save writes down whether that is still open
    QStringList& m_calls;
    QString m_name;
    QLabel m_page;

public slots:
    void reInit() { m_calls << "load " + m_name; }
    void save() { m_calls << "save " + m_name + (m_dialog && m_dialog->isVisible() ? " while open" : ""); }
};

class PreferencesDialogTest : public testing::Test {
protected:
    std::vector<PreferenceRecord> records() { return {m_first.record(), m_second.record()}; }
    static QPushButton* button(QDialog& dialog, const char* name) { return dialog.findChild<QPushButton*>(name); }
    static QListWidget* list(QDialog& dialog) { return dialog.findChild<QListWidget*>("m_preferenceList"); }
    static QStackedWidget* stack(QDialog& dialog) { return dialog.findChild<QStackedWidget*>("m_widgetStack"); }
    std::string takeCalls() { return std::exchange(m_calls, {}).join(", ").toStdString(); }

    QStringList m_calls;
    PageOwner m_first{"first", m_calls};
    PageOwner m_second{"second", m_calls};
};

TEST_F(PreferencesDialogTest, HasTheTextsAndTheSizeOfItsForm)
{
    SoNodescopePreferences dialog({}, nullptr, "settings");
    EXPECT_EQ(dialog.objectName(), "settings");
    EXPECT_EQ(dialog.windowTitle(), "Preferences");
    EXPECT_EQ(dialog.size(), QSize(523, 322));
    EXPECT_TRUE(dialog.isSizeGripEnabled());
    EXPECT_EQ(button(dialog, "m_okButton")->text(), "&OK");
    EXPECT_EQ(button(dialog, "m_applyButton")->text(), "&Apply");
    EXPECT_EQ(button(dialog, "m_applyButton")->shortcut(), QKeySequence("Alt+A"));
    EXPECT_EQ(button(dialog, "m_cancelButton")->text(), "&Cancel");
    EXPECT_EQ(list(dialog)->selectionMode(), QAbstractItemView::SingleSelection);
}

TEST_F(PreferencesDialogTest, WithoutPagesHasAnEmptyListAndAnEmptyStack)
{
    SoNodescopePreferences dialog({});
    EXPECT_EQ(list(dialog)->count(), 0);
    EXPECT_EQ(stack(dialog)->count(), 0);
    dialog.show();
    QTest::mouseClick(button(dialog, "m_okButton"), Qt::LeftButton);
    EXPECT_EQ(dialog.result(), int(QDialog::Accepted));
}

TEST_F(PreferencesDialogTest, LoadsEachPageOnceAndShowsTheFirst)
{
    SoNodescopePreferences dialog(records());
    EXPECT_EQ(takeCalls(), "load first, load second");
    ASSERT_EQ(list(dialog)->count(), 2);
    EXPECT_EQ(list(dialog)->item(1)->text(), "second");
    EXPECT_EQ(stack(dialog)->currentWidget(), &m_first.m_page);
    dialog.show();
    list(dialog)->setFocus();
    QTest::keyClick(list(dialog), Qt::Key_Down);
    EXPECT_EQ(stack(dialog)->currentWidget(), &m_second.m_page);
    EXPECT_EQ(takeCalls(), "") << "pages are loaded when the dialog is made, and not again";
}

TEST_F(PreferencesDialogTest, ClosesBeforeItSavesForOk)
{
    SoNodescopePreferences dialog(records());
    m_first.m_dialog = m_second.m_dialog = &dialog;
    dialog.show();
    takeCalls();
    QTest::mouseClick(button(dialog, "m_okButton"), Qt::LeftButton);
    EXPECT_EQ(takeCalls(), "save first, save second");
    EXPECT_EQ(dialog.result(), int(QDialog::Accepted));
}

TEST_F(PreferencesDialogTest, ApplySavesEachTimeAndStaysOpen)
{
    SoNodescopePreferences dialog(records());
    dialog.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&dialog));
    takeCalls();
    QTest::mouseClick(button(dialog, "m_applyButton"), Qt::LeftButton);
    QApplication::setActiveWindow(&dialog);
    QTest::keyClick(list(dialog), Qt::Key_A, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([this] { return m_calls.size() == 4; })) << "the button goes down and up for a key";
    EXPECT_EQ(takeCalls(), "save first, save second, save first, save second");
    EXPECT_TRUE(dialog.isVisible());
}

TEST_F(PreferencesDialogTest, CancelSavesNothing)
{
    SoNodescopePreferences dialog(records());
    dialog.show();
    takeCalls();
    QTest::mouseClick(button(dialog, "m_cancelButton"), Qt::LeftButton);
    EXPECT_EQ(takeCalls(), "");
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(dialog.result(), int(QDialog::Rejected));
}

TEST_F(PreferencesDialogTest, APageWithoutAReceiverOrSlotsIsOnlyShown)
{
    QLabel page("read me");
    PreferenceRecord loadedOnly = m_second.record();
    loadedOnly.saveSlot.clear();
    SoNodescopePreferences dialog({{&page, "note", nullptr, SLOT(reInit()), SLOT(save())}, loadedOnly});
    EXPECT_EQ(takeCalls(), "load second");
    dialog.show();
    EXPECT_TRUE(page.isVisible());
    QTest::mouseClick(button(dialog, "m_applyButton"), Qt::LeftButton);
    EXPECT_EQ(takeCalls(), "");
}

TEST_F(PreferencesDialogTest, LeavesThePagesWithoutAParent)
{
    auto dialog = std::make_unique<SoNodescopePreferences>(records());
    EXPECT_TRUE(dialog->isAncestorOf(&m_first.m_page));
    dialog.reset();
    EXPECT_EQ(m_first.m_page.parentWidget(), nullptr);
    EXPECT_EQ(m_second.m_page.parentWidget(), nullptr);
    EXPECT_FALSE(m_first.m_page.isVisible());
}

TEST_F(PreferencesDialogTest, AllowsForAPageThatGoesWhileItIsOpen)
{
    auto* page = new QLabel;
    auto dialog = std::make_unique<SoNodescopePreferences>(
        std::vector<PreferenceRecord>{{page, "short-lived", nullptr, {}, {}}, m_first.record()});
    dialog->show();
    delete page;
    EXPECT_EQ(stack(*dialog)->currentWidget(), &m_first.m_page);
}

} // namespace

#include "TestPreferencesDialog.moc"
