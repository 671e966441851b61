#include <tests/support/DesktopInput.h>
#include <tests/support/ProgramRun.h>

#include <QClipboard>
#include <QElapsedTimer>
#include <QFile>
#include <QGuiApplication>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <gtest/gtest.h>

// The example hosts as processes of their own, used by keys and mouse.

namespace {

constexpr int Deadline = 30000; // milliseconds; nothing is waited for that long unless it hangs
const QString Inspector = QStringLiteral("Nodescope");

class Host {
public:
    Host(const QString& program, const QString& title, const QStringList& arguments = {}) : m_title(title)
    {
        m_process.setProcessChannelMode(QProcess::MergedChannels);
        m_process.setProcessEnvironment(withoutLeakCheck());
        startProgram(m_process, program, arguments);
        EXPECT_TRUE(m_process.waitForStarted(Deadline));
    }
    ~Host()
    {
        m_process.kill();
        m_process.waitForFinished(Deadline);
    }

    bool press(const QStringList& keys) { return pressIn(m_title, keys); }
    bool pressInInspector(const QStringList& keys) { return pressIn(Inspector, keys); }
    /** Clicks at a place of the host's window, which no other window covers. */
    bool clickAt(int x, int y)
    {
        return DesktopInput::perform({"search", "--onlyvisible", "--all", "--pid", pid(), "--name", "^" + m_title,
                                      "windowraise", "mousemove", "--window", "%1", QString::number(x),
                                      QString::number(y), "click", "1"});
    }
    /** Waits until the inspector's window is gone. */
    bool inspectorIsGone()
    {
        return isTrueInTime([this] {
            return !DesktopInput::perform(
                {"search", "--onlyvisible", "--all", "--pid", pid(), "--name", "^" + Inspector});
        });
    }
    /** The text of the node that is current in the inspector, once there is `part` in it. */
    bool currentNodeHas(const char* part)
    {
        return isTrueInTime([&] {
            QSignalSpy copied(QGuiApplication::clipboard(), &QClipboard::dataChanged);
            return pressInInspector({"ctrl+c"}) && copied.wait(Deadline) &&
                   QGuiApplication::clipboard()->text().contains(part);
        });
    }
    /** Whether the inspector is open on the scene of the host. What is current at first is not marked yet. */
    bool isInspected() { return pressInInspector({"End", "Home"}) && currentNodeHas("DEF machine"); }
    bool isRunning() const { return m_process.state() == QProcess::Running; }
    bool hasSaid(const char* text)
    {
        while (!m_output.contains(text) && m_process.waitForReadyRead(Deadline))
            m_output += m_process.readAll();
        return m_output.contains(text);
    }
    void expectGoodEnd()
    {
        EXPECT_TRUE(m_process.waitForFinished(Deadline));
        EXPECT_EQ(m_process.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(m_process.exitCode(), 0) << (m_output + m_process.readAll()).toStdString();
    }

private:
    /** Where programs are instrumented: at the end of a process the check may meet a thread of the graphics driver that
     * is just ending, and crash. Leaks are looked for where hosts run inside a test. */
    static QProcessEnvironment withoutLeakCheck()
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("ASAN_OPTIONS", environment.value("ASAN_OPTIONS") + ":detect_leaks=0");
        return environment;
    }
    QString pid() const { return QString::number(m_process.processId()); }

    bool pressIn(const QString& title, const QStringList& keys)
    {
        // A window that has just come may not take the keyboard yet.
        return isTrueInTime([&] { return DesktopInput::focusWindow(m_process.processId(), title); }) &&
               DesktopInput::perform(QStringList("key") + keys);
    }
    /** What is asked takes some time itself, as it goes through the display. */
    template <class Condition>
    static bool isTrueInTime(Condition isTrue)
    {
        QElapsedTimer clock;
        clock.start();
        while (!isTrue()) {
            if (clock.hasExpired(Deadline))
                return false;
        }
        return true;
    }

    QString m_title;
    QProcess m_process;
    QByteArray m_output;
};

} // namespace

