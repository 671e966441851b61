#include <tests/support/ProgramRun.h>

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <sys/stat.h>

// What the program does when a file can't be written: it says so, leaves nothing behind and keeps what was there.

namespace {

class ExportFails : public testing::TestWithParam<const char*> {
protected:
    QString path(const QString& name) const { return m_folder.filePath(name); }
    QString file() const { return path(QStringLiteral("old.") + GetParam()); }

    void keepOldFile() const
    {
        QFile old(file());
        ASSERT_TRUE(old.open(QIODevice::WriteOnly));
        old.write("old");
    }

    void expectComplaint(const ProgramRun& run, const QString& name) const
    {
        EXPECT_EQ(2, run.status);
        EXPECT_EQ("", run.out);
        EXPECT_NE(std::string::npos, run.err.find("cannot write \"" + name.toStdString() + "\": ")) << run.err;
    }

    const QString m_scene = QStringLiteral(GALLERY "/lines.vx");
    QTemporaryDir m_folder;
};

} // namespace

TEST_P(ExportFails, onAFullDisk)
{
    keepOldFile();
    // No file may grow beyond some kilobytes; the signal that tells of it would end the program otherwise.
    const ProgramRun run = runOtherProgram("sh", {"-c", "trap '' XFSZ; ulimit -f 8; exec \"$0\" export \"$1\" \"$2\"",
                                                  pathOfProgram("vexel"), m_scene, file()});
    expectComplaint(run, file());
    EXPECT_EQ(QByteArray("old"), contentOf(file()));
    EXPECT_EQ(QStringList{QFileInfo(file()).fileName()}, QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden));
}

TEST_P(ExportFails, inAFolderThatIsNotThere)
{
    const QString name = path(QStringLiteral("none/new.") + GetParam());
    expectComplaint(runProgram("vexel", {"export", m_scene, name}), name);
    EXPECT_FALSE(QFileInfo::exists(path("none")));
}

TEST_P(ExportFails, whereAFolderHasTheName)
{
    ASSERT_TRUE(QDir().mkdir(file()));
    expectComplaint(runProgram("vexel", {"export", m_scene, file()}), file());
    EXPECT_TRUE(QFileInfo(file()).isDir());
    EXPECT_TRUE(QDir(file()).isEmpty());
}

TEST_P(ExportFails, whereSomethingElseThanAFileHasTheName)
{
    ASSERT_EQ(0, mkfifo(file().toUtf8().constData(), 0600));
    expectComplaint(runProgram("vexel", {"export", m_scene, file()}), file());
    struct stat there;
    ASSERT_EQ(0, stat(file().toUtf8().constData(), &there));
    EXPECT_TRUE(S_ISFIFO(there.st_mode));
}

TEST_P(ExportFails, forASceneThatCannotBeRead)
{
    keepOldFile();
    EXPECT_EQ(2, runProgram("vexel", {"export", path("none.vx"), file()}).status);
    EXPECT_EQ(QByteArray("old"), contentOf(file()));
}

TEST_P(ExportFails, notWhereAnOldFileIsToBeReplaced)
{
    keepOldFile();
    EXPECT_EQ(0, runProgram("vexel", {"export", m_scene, file()}).status);
    EXPECT_GT(contentOf(file()).size(), 1000);
}

INSTANTIATE_TEST_SUITE_P(Formats, ExportFails, testing::Values("pdf", "u3d", "ps", "cgm", "emf", "hpgl"),
                         [](const auto& info) { return std::string(info.param); });
