#include "SceneFilesFixture.h"

#include <vexel/nodes/SoGroup.h>

#include <QPushButton>

namespace {

const char Title[] = "Nodescope -- Unsaved Changes";
constexpr auto Buttons = QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;

/** A file is open and its scene was changed. */
class UnsavedChanges : public SceneFilesTest {
protected:
    UnsavedChanges()
    {
        m_sceneFiles.openFile(write("a.vx", "#Vexel V2.1 ascii\nSeparator { Cube { } }\n"));
        static_cast<SoGroup*>(scene())->removeChild(0);
        m_document.m_isModified = true;
        m_before = scene();
    }

    bool isStored() const { return !contentOf(path("a.vx")).contains("Cube"); }
    const QString m_question = "Save changes to " + path("a.vx");
    SoNode* m_before;
};

} // namespace

TEST_F(UnsavedChanges, YesSavesAndGoesOn)
{
    ModalAnswers answers;
    answers.expectBox(Title, m_question, Buttons, QMessageBox::Yes);
    EXPECT_TRUE(m_sceneFiles.newScene());
    EXPECT_TRUE(isStored());
    EXPECT_NE(scene(), m_before);
}

TEST_F(UnsavedChanges, NoGoesOn)
{
    ModalAnswers answers;
    answers.expectBox(Title, m_question, Buttons, QMessageBox::No);
    EXPECT_TRUE(m_sceneFiles.newScene());
    EXPECT_FALSE(isStored());
    EXPECT_NE(scene(), m_before);
}

TEST_F(UnsavedChanges, TheEscapeKeyAnswersNo)
{
    ModalAnswers answers;
    answers.expectEscapedBox(Title, m_question, Buttons);
    EXPECT_TRUE(m_sceneFiles.newScene());
    EXPECT_FALSE(isStored());
    EXPECT_EQ(m_sceneFiles.currentFile(), "");
}

TEST_F(UnsavedChanges, CancelLeavesEverything)
{
    ModalAnswers answers;
    answers.expectBox(Title, m_question, Buttons, QMessageBox::Cancel);
    EXPECT_FALSE(m_sceneFiles.newScene());
    answers.expectBox(Title, m_question, Buttons, QMessageBox::Cancel);
    m_sceneFiles.openRecentFile(write("b.vx", "#Vexel V2.1 ascii\nCube { }\n"));
    answers.expectBox(Title, m_question, Buttons, QMessageBox::Cancel);
    m_sceneFiles.reload();
    EXPECT_EQ(scene(), m_before);
    EXPECT_EQ(m_sceneFiles.currentFile(), path("a.vx"));
    EXPECT_FALSE(isStored());
}

TEST_F(UnsavedChanges, YesIsTheDefaultAndTheBoxIsInformation)
{
    ModalAnswers answers;
    answers.expectBox(Title, [](QMessageBox& box) {
        EXPECT_TRUE(static_cast<QPushButton*>(box.button(QMessageBox::Yes))->isDefault());
        EXPECT_EQ(box.icon(), QMessageBox::Information);
    });
    m_sceneFiles.newScene();
}

TEST_F(UnsavedChanges, WithoutAFileTheQuestionNamesNone)
{
    m_document.m_isModified = false;
    m_sceneFiles.newScene();
    m_document.m_isModified = true;
    ModalAnswers answers;
    answers.expectBox(Title, "Save changes ", Buttons, QMessageBox::No);
    EXPECT_TRUE(m_sceneFiles.newScene());
}
