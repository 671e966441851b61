#include "SceneFilesFixture.h"

#include <vexel/io/SoInput.h>
#include <vexel/nodes/SoGroup.h>

#include <QDir>

namespace {

const char Ascii_scene[] = "#Vexel V2.1 ascii\nSeparator { Cube { } DEF Inner Separator { Cone { } } }\n";
const char Ascii_filter[] = "Vexel Files [ascii] (*.vx *.vxz *.vx.gz)";
const char Binary_filter[] = "Vexel Files [binary] (*.vx *.vxz *.vx.gz)";

enum class Format { Ascii, Binary, Compressed_ascii, Other };

Format formatOf(const QByteArray& content)
{
    if (content.startsWith("#Vexel V2.1 ascii"))
        return Format::Ascii;
    if (content.startsWith("#Vexel V2.1 binary"))
        return Format::Binary;
    return content.startsWith("\x1f\x8b") ? Format::Compressed_ascii : Format::Other;
}

class Saving : public SceneFilesTest {
protected:
    Saving() { m_sceneFiles.openFile(write("first.vx", Ascii_scene)); }

    void chooseName(ModalAnswers& answers, const char* name, const char* filter = Ascii_filter)
    {
        answers.expectFileDialog("Nodescope -- Save As", [=](QFileDialog& dialog) {
            EXPECT_EQ(dialog.nameFilters(), (QStringList{Ascii_filter, Binary_filter}));
            EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptSave);
            dialog.selectNameFilter(filter);
            dialog.selectFile(path(name));
        });
    }
    QStringList files() const { return QDir(m_folder.path()).entryList(QDir::Files, QDir::Name); }
    SoNode* inner() const { return static_cast<SoGroup*>(scene())->getChild(1); }
};

} // namespace

struct NameCase {
    const char* chosen;
    const char* filter;
    const char* written;
    Format format;
};

class SavingUnder : public Saving, public testing::WithParamInterface<NameCase> {};

TEST_P(SavingUnder, TheChosenName)
{
    const NameCase& row = GetParam();
    ModalAnswers answers;
    chooseName(answers, row.chosen, row.filter);
    m_sceneFiles.saveAs(nullptr);
    EXPECT_EQ(formatOf(contentOf(path(row.written))), row.format);
    EXPECT_EQ(m_sceneFiles.currentFile(), path(row.written));
    EXPECT_EQ(m_window.windowTitle(), "Nodescope -- " + path(row.written));
    EXPECT_EQ(m_window.recentFiles()->files(), (QStringList{path(row.written), path("first.vx")}));
}

INSTANTIATE_TEST_SUITE_P(Table, SavingUnder,
                         testing::Values(NameCase{"scene", Ascii_filter, "scene.vx", Format::Ascii},
                                         NameCase{"scene", Binary_filter, "scene.vx", Format::Binary},
                                         NameCase{"scene.VX", Ascii_filter, "scene.VX", Format::Ascii},
                                         NameCase{"scene.vxbackup", Ascii_filter, "scene.vxbackup", Format::Ascii},
                                         NameCase{"scene.txt", Ascii_filter, "scene.txt.vx", Format::Ascii},
                                         NameCase{"scene.vxz", Ascii_filter, "scene.vxz", Format::Compressed_ascii},
                                         NameCase{"scene.vx.gz", Binary_filter, "scene.vx.gz",
                                                  Format::Compressed_ascii}));

TEST_F(Saving, KeepsTheFormatOfTheFile)
{
    const struct {
        const char* name;
        const char* filter;
    } Rows[] = {{"a.vx", Ascii_filter}, {"b.vx", Binary_filter}, {"c.vxz", Binary_filter}, {"d.vx.gz", Ascii_filter}};
    for (const auto& row : Rows) {
        ModalAnswers answers;
        chooseName(answers, row.name, row.filter);
        m_sceneFiles.saveAs(nullptr);
        const QByteArray before = contentOf(path(row.name));
        static_cast<SoGroup*>(scene())->addChild(inner());
        m_sceneFiles.save();
        const QByteArray after = contentOf(path(row.name));
        EXPECT_NE(before, after) << row.name;
        EXPECT_EQ(formatOf(before), formatOf(after)) << row.name;
        SoInput input;
        ASSERT_TRUE(input.openFile(path(row.name)));
        EXPECT_EQ(input.isBinary(), row.filter == Binary_filter) << row.name;
    }
}

