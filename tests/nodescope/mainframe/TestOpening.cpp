#include "SceneFilesFixture.h"

#include <vexel/nodes/SoChildList.h>
#include <vexel/nodes/SoGroup.h>
#include <vexel/nodes/SoSeparator.h>

#include <QScreen>

namespace {

const char Scene[] = "#Vexel V2.1 ascii\nSeparator { Material { } DEF Two Translation { } }\n";

} // namespace

TEST_F(SceneFilesTest, AnOpenedFileIsShownAndRemembered)
{
    const QString file = write("a scene.vx", Scene);
    m_window.openFile(file);
    ASSERT_TRUE(scene());
    EXPECT_EQ(static_cast<SoGroup*>(scene())->getNumChildren(), 2);
    EXPECT_EQ(m_sceneFiles.currentFile(), file);
    EXPECT_EQ(m_window.windowTitle(), "Nodescope -- " + file);
    EXPECT_EQ(m_window.recentFiles()->files(), QStringList{file});
    EXPECT_TRUE(canReload());
}

TEST_F(SceneFilesTest, AFileThatIsNotThereIsToldAndTheSceneStays)
{
    m_sceneFiles.openFile(write("a.vx", Scene));
    SoNode* const before = scene();
    ModalAnswers answers;
    answers.expectBox("NodescopeReadFile", [&](QMessageBox& box) {
        EXPECT_TRUE(box.text().contains(path("b.vx"))) << box.text();
        EXPECT_EQ(box.icon(), QMessageBox::Warning);
        EXPECT_EQ(box.standardButtons(), QMessageBox::Ok);
    });
    m_sceneFiles.openFile(path("b.vx"));
    EXPECT_EQ(scene(), before);
    EXPECT_EQ(m_sceneFiles.currentFile(), path("a.vx"));
    EXPECT_EQ(m_window.recentFiles()->files(), QStringList{path("a.vx")});
}

TEST_F(SceneFilesTest, WhatIsNoSceneIsToldAndTheSceneStays)
{
    m_sceneFiles.openFile(write("a.vx", Scene));
    SoNode* const before = scene();
    ModalAnswers answers;
    answers.expectBox("NodescopeReadFile", [](QMessageBox& box) { EXPECT_FALSE(box.text().isEmpty()); });
    m_sceneFiles.openFile(write("b.vx", "just <b>text</b>"));
    EXPECT_EQ(scene(), before);
    EXPECT_EQ(m_window.windowTitle(), "Nodescope -- " + path("a.vx"));
}

TEST_F(SceneFilesTest, WhatIsGoodOfADamagedSceneIsShown)
{
    ModalAnswers answers;
    answers.expectBox("NodescopeReadFile", [](QMessageBox& box) {
        EXPECT_TRUE(box.text().contains("a.vx:4:")) << box.text();
        EXPECT_EQ(box.detailedText(), "");
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
    });
    m_sceneFiles.openFile(
        write("a.vx", "#Vexel V2.1 ascii\nSeparator {\n Cube { }\n Translation { translation tall }\n}\n"));
    ASSERT_TRUE(scene());
    EXPECT_EQ(m_sceneFiles.currentFile(), path("a.vx"));
}

TEST_F(SceneFilesTest, AHundredLongMessagesLeaveTheBoxUsable)
{
    QByteArray text = "#Vexel V2.1 ascii\n";
    for (int i = 0; i < 90; ++i)
        text += "Material { transparency " + QByteArray(2000, 'x') + " }\n";
    ModalAnswers answers;
    answers.expectBox("NodescopeReadFile", [](QMessageBox& box) {
        const QSize screen = box.screen()->availableSize();
        EXPECT_LT(box.width(), screen.width() * 3 / 4);
        EXPECT_LT(box.height(), screen.height() * 3 / 4);
        EXPECT_LT(box.text().size(), 3000);
        EXPECT_TRUE(box.text().contains("more")) << box.text();
        EXPECT_GE(box.detailedText().count('\n'), 89);
    });
    m_sceneFiles.openFile(write("a.vx", text));
}

TEST_F(SceneFilesTest, FilesBesideTheSceneAreFound)
{
    write("inner.vx", "#Vexel V2.1 ascii\nSeparator { Cube { } }\n");
    m_sceneFiles.openFile(write("outer.vx", "#Vexel V2.1 ascii\nSeparator { File { name \"inner.vx\" } }\n"));
    ASSERT_TRUE(scene());
    const SoNode* file = static_cast<SoGroup*>(scene())->getChild(0);
    EXPECT_EQ(file->getChildren()->getLength(), 1);
}

TEST_F(SceneFilesTest, ANewSceneIsAnEmptySeparator)
{
    m_sceneFiles.openFile(write("a.vx", Scene));
    EXPECT_TRUE(m_sceneFiles.newScene());
    ASSERT_TRUE(scene());
    EXPECT_TRUE(scene()->getTypeId() == SoSeparator::getClassTypeId());
    EXPECT_EQ(static_cast<SoGroup*>(scene())->getNumChildren(), 0);
    EXPECT_EQ(m_sceneFiles.currentFile(), "");
    EXPECT_EQ(m_window.windowTitle(), "Nodescope");
}

TEST_F(SceneFilesTest, ReloadingShowsTheFileAsItIsNow)
{
    m_sceneFiles.reload(); // nothing to reload yet
    EXPECT_FALSE(scene());
    const QString file = write("a.vx", Scene);
    m_sceneFiles.openFile(file);
    write("a.vx", "#Vexel V2.1 ascii\nSeparator { Cube { } Cube { } Cube { } }\n");
    m_sceneFiles.reload();
    EXPECT_EQ(static_cast<SoGroup*>(scene())->getNumChildren(), 3);
}

TEST_F(SceneFilesTest, ARecentFileThatIsGoneIsTold)
{
    m_sceneFiles.openFile(write("a.vx", Scene));
    SoNode* const before = scene();
    ModalAnswers answers;
    answers.expectBox("Nodescope -- Load File",
                      "Can't load '" + path("gone.vx") + "'. \n This file doesn't exist anymore.", QMessageBox::Ok,
                      QMessageBox::Ok);
    m_sceneFiles.openRecentFile(path("gone.vx"));
    EXPECT_EQ(scene(), before);
    m_sceneFiles.openRecentFile(write("b.vx", Scene));
    EXPECT_EQ(m_sceneFiles.currentFile(), path("b.vx"));
}
