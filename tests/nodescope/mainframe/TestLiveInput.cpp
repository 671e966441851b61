#include <nodescope/mainframe/LiveInput.h>
#include <vexel/io/SoDB.h>
#include <vexel/nodes/SoSeparator.h>

#include <QFile>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QWidget>
#include <gtest/gtest.h>

namespace {

/** Reports progress on demand. */
class SteeredInput : public LiveInput {
public:
    using LiveInput::LiveInput;
    using LiveInput::progressChanged;
};

} // namespace

TEST(LiveInput, ShowsAWindowModalDialogWithoutCancel)
{
    QWidget window;
    {
        const LiveInput input("/tmp/arm.vx", &window);
        const auto dialogs = window.findChildren<QProgressDialog*>();
        ASSERT_EQ(dialogs.size(), 1);
        EXPECT_EQ(dialogs[0]->labelText().toStdString(), "Loading /tmp/arm.vx");
        EXPECT_EQ(dialogs[0]->minimum(), 0);
        EXPECT_EQ(dialogs[0]->maximum(), 100);
        EXPECT_EQ(dialogs[0]->value(), 0);
        EXPECT_EQ(dialogs[0]->windowModality(), Qt::WindowModal);
        EXPECT_TRUE(dialogs[0]->findChildren<QPushButton*>().isEmpty());
    }
    EXPECT_TRUE(window.findChildren<QProgressDialog*>().isEmpty());
}

TEST(LiveInput, TruncatesThePercentage)
{
    QWidget window;
    SteeredInput input("a.vx", &window);
    const auto* dialog = window.findChild<QProgressDialog*>();
    input.progressChanged(41.99);
    EXPECT_EQ(dialog->value(), 41);
    input.progressChanged(7.0);
    EXPECT_EQ(dialog->value(), 7);
}

TEST(LiveInput, OutlivesTheWindowThatShowsTheDialog)
{
    auto window = std::make_unique<QWidget>();
    SteeredInput input("a.vx", window.get());
    window.reset();
    input.progressChanged(50.0);
}

TEST(LiveInput, FollowsTheReadingOfAFile)
{
    SoDB::init();
    QTemporaryDir folder;
    QFile file(folder.filePath("large.vx"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("#Vexel V2.1 ascii\nSeparator {\n");
    for (int i = 0; i < 50000; ++i)
        file.write("  Separator { }\n");
    file.write("}\n");
    file.close();

    QWidget window;
    LiveInput input(file.fileName(), &window);
    const QSignalSpy values(window.findChild<QProgressBar*>(), &QProgressBar::valueChanged);
    ASSERT_TRUE(input.openFile(file.fileName().toUtf8().constData(), true));
    SoSeparator* root = SoDB::readAll(&input);
    ASSERT_NE(root, nullptr);
    root->ref();
    EXPECT_EQ(root->getNumChildren(), 50000);
    root->unref();

    ASSERT_GT(values.count(), 3);
    int last = -1;
    for (const QList<QVariant>& value : values) {
        EXPECT_GE(value[0].toInt(), last);
        last = value[0].toInt();
    }
    EXPECT_GT(last, 80);
}
