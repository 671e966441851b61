#include "Configuration.h"

#include <QMap>
#include <QXmlStreamReader>

namespace {

/** Reads one element after the other. What XML does not allow ends it; what lacks in an element leaves only that out.
 */
class ConfigurationReader {
public:
    explicit ConfigurationReader(QIODevice& device) : m_xml(&device) {}

    Configuration read()
    {
        if (m_xml.readNextStartElement()) {
            if (m_xml.name() == QLatin1String("configuration"))
                readConfiguration();
            else
                m_xml.raiseError("the root element is '" + m_xml.name().toString() + "', expected is 'configuration'");
        }
        while (!m_xml.atEnd()) // what follows the root may be wrong too
            m_xml.readNext();
        if (m_xml.hasError())
            return {{}, {}, {placed(errorText())}};
        if (m_hasProfiles && !m_hasDefault)
            addUnknownDefault();
        return std::move(m_result);
    }

private:
    QString placed(const QString& text) const
    {
        return QStringLiteral("line %1, column %2: %3").arg(m_xml.lineNumber()).arg(m_xml.columnNumber()).arg(text);
    }

    QString errorText() const
    {
        if (m_xml.error() != QXmlStreamReader::PrematureEndOfDocumentError)
            return m_xml.errorString();
        return m_open.isEmpty() ? QStringLiteral("the text ends, expected is the element 'configuration'")
                                : "the text ends, expected is </" + m_open.last() + '>';
    }

    void addProblem(const QString& text) { m_result.problems << placed(text); }

    void addUnknownDefault()
    {
        const QString known = m_profileLines.isEmpty() ? QStringLiteral("there is none")
                                                       : "there are '" + m_profileLines.keys().join("', '") + '\'';
        m_result.problems << "the default profile '" + m_default + "' is not among the profiles: " + known;
    }

    /** Empty, with a problem, when there is no such attribute. */
    QString attribute(const char* name)
    {
        QString value = m_xml.attributes().value(QLatin1String(name)).toString();
        if (value.isEmpty())
            addProblem("element '" + m_xml.name().toString() + "' has no attribute '" + name + '\'');
        return value;
    }

    Configuration::Name extensionName()
    {
        const QString plugin = attribute("plugin");
        return {plugin, attribute("extension")};
    }

    static bool isComplete(const Configuration::Name& name)
    {
        return !name.plugin.isEmpty() && !name.extension.isEmpty();
    }

    /** Calls `read` for each child element and passes over those that it does not know, so that later versions may
     * add some. */
    template <class Read>
    void forEachChild(Read&& read)
    {
        m_open << m_xml.name().toString();
        while (m_xml.readNextStartElement()) {
            if (!read(m_xml.name()))
                m_xml.skipCurrentElement();
        }
        if (!m_xml.hasError())
            m_open.removeLast();
    }

    void readConfiguration()
    {
        forEachChild([this](const QStringRef& name) {
            if (name == QLatin1String("plugins"))
                readPlugins();
            else if (name != QLatin1String("profiles"))
                return false;
            else if (m_hasProfiles)
                return addProblem("there is a second element 'profiles', which does not count"), false;
            else
                readProfiles();
            return true;
        });
    }

    void readPlugins()
    {
        forEachChild([this](const QStringRef& name) {
            const QString file = name == QLatin1String("loadPlugin") ? attribute("file") : QString();
            if (file.contains('/'))
                addProblem("'" + file + "' has a folder, expected is the name of a library");
            else if (!file.isEmpty())
                m_result.libraries << file;
            return false;
        });
    }

    void readProfiles()
    {
        m_hasProfiles = true;
        m_default = attribute("default");
        m_hasDefault = m_default.isEmpty(); // that was told
        forEachChild([this](const QStringRef& name) { return name == QLatin1String("profile") && readProfile(); });
    }

    bool readProfile()
    {
        const QString name = attribute("name");
        if (name.isEmpty())
            return false;
        if (m_profileLines.contains(name)) {
            addProblem(QStringLiteral("there is a profile '%1' in line %2 already, this one does not count")
                           .arg(name)
                           .arg(m_profileLines.value(name)));
            return false;
        }
        m_profileLines.insert(name, m_xml.lineNumber());
        if (name != m_default)
            return false;
        m_hasDefault = true;
        forEachChild(
            [this](const QStringRef& child) { return child == QLatin1String("activeExtension") && readActive(); });
        return true;
    }

    bool readActive()
    {
        Configuration::Active active{extensionName(), {}};
        if (!isComplete(active.name))
            return false;
        forEachChild([&](const QStringRef& child) {
            if (child != QLatin1String("controlledExtension"))
                return false;
            const Configuration::Name controlled = extensionName();
            if (isComplete(controlled))
                active.controlled.push_back(controlled);
            return false;
        });
        m_result.active.push_back(std::move(active));
        return true;
    }

    QXmlStreamReader m_xml;
    Configuration m_result;
    QStringList m_open; ///< elements that are being read
    bool m_hasProfiles = false;
    QString m_default;
    bool m_hasDefault = false;
    QMap<QString, qint64> m_profileLines;
};

} // namespace

Configuration Configuration::read(QIODevice& device)
{
    return ConfigurationReader(device).read();
}
