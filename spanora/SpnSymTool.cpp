#include "SpnSymTool.h"

#include <vexel/base/SbString.h>
#include <vexel/base/SoDebugError.h>
#include <vexel/base/SoDynamicLibManager.h>

#include <map>

namespace {

using ModuleFunction = void (*)();

struct Module {
    SoDynamicLibManager::Handle library;
    ModuleFunction finish;
};

std::map<SbString, Module>& modules()
{
    static std::map<SbString, Module> Started;
    return Started;
}

ModuleFunction function(SoDynamicLibManager::Handle library, const char* name)
{
    return reinterpret_cast<ModuleFunction>(SoDynamicLibManager::getSymbol(library, name));
}

void postUnusable(const SbString& name, const SbString& reason)
{
    SoDebugError::postWarning("SpnSymTool::initModule", "the module '%s' cannot be used: %s", name.toUtf8().constData(),
                              reason.toUtf8().constData());
}

/** Whether the loader's message is about the library itself not being there. */
bool isMissing(const SbString& name, const SbString& message)
{
    return message.startsWith("lib" + name + ".so: ") && message.find("No such file") >= 0;
}

} // namespace

bool SpnSymTool::initModule(const SbString& name)
{
    if (modules().count(name))
        return true;
    SbString message;
    const auto library = SoDynamicLibManager::loadLibrary(name, &message);
    if (!library) {
        if (!isMissing(name, message))
            postUnusable(name, message);
        return false;
    }
    const ModuleFunction init = function(library, "spnInitModule");
    const ModuleFunction finish = function(library, "spnFinishModule");
    if (!init || !finish) {
        postUnusable(name, "it has no functions spnInitModule and spnFinishModule");
        SoDynamicLibManager::unloadLibrary(library);
        return false;
    }
    init();
    modules().emplace(name, Module{library, finish});
    return true;
}

void SpnSymTool::finishModule(const SbString& name)
{
    const auto module = modules().find(name);
    if (module == modules().end())
        return;
    module->second.finish();
    SoDynamicLibManager::unloadLibrary(module->second.library);
    modules().erase(module);
}
