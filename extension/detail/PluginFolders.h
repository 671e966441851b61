#pragma once

#include <QStringList>

/** Where libraries of plug-ins are looked for. */
namespace PluginFolders {

/** In their order, each without a '/' at its end; they need not exist. */
QStringList all();
/** The file of a library in the first folder that has it, as lib<name>.so or <name>.so; empty: none has it. */
QString find(const QString& name, const QStringList& folders);

} // namespace PluginFolders
