#pragma once

#include <QAction>
#include <QObject>
#include <QStringList>

/** Has every slot that the main frame's actions reach, and writes down the calls. */
class RecordingManager : public QObject {
    Q_OBJECT
public:
    /** The calls since the last time. */
    QStringList takeCalls() { return std::exchange(m_calls, {}); }

public slots:
    void newFile() { m_calls << "newFile"; }
    void openFile() { m_calls << "openFile"; }
    void openFileRecent() { m_calls << "openFileRecent " + qobject_cast<QAction*>(sender())->data().toString(); }
    void reloadFile() { m_calls << "reloadFile"; }
    void closeFile() { m_calls << "closeFile"; }
    void saveFile() { m_calls << "saveFile"; }
    void saveAsFile() { m_calls << "saveAsFile"; }
    void printQt() { m_calls << "printQt"; }
    void printFile() { m_calls << "printFile"; }
    void closeApp() { m_calls << "closeApp"; }
    void undo() { m_calls << "undo"; }
    void redo() { m_calls << "redo"; }
    void cut() { m_calls << "cut"; }
    void copy() { m_calls << "copy"; }
    void paste() { m_calls << "paste"; }
    void pasteNode() { m_calls << "pasteNode"; }
    void showFindDialog() { m_calls << "showFindDialog"; }
    void find() { m_calls << "find"; }
    void findNext() { m_calls << "findNext"; }
    void findPrevious() { m_calls << "findPrevious"; }
    void toggleBookmark() { m_calls << "toggleBookmark"; }
    void nextBookmark() { m_calls << "nextBookmark"; }
    void previousBookmark() { m_calls << "previousBookmark"; }
    void clearBookmark() { m_calls << "clearBookmark"; }
    void setFilter(int mask) { m_calls << "setFilter " + QString::number(mask); }
    void ignoreEnable() { m_calls << "ignoreEnable"; }
    void showAllReferences() { m_calls << "showAllReferences"; }
    void removeAllReferences() { m_calls << "removeAllReferences"; }
    void nextReference() { m_calls << "nextReference"; }
    void previousReference() { m_calls << "previousReference"; }
    void editPreferences() { m_calls << "editPreferences"; }
    void launchNodescopeHelpViewer() { m_calls << "launchNodescopeHelpViewer"; }
    void launchAboutNodescopeFrame() { m_calls << "launchAboutNodescopeFrame"; }

private:
    QStringList m_calls;
};
