#include "PluginFolders.h"

#include <vexel/base/SbFileHelper.h>
#include <vexel/base/SoDynamicLibManager.h>
#include <vexel/base/SoPreferences.h>

#include <QFileInfo>

namespace {

/** The folder of the library that holds some code. */
template <class Function>
QString folderOf(Function* code)
{
    const SbString library = SoDynamicLibManager::getLibraryFromSymbol(reinterpret_cast<const void*>(code));
    return QFileInfo(library.toQString()).path();
}

} // namespace

QStringList PluginFolders::all()
{
    const SbString named = SbFileHelper::expandString(SoPreferences::getString("VXL_NODESCOPE_PLUGIN_PATH", ""));
    QStringList folders;
    for (const QString& folder : named.toQString().split(':', Qt::SkipEmptyParts))
        folders << SbFileHelper::getFullPath(folder).toQString();
    const QString home = SoPreferences::getString("VXLHOME", "").toQString();
    if (!home.isEmpty())
        folders << home + "/plugins/nodescope";
    folders << folderOf(&PluginFolders::all) + "/nodescope";
    folders << folderOf(&SoDynamicLibManager::unloadLibrary);
    folders.removeDuplicates();
    return folders;
}

QString PluginFolders::find(const QString& name, const QStringList& folders)
{
    for (const QString& folder : folders) {
        for (const char* prefix : {"/lib", "/"}) {
            QString file = folder + prefix + name + ".so";
            if (QFileInfo(file).isFile())
                return file;
        }
    }
    return QString();
}
