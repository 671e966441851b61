#include <tests/support/DesktopInput.h>
#include <tests/support/ProgramRun.h>

#include <QClipboard>
#include <QFile>
#include <QGuiApplication>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

constexpr int Deadline = 20000; // milliseconds; nothing is waited for that long unless it hangs

QString write(const QString& file, const char* content)
{
    QFile target(file);
    EXPECT_TRUE(target.open(QIODevice::WriteOnly));
    target.write(content);
    return file;
}

/** The program with a scene file, used by its keys. */
class Window {
public:
    explicit Window(const QString& file) : m_title("Nodescope -- " + file)
    {
        startProgram(m_process, "nodescope", {file});
    }
    ~Window()
    {
        m_process.kill();
        m_process.waitForFinished(Deadline);
    }

    void press(const QStringList& keys)
    {
        ASSERT_TRUE(m_process.waitForStarted(Deadline));
        ASSERT_TRUE(DesktopInput::focusWindow(m_process.processId(), m_title));
        ASSERT_TRUE(DesktopInput::perform(QStringList("key") + keys));
    }
    void waitForEnd()
    {
        EXPECT_TRUE(m_process.waitForFinished(Deadline));
        EXPECT_EQ(m_process.exitCode(), 0);
    }

private:
    QString m_title;
    QProcess m_process;
};

} // namespace

TEST(Clipboard, CarriesASceneFromOneProgramToAnother)
{
    const QTemporaryDir folder;
    const QString from =
        write(folder.filePath("from.vx"), "#Vexel V2.1 ascii\nSeparator { DEF ball Sphere { radius 2 } }\n");
    const QString to = write(folder.filePath("to.vx"), "#Vexel V2.1 ascii\nSeparator { DEF box Cube { width 3 } }\n");
    Window source(from);
    Window target(to);
    QSignalSpy copied(QGuiApplication::clipboard(), &QClipboard::dataChanged);
    source.press({"Down", "ctrl+c"}); // what is current when a scene was opened is not marked yet
    while (!QGuiApplication::clipboard()->text().contains("DEF ball"))
        ASSERT_TRUE(copied.wait(Deadline)) << "nothing was copied";
    target.press({"ctrl+v", "ctrl+s", "ctrl+q"});
    target.waitForEnd();
    EXPECT_EQ(contentOf(to).toStdString(), "#Vexel V2.1 ascii\n\n"
                                           "Separator {\n"
                                           "  Separator {\n    DEF box Cube {\n      width 3\n    }\n  }\n"
                                           "  Separator {\n    DEF ball Sphere {\n      radius 2\n    }\n  }\n"
                                           "}\n");
    source.press({"ctrl+q"});
    source.waitForEnd();
}
