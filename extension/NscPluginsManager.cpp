#include "NscPluginsManager.h"
#include "NscExtension.h"
#include "NscPlugin.h"
#include "detail/Configuration.h"

#include <vexel/base/SbString.h>
#include <vexel/base/SoDebugError.h>
#include <vexel/base/SoDynamicLibManager.h>

#include <QBuffer>
#include <QFile>
#include <map>

namespace {

NscPluginsManager* instance = nullptr;

} // namespace

class NscPluginsManager::Plugins {
public:
    ~Plugins()
    {
        while (!m_extensions.empty()) // a vector itself begins with the first
            m_extensions.pop_back();
    }

    void load(const Configuration& configuration)
    {
        for (const QString& library : configuration.libraries)
            loadLibrary(library);
        const std::size_t known = m_extensions.size();
        for (const Configuration::Active& active : configuration.active)
            create(active);
        for (std::size_t i = known; i < m_extensions.size(); ++i)
            m_extensions[i]->activate();
    }

    void addProblem(const QString& text)
    {
        m_problems.push_back(text);
        SoDebugError::post("NscPluginsManager::read", "%s", text.toUtf8().constData());
    }

    const std::vector<SbString>& problems() const { return m_problems; }

private:
    void loadLibrary(const QString& name)
    {
        SbString reason;
        const auto library = SoDynamicLibManager::loadLibrary(name, &reason);
        if (!library) {
            m_lacksLibrary = true;
            addProblem("cannot load the plug-in '" + name + "': " + reason.toQString());
            return;
        }
        using Create = NscPlugin* (*)();
        const auto create = reinterpret_cast<Create>(SoDynamicLibManager::getSymbol(library, "nscCreatePlugin"));
        if (!create) {
            addProblem("the library '" + name + "' is no plug-in: it has no function nscCreatePlugin");
            return;
        }
        std::unique_ptr<NscPlugin> plugin(create());
        const QString pluginName = plugin->getName().toQString();
        std::unique_ptr<NscPlugin>& place = m_plugins[pluginName];
        if (!place) // one that is there already is kept: extensions come from it
            place = std::move(plugin);
    }

    void create(const Configuration::Active& active)
    {
        std::vector<NscExtension*> controlled;
        for (const Configuration::Name& name : active.controlled) {
            if (NscExtension* extension = findOrCreate(name))
                controlled.push_back(extension);
        }
        if (NscExtension* extension = findOrCreate(active.name)) {
            for (NscExtension* each : controlled)
                extension->addControlledExtension(each);
        }
    }

    NscExtension* findOrCreate(const Configuration::Name& name)
    {
        const auto [place, isNew] = m_byName.try_emplace({name.plugin, name.extension}, nullptr);
        NscPlugin* plugin = isNew ? findPlugin(name.plugin) : nullptr;
        if (!plugin)
            return place->second;
        std::unique_ptr<NscExtension> created(plugin->createExtension(name.extension));
        if (!created) {
            addProblem("the plug-in '" + name.plugin + "' has no extension '" + name.extension + "'");
            return nullptr;
        }
        place->second = created.get();
        m_extensions.push_back(std::move(created));
        return place->second;
    }

    NscPlugin* findPlugin(const QString& name)
    {
        const auto [place, isUnknown] = m_plugins.try_emplace(name);
        // A library that could not be loaded was told already and is the likely reason.
        if (isUnknown && !m_lacksLibrary)
            addProblem("none of the loaded plug-ins is named '" + name + "'");
        return place->second.get();
    }

    std::map<QString, std::unique_ptr<NscPlugin>> m_plugins; ///< null: asked for and not there
    std::vector<std::unique_ptr<NscExtension>> m_extensions; ///< in the order of their creation
    std::map<std::pair<QString, QString>, NscExtension*> m_byName;
    std::vector<SbString> m_problems;
    bool m_lacksLibrary = false;
};

NscPluginsManager* NscPluginsManager::getInstance()
{
    if (!instance)
        instance = new NscPluginsManager;
    return instance;
}

void NscPluginsManager::releaseInstance()
{
    delete instance;
    instance = nullptr;
}

NscPluginsManager::NscPluginsManager() : m_plugins(std::make_unique<Plugins>()) {}

NscPluginsManager::~NscPluginsManager() = default;

bool NscPluginsManager::read(const SbString& pathOrText, bool isFile)
{
    const std::size_t knownProblems = getProblems().size();
    QFile file(pathOrText.toQString());
    QByteArray text = pathOrText.toUtf8();
    QBuffer buffer(&text);
    QIODevice& device = isFile ? static_cast<QIODevice&>(file) : buffer;
    const QString source = isFile ? "the configuration file '" + file.fileName() + "'" : QString("the configuration");
    if (!device.open(QIODevice::ReadOnly)) {
        m_plugins->addProblem("cannot read " + source + ": " + device.errorString());
        return false;
    }
    const Configuration configuration = Configuration::read(device);
    if (!configuration.problem.isEmpty())
        m_plugins->addProblem("cannot use " + source + ", " + configuration.problem);
    m_plugins->load(configuration);
    return getProblems().size() == knownProblems;
}

const std::vector<SbString>& NscPluginsManager::getProblems() const
{
    return m_plugins->problems();
}
