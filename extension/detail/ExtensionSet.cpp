#include "ExtensionSet.h"
#include "PluginCall.h"
#include "PluginProblems.h"

#include <extension/NscExtension.h>
#include <extension/NscPlugin.h>

#include <algorithm>
#include <set>

namespace {

std::pair<QString, QString> keyOf(const Configuration::Name& name)
{
    return {name.plugin, name.extension};
}

QString textOf(const Configuration::Name& name)
{
    return "the extension '" + name.extension + "' of the plug-in '" + name.plugin + '\'';
}

template <class Element>
void clearFromTheEnd(std::vector<Element>& elements)
{
    while (!elements.empty())
        elements.pop_back();
}

} // namespace

ExtensionSet::~ExtensionSet()
{
    clearFromTheEnd(m_extensions);
    clearFromTheEnd(m_libraries);
}

void ExtensionSet::loadLibrary(const QString& name)
{
    PluginLibrary library = PluginLibrary::load(name);
    const auto isSame = [&](const PluginLibrary& other) { return library.handle && other.handle == library.handle; };
    if (std::any_of(m_libraries.begin(), m_libraries.end(), isSame))
        return;
    if (library.handle)
        library.makePlugin();
    if (!library.problem.isEmpty()) {
        m_lacksLibrary = true;
        m_problems.add(library.problem);
        return;
    }
    const auto isNamesake = [&](const PluginLibrary& other) { return other.name == library.name; };
    const auto first = std::find_if(m_libraries.begin(), m_libraries.end(), isNamesake);
    if (first == m_libraries.end())
        m_plugins[library.name] = library.plugin.get();
    else
        m_problems.add("the plug-in '" + library.name + "' of '" + library.file +
                       "' is not used: one of this name is in '" + first->file + '\'');
    m_libraries.push_back(std::move(library));
}

void ExtensionSet::create(const std::vector<Configuration::Active>& active)
{
    std::map<Key, Wanted> all;
    std::vector<Wanted*> inOrder;
    const auto want = [&](const Configuration::Name& name) -> Wanted& {
        Wanted& wanted = all[keyOf(name)];
        wanted.name = name;
        return wanted;
    };
    for (const Configuration::Active& each : active) {
        Wanted& controlling = want(each.name);
        inOrder.push_back(&controlling);
        for (const Configuration::Name& name : each.controlled)
            controlling.controlled.push_back(&want(name));
    }
    for (Wanted* wanted : inOrder) {
        if (wanted->state == Wanted::New)
            createAfterControlled(*wanted);
    }
}

void ExtensionSet::createAfterControlled(Wanted& wanted)
{
    std::vector<Wanted*> path{&wanted}; // each controls the one behind it
    while (!path.empty()) {
        Wanted& last = *path.back();
        last.state = Wanted::Begun;
        if (last.next == last.controlled.size()) {
            createOne(last);
            last.state = Wanted::Done;
            path.pop_back();
            continue;
        }
        Wanted& controlled = *last.controlled[last.next++];
        if (controlled.state == Wanted::New)
            path.push_back(&controlled);
        else if (controlled.state == Wanted::Begun)
            m_problems.add(textOf(controlled.name) + " is controlled by one that it controls itself");
    }
}

void ExtensionSet::createOne(const Wanted& wanted)
{
    const auto [place, isNew] = m_byName.try_emplace(keyOf(wanted.name), nullptr);
    NscPlugin* const plugin = isNew ? findPlugin(wanted.name.plugin) : nullptr;
    if (!plugin)
        return;
    std::unique_ptr<NscExtension> extension;
    QString thrown = exceptionOf([&] { extension.reset(plugin->createExtension(wanted.name.extension)); });
    if (!extension) {
        m_problems.add(thrown.isNull() ? "the plug-in '" + wanted.name.plugin + "' has no extension '" +
                                             wanted.name.extension + '\''
                                       : textOf(wanted.name) + " cannot be created: " + thrown);
        return;
    }
    thrown = exceptionOf([&] {
        std::set<const Wanted*> connected;
        for (const Wanted* each : wanted.controlled) {
            const auto controlled = m_byName.find(keyOf(each->name));
            if (controlled != m_byName.end() && controlled->second && connected.insert(each).second)
                extension->addControlledExtension(controlled->second);
        }
        extension->activate();
    });
    if (!thrown.isNull()) {
        m_problems.add(textOf(wanted.name) + " cannot be activated: " + thrown);
        return;
    }
    place->second = extension.get();
    m_extensions.push_back(std::move(extension));
}

NscPlugin* ExtensionSet::findPlugin(const QString& name)
{
    const auto [place, isUnknown] = m_plugins.try_emplace(name, nullptr);
    // A library that could not be loaded was told already and is the likely reason.
    if (isUnknown && !m_lacksLibrary)
        m_problems.add("none of the loaded plug-ins is named '" + name + '\'');
    return place->second;
}
