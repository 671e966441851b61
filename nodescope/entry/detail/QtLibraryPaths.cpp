#include "QtLibraryPaths.h"

#include <vexel/base/SbFileHelper.h>
#include <vexel/base/SoDynamicLibManager.h>
#include <vexel/base/SoPreferences.h>
#include <vexel/io/SoDB.h>

#include <QCoreApplication>
#include <QFile>

void setupQtLibraryPaths(const SbString& defaultPath)
{
    if (QCoreApplication::instance() || QFile::exists(QStringLiteral("qt.conf")) ||
        !SoPreferences::getString("QT_QPA_PLATFORM_PLUGIN_PATH", "").isEmpty())
        return;
    if (!defaultPath.isEmpty()) {
        QCoreApplication::addLibraryPath(defaultPath.toQString());
        return;
    }
    const SbString toolkit =
        SoDynamicLibManager::getLibraryFromSymbol(reinterpret_cast<const void*>(&SoVexelBase::init));
    const SbString plugins = SbFileHelper::toUnixPath(SbFileHelper::getDirName(toolkit) + "qtplugins/");
    if (SbFileHelper::isAccessible(plugins, SbFileHelper::READ))
        QCoreApplication::addLibraryPath(plugins.toQString());
}