TEST_F(Saving, DoesNotShowTheSceneAnew)
{
    const int before = m_document.m_changes;
    m_sceneFiles.save();
    EXPECT_EQ(m_document.m_changes, before);
}

TEST_F(Saving, OfASceneWithoutAFileAsksForAName)
{
    m_sceneFiles.newScene();
    ModalAnswers answers;
    answers.expectFileDialog("Nodescope -- Save As", [this](QFileDialog& dialog) {
        EXPECT_EQ(QFileInfo(dialog.selectedFiles().value(0)).fileName(), "Untitled File");
        dialog.selectFile(path("new.vx"));
    });
    m_sceneFiles.save();
    EXPECT_EQ(m_sceneFiles.currentFile(), path("new.vx"));
}

TEST_F(Saving, ProposesTheNameWithoutItsExtension)
{
    ModalAnswers answers;
    answers.expectDialog("Nodescope -- Save As", [this](QDialog& dialog) {
        EXPECT_EQ(qobject_cast<QFileDialog*>(&dialog)->selectedFiles(), QStringList{path("first")});
        dialog.reject();
    });
    m_sceneFiles.saveAs(nullptr);
    EXPECT_EQ(files(), QStringList{"first.vx"});
}

TEST_F(Saving, ASubGraphLeavesTheSceneAndItsFile)
{
    const int before = m_document.m_changes;
    ModalAnswers answers;
    chooseName(answers, "inner.vx");
    m_sceneFiles.saveAs(inner());
    EXPECT_TRUE(contentOf(path("inner.vx")).contains("DEF Inner"));
    EXPECT_FALSE(contentOf(path("inner.vx")).contains("Cube"));
    EXPECT_EQ(m_sceneFiles.currentFile(), path("first.vx"));
    EXPECT_EQ(m_window.recentFiles()->files(), QStringList{path("first.vx")});
    EXPECT_EQ(m_document.m_changes, before);
}

TEST_F(Saving, AsksBeforeItReplacesAFile)
{
    write("other.vx", "kept");
    ModalAnswers answers;
    chooseName(answers, "other"); // the file's name only with the extension
    answers.expectBox("Nodescope -- Overwrite File", "Overwrite\n'" + path("other.vx") + "'?",
                      QMessageBox::Yes | QMessageBox::No, QMessageBox::No);
    m_sceneFiles.saveAs(nullptr);
    EXPECT_EQ(contentOf(path("other.vx")), "kept");
    EXPECT_EQ(m_sceneFiles.currentFile(), path("first.vx"));

    chooseName(answers, "other");
    answers.expectBox("Nodescope -- Overwrite File", "Overwrite\n'" + path("other.vx") + "'?",
                      QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes);
    m_sceneFiles.saveAs(nullptr);
    EXPECT_EQ(formatOf(contentOf(path("other.vx"))), Format::Ascii);
    EXPECT_EQ(files(), (QStringList{"first.vx", "other.vx"}));
}

TEST_F(Saving, AFileThatCannotBeCreatedIsTold)
{
    const QString file = path("no such folder/a.vx");
    ModalAnswers answers;
    answers.expectBox("File Error Dialog", "Error creating file: " + file, QMessageBox::Ok, QMessageBox::Ok);
    EXPECT_FALSE(m_sceneFiles.write(scene(), file, SceneFiles::WriteMode::Ascii, true));
    EXPECT_EQ(m_sceneFiles.currentFile(), path("first.vx"));
    EXPECT_FALSE(m_sceneFiles.write(nullptr, path("b.vx"), SceneFiles::WriteMode::Ascii, true));
    EXPECT_EQ(files(), QStringList{"first.vx"});
}

TEST_F(Saving, AFailedPlainSaveForgetsTheFile)
{
    ASSERT_TRUE(QFile::remove(path("first.vx")));
    ASSERT_TRUE(QDir(m_folder.path()).mkdir("first.vx"));
    ModalAnswers answers;
    answers.expectBox("File Error Dialog", "Error creating file: " + path("first.vx"), QMessageBox::Ok,
                      QMessageBox::Ok);
    m_sceneFiles.save();
    EXPECT_EQ(m_sceneFiles.currentFile(), "");
    EXPECT_EQ(m_window.windowTitle(), "Nodescope");
    ASSERT_TRUE(QDir(m_folder.path()).rmdir("first.vx"));
}
