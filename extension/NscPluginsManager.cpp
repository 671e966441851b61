#include "NscPluginsManager.h"
#include "NscExtension.h"
#include "NscPlugin.h"
#include "detail/Configuration.h"
#include "detail/ExtensionSet.h"
#include "detail/PluginProblems.h"

#include <QBuffer>
#include <QFile>

namespace {

NscPluginsManager* instance = nullptr;

} // namespace

struct NscPluginsManager::Plugins {
    PluginProblems problems;
    ExtensionSet extensions{problems};
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
    QFile file(isFile ? pathOrText.toQString() : QString());
    QByteArray text = pathOrText.toUtf8();
    QBuffer buffer(&text);
    QIODevice& device = isFile ? static_cast<QIODevice&>(file) : buffer;
    const QString source = isFile ? "the configuration file '" + file.fileName() + '\'' : QString("the configuration");
    PluginProblems& problems = m_plugins->problems;
    const Configuration configuration =
        device.open(QIODevice::ReadOnly) ? Configuration::read(device) : Configuration();
    if (file.error() != QFileDevice::NoError) {
        problems.add("cannot read " + source + ": " + file.errorString());
        return problems.post();
    }
    for (const QString& problem : configuration.problems)
        problems.add(source + ", " + problem);
    for (const QString& library : configuration.libraries)
        m_plugins->extensions.loadLibrary(library);
    m_plugins->extensions.create(configuration.active);
    return problems.post();
}

const std::vector<SbString>& NscPluginsManager::getProblems() const
{
    return m_plugins->problems.all();
}
