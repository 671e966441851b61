#pragma once

#include <nodescope/NodescopeApi.h>

#include <QObject>
#include <unordered_map>
#include <vector>

class NscCommand;

/**
 * The linear history of undoable commands. It owns them. The same command may stand in it more than once; it is deleted
 * with the last of its entries.
 */
class NODESCOPE_API CommandHistory : public QObject {
    Q_OBJECT
public:
    explicit CommandHistory(QObject* parent = nullptr);
    ~CommandHistory() override;

    /** Drops what was undone, appends the command and executes it; answers what execute() answers, and keeps it in any
     * case. */
    bool add(NscCommand* command);
    /** Takes back the last command in effect; nothing when there is none. */
    void undo();
    /** Makes the last undone command again; nothing when there is none. */
    void redo();
    /** Empties the history; ignored while a command is being added, undone or redone, because the change that asks is
     * its own. */
    void clear();

    /** Whether a command was added since the start or the last clear(). */
    bool isModified() const { return m_isModified; }
    /** Whether clear() was called, even if it was ignored, since it last emptied the history. */
    bool isClearRequested() const { return m_isClearRequested; }
    int count() const { return int(m_commands.size()); }
    /** Position of the last command in effect; -1: none. */
    int currentIndex() const { return m_currentIndex; }

signals:
    void undoAvailable(bool isAvailable);
    void redoAvailable(bool isAvailable);

private:
    class Busy;

    void removeLast();

    std::vector<NscCommand*> m_commands;
    std::unordered_map<NscCommand*, int> m_entryCounts;
    int m_currentIndex = -1;
    unsigned m_busyCount = 0;
    bool m_isModified = false;
    bool m_isClearRequested = false;
};
