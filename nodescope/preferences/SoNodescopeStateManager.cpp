#include "SoNodescopeStateManager.h"
#include "SoNodescopeState.h"

#include <QHash>
#include <QPointer>

#include <cstdio>

namespace {

using Wrapper = QPointer<SoNodescopeState>; ///< null when the panel has gone

struct States {
    QMultiHash<QString, Wrapper> byName; ///< the newest of a name is found first
    QString current;
};

States& states()
{
    static States all;
    return all;
}

void printError(const char* text)
{
    std::printf("[E] SoNodescopeStateManager::setCurrentState: %s\n", text);
}

void leave(const QString& name)
{
    const auto found = states().byName.constFind(name);
    if (found == states().byName.constEnd())
        printError("Error wrapper is NULL");
    else if (found->isNull())
        printError("Error state is NULL");
    else
        (*found)->deactivate();
}

} // namespace

void SoNodescopeStateManager::init()
{
    states() = States();
}

void SoNodescopeStateManager::registerState(const QString& name, SoNodescopeState* state)
{
    states().byName.insert(name, state);
}

void SoNodescopeStateManager::setCurrentState(const QString& name)
{
    if (name == states().current)
        return;
    if (!states().current.isEmpty())
        leave(std::exchange(states().current, QString()));
    const auto found = states().byName.constFind(name);
    if (found == states().byName.constEnd()) {
        printError("Error wrapper not found");
    } else if (found->isNull()) {
        printError("Error state not found");
    } else {
        (*found)->activate();
        states().current = name;
    }
}

QString SoNodescopeStateManager::currentState()
{
    return states().current;
}
