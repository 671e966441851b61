#include <vexel/base/SoLibNodescope.h>

#include <vexel/base/SbString.h>
#include <vexel/base/SoDebugError.h>
#include <vexel/base/SoDynamicLibManager.h>

namespace {

constexpr char Library[] = "kor_nodescope";

SoLibNodescope* loaded = nullptr;

void postMissing(const SbString& reason)
{
    SoDebugError::post("SoLibNodescope::instance", "cannot load the inspector '%s': %s", Library,
                       reason.toUtf8().constData());
}

} // namespace

struct SoLibNodescope::Functions {
    void (*startNode)(SoNode*, QWidget*) = nullptr;
    void (*startRenderArea)(SoGuiRenderArea*) = nullptr;
    void (*startSceneManager)(SoSceneManager*, QWidget*) = nullptr;
    void (*stop)() = nullptr;
    int (*isRunning)() = nullptr;
    int (*processEvents)() = nullptr;
    void (*setPickAction)(const SbViewportRegion&, SbVec2s) = nullptr;

    /** Name of the first function that the library lacks; null: none. */
    const char* findIn(SoDynamicLibManager::Handle library)
    {
        const char* missing = nullptr;
        const auto find = [&](auto& function, const char* name) {
            function =
                reinterpret_cast<std::decay_t<decltype(function)>>(SoDynamicLibManager::getSymbol(library, name));
            if (!function && !missing)
                missing = name;
        };
        find(startNode, "_startNode");
        find(startRenderArea, "_startRenderArea");
        find(startSceneManager, "_startSceneManager");
        find(stop, "_stop");
        find(isRunning, "_isRunning");
        find(processEvents, "_processEvents");
        find(setPickAction, "_setPickAction");
        return missing;
    }
};

SoLibNodescope::SoLibNodescope(std::unique_ptr<Functions> functions) : m_functions(std::move(functions)) {}

SoLibNodescope::~SoLibNodescope() = default;

bool SoLibNodescope::isAvailable()
{
    return loaded != nullptr;
}

SoLibNodescope* SoLibNodescope::instance()
{
    if (loaded)
        return loaded;
    SbString reason;
    const auto library = SoDynamicLibManager::loadLibrary(Library, &reason);
    auto functions = std::make_unique<Functions>();
    const char* const missing = library ? functions->findIn(library) : nullptr;
    if (missing)
        reason = SbString("it has no function ") + missing;
    if (!library || missing) {
        postMissing(reason);
        SoDynamicLibManager::unloadLibrary(library);
        return nullptr;
    }
    loaded = new SoLibNodescope(std::move(functions));
    return loaded;
}

void SoLibNodescope::startNode(SoNode* root, QWidget* parent)
{
    m_functions->startNode(root, parent);
}

void SoLibNodescope::startRenderArea(SoGuiRenderArea* renderArea)
{
    m_functions->startRenderArea(renderArea);
}

void SoLibNodescope::startSceneManager(SoSceneManager* sceneManager, QWidget* parent)
{
    m_functions->startSceneManager(sceneManager, parent);
}

void SoLibNodescope::stop()
{
    m_functions->stop();
}

bool SoLibNodescope::isRunning() const
{
    return m_functions->isRunning() != 0;
}

bool SoLibNodescope::processEvents()
{
    return m_functions->processEvents() != 0;
}

void SoLibNodescope::setPickAction(const SbViewportRegion& region, SbVec2s cursor)
{
    m_functions->setPickAction(region, cursor);
}
