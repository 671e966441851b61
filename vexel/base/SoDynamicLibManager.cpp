#include <vexel/base/SoDynamicLibManager.h>

#include <vexel/base/SbFileHelper.h>
#include <vexel/base/SbString.h>

#include <QFile>

#include <dlfcn.h>

SbString SoDynamicLibManager::getLibraryFromSymbol(const void* address)
{
    Dl_info info;
    if (!address || !dladdr(address, &info) || !info.dli_fname)
        return SbString();
    return SbFileHelper::getFullPath(QFile::decodeName(info.dli_fname));
}

SbString SoDynamicLibManager::getLibraryFromSymbol(const char* symbol)
{
    return getLibraryFromSymbol(static_cast<const void*>(dlsym(RTLD_DEFAULT, symbol)));
}

static void* open(const QString& file)
{
    return dlopen(QFile::encodeName(file).constData(), RTLD_NOW | RTLD_LOCAL);
}

SoDynamicLibManager::Handle SoDynamicLibManager::loadLibrary(const SbString& name, SbString* message)
{
    QString file = name.toQString();
    if (!file.contains('/')) {
        file = "lib" + file + ".so";
        const SbString toolkit = getLibraryFromSymbol(reinterpret_cast<const void*>(&open));
        const QString besideToolkit = SbFileHelper::getDirName(toolkit).toQString() + file;
        // A file that is there but cannot be loaded must be reported as such, not as missing elsewhere.
        if (SbFileHelper::isAccessible(besideToolkit))
            file = besideToolkit;
    }
    const Handle library = open(file);
    if (!library && message)
        *message = SbString(dlerror());
    return library;
}

void SoDynamicLibManager::unloadLibrary(Handle library)
{
    if (library)
        dlclose(library);
}

void* SoDynamicLibManager::getSymbol(Handle library, const char* symbol)
{
    return library ? dlsym(library, symbol) : nullptr;
}
