#include "CommandHistory.h"

#include <extension/NscCommand.h>

/** Marks that the history is at work, for the length of a block. */
class CommandHistory::Busy {
public:
    explicit Busy(CommandHistory& history) : m_history(history) { ++m_history.m_busyCount; }
    ~Busy() { --m_history.m_busyCount; }
    Busy(const Busy&) = delete;
    Busy& operator=(const Busy&) = delete;

private:
    CommandHistory& m_history;
};

CommandHistory::CommandHistory(QObject* parent) : QObject(parent) {}

CommandHistory::~CommandHistory()
{
    while (!m_commands.empty())
        removeLast();
}

void CommandHistory::removeLast()
{
    NscCommand* const command = m_commands.back();
    m_commands.pop_back();
    const auto entry = m_entryCounts.find(command);
    if (--entry->second == 0) {
        m_entryCounts.erase(entry);
        delete command;
    }
}

bool CommandHistory::add(NscCommand* command)
{
    const Busy busy(*this);
    emit redoAvailable(false);
    ++m_entryCounts[command]; // first, so that a command added again survives the loss of its undone entry
    while (count() != m_currentIndex + 1)
        removeLast();
    emit undoAvailable(true);
    m_commands.push_back(command);
    m_currentIndex = count() - 1;
    const bool isDone = command->execute();
    m_isModified = true;
    return isDone;
}

void CommandHistory::undo()
{
    const Busy busy(*this);
    if (m_currentIndex < 0)
        return;
    emit redoAvailable(true);
    m_commands[std::size_t(m_currentIndex)]->undo();
    --m_currentIndex;
    if (m_currentIndex < 0)
        emit undoAvailable(false);
}

void CommandHistory::redo()
{
    const Busy busy(*this);
    if (m_currentIndex + 1 == count())
        return;
    emit undoAvailable(true);
    ++m_currentIndex;
    m_commands[std::size_t(m_currentIndex)]->redo();
    if (m_currentIndex + 1 == count())
        emit redoAvailable(false);
}

void CommandHistory::clear()
{
    m_isClearRequested = true;
    if (m_busyCount != 0)
        return;
    while (!m_commands.empty())
        removeLast();
    m_currentIndex = -1;
    emit undoAvailable(false);
    emit redoAvailable(false);
    m_isModified = false;
    m_isClearRequested = false;
}