TEST(Hosts, TheExaminerIsOpenedPickedInQuitAndEnds)
{
    Host host("host_examiner", "Examiner host");
    ASSERT_TRUE(host.press({"F12"}));
    ASSERT_TRUE(host.isInspected());
    ASSERT_TRUE(host.press({"Escape"})); // picking mode
    ASSERT_TRUE(host.clickAt(330, 310));
    EXPECT_TRUE(host.currentNodeHas("DEF block"));
    ASSERT_TRUE(host.pressInInspector({"ctrl+q"}));
    EXPECT_TRUE(host.inspectorIsGone());
    EXPECT_TRUE(host.isRunning());
    ASSERT_TRUE(host.press({"F12"})); // again, and then the host ends while it is inspected
    ASSERT_TRUE(host.isInspected());
    ASSERT_TRUE(host.press({"ctrl+q"}));
    host.expectGoodEnd();
}

TEST(Hosts, TheChildWindowIsOpenedFollowedAndEnds)
{
    Host host("host_child_window", "Child window host");
    ASSERT_TRUE(host.press({"alt+i"}));
    ASSERT_TRUE(host.pressInInspector({"Home", "Down", "Down"})); // the balls
    ASSERT_TRUE(host.currentNodeHas("DEF balls"));
    // They come and go, and with them what is copied.
    ASSERT_TRUE(host.currentNodeHas("Sphere"));
    ASSERT_TRUE(host.pressInInspector({"ctrl+q"}));
    EXPECT_TRUE(host.inspectorIsGone());
    EXPECT_TRUE(host.isRunning());
    ASSERT_TRUE(host.press({"alt+i"}));
    ASSERT_TRUE(host.isInspected());
    ASSERT_TRUE(host.press({"ctrl+q"}));
    host.expectGoodEnd();
}

TEST(Hosts, TheLoopOfItsOwnGoesOnAndStartsAgain)
{
    Host host("host_own_loop", "", {"--rounds", "2"});
    for (const char* round : {"round 1", "round 2"}) {
        ASSERT_TRUE(host.hasSaid(round)) << round;
        ASSERT_TRUE(host.isInspected());
        ASSERT_TRUE(host.pressInInspector({"ctrl+q"}));
    }
    EXPECT_TRUE(host.hasSaid("done\n"));
    host.expectGoodEnd();
}

TEST(Hosts, TheViewerOpensTheInspectorByItsKey)
{
    Host host("host_viewer_hook", "Viewer host");
    ASSERT_TRUE(host.press({"shift+F12"}));
    ASSERT_TRUE(host.isInspected());
    ASSERT_TRUE(host.press({"Escape"}));
    ASSERT_TRUE(host.clickAt(330, 310));
    EXPECT_TRUE(host.currentNodeHas("DEF block"));
    ASSERT_TRUE(host.pressInInspector({"ctrl+q"}));
    EXPECT_TRUE(host.inspectorIsGone());
    ASSERT_TRUE(host.press({"shift+F12"}));
    ASSERT_TRUE(host.isInspected());
    ASSERT_TRUE(host.press({"ctrl+q"}));
    host.expectGoodEnd();
}

TEST(Hosts, AViewerWithoutTheInspectorSaysSoAndGoesOn)
{
    // The toolkit alone, in a folder that comes before that of the build.
    const QTemporaryDir folder;
    for (const char* library : {"libvexel.so", "libvexel_viewer.so"})
        ASSERT_TRUE(QFile::copy(QStringLiteral(LIBRARY_FOLDER "/") + library, folder.filePath(library)));
    const QByteArray before = qgetenv("LD_LIBRARY_PATH");
    qputenv("LD_LIBRARY_PATH", folder.path().toUtf8());
    Host host("host_viewer_hook", "Viewer host");
    qputenv("LD_LIBRARY_PATH", before);
    ASSERT_TRUE(host.press({"shift+F12"}));
    EXPECT_TRUE(host.hasSaid("cannot load the inspector 'kor_nodescope'"));
    EXPECT_TRUE(host.isRunning());
    ASSERT_TRUE(host.press({"ctrl+q"}));
    host.expectGoodEnd();
}
