#include "InspectionFixture.h"

#include <nodescope/mainframe/SoAboutNodescope.h>

#include <QAction>
#include <QDesktopServices>
#include <QLabel>
#include <QRegularExpression>

namespace {

/** Receives what would be opened in the browser. */
class Browser : public QObject {
    Q_OBJECT
public:
    Browser() { QDesktopServices::setUrlHandler("https", this, "open"); }
    ~Browser() override { QDesktopServices::unsetUrlHandler("https"); }

    QStringList m_opened;

public slots:
    void open(const QUrl& address) { m_opened << address.toString(); }
};

TEST_F(InspectionTest, TheHelpMenuOpensThePageOfTheTool)
{
    _startNode(m_root, nullptr);
    Browser browser;
    ASSERT_TRUE(frame().action(ActionId::Contents)->isEnabled());
    frame().action(ActionId::Contents)->trigger();
    EXPECT_EQ(browser.m_opened.join(" "), "https://nodescope.example/reference/nodescope.html");
}

TEST_F(InspectionTest, TheHelpMenuShowsTheAboutBox)
{
    _startNode(m_root, nullptr);
    ModalAnswers answers;
    answers.expectDialog("About Nodescope", [](QDialog& box) {
        EXPECT_TRUE(box.isModal());
        EXPECT_EQ(box.size(), QSize(366, 209));
        EXPECT_EQ(box.minimumSize(), box.maximumSize());
        EXPECT_EQ(box.palette().color(QPalette::Window), QColor(255, 255, 255));
        EXPECT_TRUE(box.palette().brush(QPalette::Window).isOpaque());
        EXPECT_EQ(box.findChild<QFrame*>("frame11")->frameShape(), QFrame::Box);
        EXPECT_EQ(box.findChild<QFrame*>("frame11")->frameShadow(), QFrame::Plain);
        QTest::keyClick(&box, Qt::Key_Escape);
    });
    frame().action(ActionId::About)->trigger();
    EXPECT_TRUE(frame().findChildren<SoAboutNodescope*>().isEmpty());
}

TEST(AboutBox, HasItsPicturesAndItsTextInTheirPlaces)
{
    const SoAboutNodescope box;
    auto* logo = box.findChild<QLabel*>("m_nodescopeLabel");
    auto* ribbon = box.findChild<QLabel*>("m_ribbonLabel");
    EXPECT_EQ(logo->geometry(), QRect(48, 87, 292, 51));
    EXPECT_EQ(ribbon->geometry(), QRect(14, 15, 264, 72));
    EXPECT_EQ(logo->pixmap(Qt::ReturnByValue).size(), logo->size());
    EXPECT_EQ(ribbon->pixmap(Qt::ReturnByValue).size(), ribbon->size());
    auto* frame = box.findChild<QFrame*>("m_textFrame");
    EXPECT_EQ(frame->geometry(), QRect(14, 150, 330, 50));
    EXPECT_EQ(frame->frameShadow(), QFrame::Raised);
    auto* text = frame->findChild<QLabel*>();
    EXPECT_LE(text->sizeHint().height(), frame->height()) << "the build line must be seen";
    EXPECT_EQ(text->textFormat(), Qt::AutoText);
    const QString written = text->text();
    EXPECT_EQ(written.count("<b>"), 2);
    EXPECT_FALSE(written.contains("</b>"));
    EXPECT_TRUE(written.contains("<h1"));
    EXPECT_TRUE(QRegularExpression("&nbsp;[0-9]+\\.[0-9]+\\.[0-9]+ [^ ]+ 64 bits release").match(written).hasMatch())
        << written.toStdString();
}

} // namespace

#include "TestHelpMenu.moc"
