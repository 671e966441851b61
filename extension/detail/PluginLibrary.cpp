#include "PluginLibrary.h"
#include "PluginCall.h"
#include "PluginFolders.h"

#include <extension/NscPlugin.h>
#include <vexel/base/SbString.h>
#include <vexel/base/SoDynamicLibManager.h>

namespace {

template <class Symbol>
Symbol symbolOf(SoDynamicLibManager::Handle library, const char* name)
{
    return reinterpret_cast<Symbol>(SoDynamicLibManager::getSymbol(library, name));
}

} // namespace

PluginLibrary::PluginLibrary() = default;
PluginLibrary::PluginLibrary(PluginLibrary&&) noexcept = default;
PluginLibrary::~PluginLibrary() = default;

PluginLibrary PluginLibrary::load(const QString& name)
{
    const QStringList folders = PluginFolders::all();
    const QString found = PluginFolders::find(name, folders);
    SbString reason;
    PluginLibrary library;
    library.handle = SoDynamicLibManager::loadLibrary(found.isEmpty() ? name : found, &reason);
    if (!library.handle && found.isEmpty())
        library.problem = QStringLiteral("cannot find the plug-in '%1': neither lib%1.so nor %1.so is in %2, and the "
                                         "system says: %3")
                              .arg(name, folders.join(", "), reason.toQString());
    else if (!library.handle)
        library.problem = "cannot load the plug-in '" + name + "': " + reason.toQString();
    else
        library.file = found.isEmpty() ? "lib" + name + ".so" : found;
    return library;
}

void PluginLibrary::makePlugin()
{
    const auto* const version = symbolOf<const int*>(handle, "nscPluginInterfaceVersion");
    const auto create = symbolOf<NscPlugin* (*)()>(handle, "nscCreatePlugin");
    if (!version || !create) {
        problem = "the library '" + file + "' is no plug-in: it has no NSC_PLUGIN";
        return;
    }
    if (*version != Nsc_interface_version) {
        problem = QStringLiteral("the plug-in '%1' is made for version %2 of the extension interface, this is version "
                                 "%3: compile it anew")
                      .arg(file)
                      .arg(*version)
                      .arg(Nsc_interface_version);
        return;
    }
    const QString thrown = exceptionOf([&] {
        plugin.reset(create());
        if (plugin)
            name = plugin->getName().toQString();
    });
    if (!thrown.isNull()) {
        problem = "the plug-in '" + file + "' cannot be made: " + thrown;
        plugin.reset();
    } else if (!plugin) {
        problem = "the library '" + file + "' makes no plug-in";
    }
}
