#pragma once

#include <nodescope/NodescopeApi.h>

#include <QObject>

class CommandHistory;
class NscCommand;
class SoNodescopeMainFrame;

/** The hub of what the user does to the scene: the actions of the main frame end here, and every change passes the
 * history here. */
class NODESCOPE_API SoCommandManager : public QObject {
    Q_OBJECT
public:
    explicit SoCommandManager(QObject* parent = nullptr);
    ~SoCommandManager() override;

    /** Ties the history to the frame's undo and redo actions. To be called once, after the frame is set up. */
    void initialize(SoNodescopeMainFrame* frame);

    /** Whether the scene was changed through a command since the history was last cleared. */
    bool isModified() const;

public slots:
    void reloadFile();
    void closeApp();
    void openFile();
    void openFileRecent();
    void newFile();
    void saveFile();
    void saveAsFile();
    void closeFile();

    void undo();
    void redo();
    /** Takes the command over and executes it; answers what it answers. */
    bool addCommand(NscCommand* command);
    void clearUndoCommand();

private:
    SoNodescopeMainFrame* m_frame = nullptr;
    CommandHistory* m_history;
};
