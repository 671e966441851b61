#pragma once

#include <nodescope/mainframe/SceneFileHandler.h>

#include <QStringList>

/** Writes down what is asked of the scene files. */
class RecordingSceneFiles : public SceneFileHandler {
public:
    void setScene(SoNode*, bool clearsUndo) override { m_calls << (clearsUndo ? "setScene clear" : "setScene"); }
    bool newScene() override
    {
        m_calls << "newScene";
        return m_mayReplaceScene;
    }
    void openFile(const QString& file) override { m_calls << "openFile " + file; }
    void openRecentFile(const QString& file) override { m_calls << "openRecentFile " + file; }
    void reload() override { m_calls << "reload"; }
    void save() override { m_calls << "save"; }
    void saveAs(SoNode* subgraph) override { m_calls << (subgraph ? "saveAs sub-graph" : "saveAs scene"); }

    QStringList takeCalls() { return std::exchange(m_calls, {}); }

    bool m_mayReplaceScene = true;

private:
    QStringList m_calls;
};
