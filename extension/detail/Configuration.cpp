#include "Configuration.h"

#include <QMap>
#include <QXmlStreamReader>

namespace {

/** Reads one element after the other; the first mistake ends it. */
class ConfigurationReader {
public:
    explicit ConfigurationReader(QIODevice& device) : m_xml(&device) {}

    Configuration read()
    {
        if (m_xml.readNextStartElement()) {
            if (m_xml.name() == QLatin1String("configuration"))
                readConfiguration();
            else
                m_xml.raiseError("the root element is '" + m_xml.name().toString() + "', not 'configuration'");
        }
        if (!m_xml.hasError() && !m_profiles.contains(m_profileInForce) && !m_profiles.isEmpty())
            m_xml.raiseError("the default profile '" + m_profileInForce + "' is not among the profiles");
        Configuration result;
        if (m_xml.hasError()) {
            result.problem = QStringLiteral("line %1: %2").arg(m_xml.lineNumber()).arg(m_xml.errorString());
            return result;
        }
        result.libraries = std::move(m_libraries);
        result.active = m_profiles.value(m_profileInForce);
        return result;
    }

private:
    QString attribute(const char* name)
    {
        const QXmlStreamAttributes attributes = m_xml.attributes();
        if (!attributes.hasAttribute(QLatin1String(name)))
            m_xml.raiseError("element '" + m_xml.name().toString() + "' has no attribute '" + name + "'");
        return attributes.value(QLatin1String(name)).toString();
    }

    Configuration::Name extensionName()
    {
        const QString plugin = attribute("plugin");
        return {plugin, attribute("extension")};
    }

    /** Calls `read` for each child element of that name and passes over others, so that later versions may add some. */
    template <class Read>
    void forEachChild(const char* name, Read&& read)
    {
        while (m_xml.readNextStartElement()) {
            if (m_xml.name() == QLatin1String(name))
                read();
            else
                m_xml.skipCurrentElement();
        }
    }

    void readConfiguration()
    {
        while (m_xml.readNextStartElement()) {
            if (m_xml.name() == QLatin1String("plugins"))
                readPlugins();
            else if (m_xml.name() == QLatin1String("profiles"))
                readProfiles();
            else
                m_xml.skipCurrentElement();
        }
    }

    void readPlugins()
    {
        forEachChild("loadPlugin", [this] {
            m_libraries.push_back(attribute("file"));
            m_xml.skipCurrentElement();
        });
    }

    void readProfiles()
    {
        m_profileInForce = attribute("default");
        forEachChild("profile", [this] {
            const QString name = attribute("name");
            std::vector<Configuration::Active> active;
            forEachChild("activeExtension", [&] { active.push_back(readActive()); });
            m_profiles.insert(name, active);
        });
    }

    Configuration::Active readActive()
    {
        Configuration::Active active{extensionName(), {}};
        forEachChild("controlledExtension", [&] {
            active.controlled.push_back(extensionName());
            m_xml.skipCurrentElement();
        });
        return active;
    }

    QXmlStreamReader m_xml;
    std::vector<QString> m_libraries;
    QMap<QString, std::vector<Configuration::Active>> m_profiles;
    QString m_profileInForce;
};

} // namespace

Configuration Configuration::read(QIODevice& device)
{
    return ConfigurationReader(device).read();
}
