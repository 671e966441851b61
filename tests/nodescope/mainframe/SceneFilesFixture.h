#pragma once

#include "MainFrameFixture.h"

#include <nodescope/mainframe/RecentFilesMenu.h>
#include <nodescope/mainframe/SceneDocument.h>
#include <nodescope/mainframe/SceneFiles.h>
#include <tests/support/ModalAnswers.h>
#include <vexel/io/SoDB.h>
#include <vexel/nodes/SoNode.h>

#include <QFile>
#include <QFileDialog>
#include <QTemporaryDir>

/** Holds a scene and nothing else. */
class PlainDocument : public SceneDocument {
public:
    ~PlainDocument() override { PlainDocument::setSceneGraph(nullptr, false); }

    SoNode* scene() const override { return m_scene; }
    void setSceneGraph(SoNode* root, bool resetCommands) override
    {
        if (root)
            root->ref();
        if (m_scene)
            m_scene->unref();
        m_scene = root;
        m_isModified &= !resetCommands;
        ++m_changes;
    }
    bool isModified() const override { return m_isModified; }

    SoNode* m_scene = nullptr;
    bool m_isModified = false;
    int m_changes = 0;
};

/** Scene files over a real main frame, a plain document and a folder of its own. */
class SceneFilesTest : public MainFrameTest {
protected:
    SceneFilesTest()
    {
        SoDB::init();
        m_window.setSceneFiles(&m_sceneFiles);
    }

    QString path(const char* name) const { return m_folder.filePath(name); }
    QString write(const char* name, const QByteArray& content) const
    {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return file.fileName();
    }
    QByteArray contentOf(const QString& name) const
    {
        QFile file(name);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("missing");
    }
    SoNode* scene() const { return m_document.m_scene; }
    bool canReload() const { return m_window.action(ActionId::Reload)->isEnabled(); }

    QTemporaryDir m_folder;
    PlainDocument m_document;
    SoNodescopeMainFrame& m_window = makeFrame();
    SceneFiles m_sceneFiles{m_window, m_document};
};
