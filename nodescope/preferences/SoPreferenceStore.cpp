#include "SoPreferenceStore.h"
#include "detail/PreferencePage.h"

#include <QApplication>
#include <QSettings>
#include <algorithm>
#include <optional>

namespace {

constexpr int Fallback_point_size = 10;
constexpr int Heaviest_normal_weight = 57;

const QString Transparency_key = QStringLiteral("/ViewerPreferences/TransparencyType");
const QString Background_key = QStringLiteral("/ViewerPreferences/BackgroundColor");
constexpr int Transparency_types = 4;
constexpr int Default_transparency = 2;

SoPreferenceStore* Instance = nullptr;

// Lives as long as the process: its values must outlast the store, which goes with each stop of the inspector.
QSettings& settings()
{
    static auto* const theSettings = new QSettings(QStringLiteral("Nodescope"), QStringLiteral("Nodescope"));
    return *theSettings;
}

QVariant readValue(const QString& key, const QVariant& defaultValue, bool* exists)
{
    if (exists)
        *exists = settings().contains(key);
    return settings().value(key, defaultValue);
}

void writeValue(const QString& key, const QVariant& value)
{
    settings().setValue(key, value);
    settings().isWritable();
}

DisplayElement defaultElement(const PreferenceElement& element)
{
    const QFont application = QApplication::font();
    const QString family = element.family ? QString::fromLatin1(element.family) : application.family();
    return {QFont(family, application.pointSize(), application.weight(), element.isItalic), QColor(element.color),
            true};
}

QString columnWidthKey(const QString& group, int column)
{
    return group + "/ListColumnWidth/" + QString::number(column);
}

/** Reads the keys of one element; remembers whether any of them is missing. */
class ElementReader {
public:
    ElementReader(const SoPreferenceStore& store, const QString& prefix) : m_store(store), m_prefix(prefix) {}

    bool isComplete() const { return m_isComplete; }
    QString string(const char* suffix) { return read(suffix, QString(), &SoPreferenceStore::readString); }
    bool boolean(const char* suffix) { return read(suffix, false, &SoPreferenceStore::readBool); }
    int integer(const char* suffix) { return read(suffix, 0, &SoPreferenceStore::readInt); }

private:
    template <class T, class Read>
    T read(const char* suffix, const T& defaultValue, Read readTyped)
    {
        bool exists = false;
        T value = (m_store.*readTyped)(m_prefix + suffix, defaultValue, &exists);
        m_isComplete = m_isComplete && exists;
        return value;
    }

    const SoPreferenceStore& m_store;
    QString m_prefix;
    bool m_isComplete = true;
};

std::optional<DisplayElement> loadElement(const SoPreferenceStore& store, const QString& prefix, bool storesShown)
{
    ElementReader reader(store, prefix);
    DisplayElement element;
    element.font = QFont(reader.string("/family"));
    const int size = reader.integer("/size");
    const bool isSize = size >= SoPreferenceStore::SmallestFont && size <= SoPreferenceStore::LargestFont;
    element.font.setPointSize(isSize ? size : Fallback_point_size);
    element.font.setWeight(reader.boolean("/bold") ? QFont::Bold : QFont::Normal);
    element.font.setItalic(reader.boolean("/italic"));
    element.font.setUnderline(reader.boolean("/underline"));
    const auto component = [&](const char* suffix) { return std::clamp(reader.integer(suffix), 0, 255); };
    const int red = component("/red");
    const int green = component("/green");
    const int blue = component("/blue");
    element.color = QColor(red, green, blue);
    if (storesShown)
        element.isShown = reader.boolean("/show");
    return reader.isComplete() ? std::optional(element) : std::nullopt;
}

} // namespace

SoPreferenceStore* SoPreferenceStore::getInstance()
{
    if (!Instance)
        Instance = new SoPreferenceStore;
    return Instance;
}

void SoPreferenceStore::deleteInstance()
{
    if (Instance)
        settings().sync();
    delete Instance;
    Instance = nullptr;
}

bool SoPreferenceStore::readBool(const QString& key, bool defaultValue, bool* exists) const
{
    return readValue(key, defaultValue, exists).toBool();
}

int SoPreferenceStore::readInt(const QString& key, int defaultValue, bool* exists) const
{
    bool isNumber = false;
    const int value = readValue(key, defaultValue, exists).toInt(&isNumber);
    return isNumber ? value : defaultValue;
}

QString SoPreferenceStore::readString(const QString& key, const QString& defaultValue, bool* exists) const
{
    return readValue(key, defaultValue, exists).toString();
}

QStringList SoPreferenceStore::readStringList(const QString& key, bool* exists) const
{
    return readValue(key, QStringList(), exists).toStringList();
}

void SoPreferenceStore::writeBool(const QString& key, bool value)
{
    writeValue(key, value);
}

void SoPreferenceStore::writeInt(const QString& key, int value)
{
    writeValue(key, value);
}

void SoPreferenceStore::writeString(const QString& key, const QString& value)
{
    writeValue(key, value);
}

DisplayElementMap SoPreferenceStore::defaultElements(const QString& group) const
{
    DisplayElementMap elements;
    if (const PreferencePage* page = PreferencePage::find(group)) {
        for (const PreferenceElement& element : page->elements)
            elements.insert(element.name, defaultElement(element));
    }
    return elements;
}

DisplayElementMap SoPreferenceStore::loadElements(const QString& group) const
{
    DisplayElementMap elements = defaultElements(group);
    if (const PreferencePage* page = PreferencePage::find(group)) {
        for (const PreferenceElement& element : page->elements) {
            if (const auto stored = loadElement(*this, group + element.name, page->storesShown))
                elements.insert(element.name, *stored);
        }
    }
    return elements;
}

void SoPreferenceStore::saveElements(const QString& group, const DisplayElementMap& elements)
{
    const PreferencePage* page = PreferencePage::find(group);
    for (auto element = elements.begin(); element != elements.end(); ++element) {
        const QString prefix = group + element.key();
        const QFont& font = element->font;
        writeString(prefix + "/family", font.family());
        writeInt(prefix + "/size", font.pointSize());
        writeBool(prefix + "/bold", font.weight() > Heaviest_normal_weight);
        writeBool(prefix + "/italic", font.style() != QFont::StyleNormal);
        writeBool(prefix + "/underline", font.underline());
        writeInt(prefix + "/red", element->color.red());
        writeInt(prefix + "/green", element->color.green());
        writeInt(prefix + "/blue", element->color.blue());
        if (page && page->storesShown)
            writeBool(prefix + "/show", element->isShown);
    }
}

int SoPreferenceStore::readColumnWidth(const QString& group, int column) const
{
    const PreferencePage* page = PreferencePage::find(group);
    const bool hasDefault = page && column >= 0 && std::size_t(column) < page->columnWidths.size();
    return readInt(columnWidthKey(group, column), hasDefault ? page->columnWidths[std::size_t(column)] : -1);
}

void SoPreferenceStore::writeColumnWidth(const QString& group, int column, int width)
{
    writeInt(columnWidthKey(group, column), width);
}

bool SoPreferenceStore::readShowCatalogPart(const QString& group) const
{
    return readBool(group + "/ShowCatalogPart", false);
}

void SoPreferenceStore::writeShowCatalogPart(const QString& group, bool isOn)
{
    writeBool(group + "/ShowCatalogPart", isOn);
}

bool SoPreferenceStore::readHighlightSelectedNode(const QString& group) const
{
    return readBool(group + "/HighlightSelectedNode", true);
}

void SoPreferenceStore::writeHighlightSelectedNode(const QString& group, bool isOn)
{
    writeBool(group + "/HighlightSelectedNode", isOn);
}

bool SoPreferenceStore::readRealNodekitsCounter(const QString& group) const
{
    return readBool(group + "/RealNodekitsCounter", false);
}

void SoPreferenceStore::writeRealNodekitsCounter(const QString& group, bool isOn)
{
    writeBool(group + "/RealNodekitsCounter", isOn);
}

int SoPreferenceStore::readTransparencyType() const
{
    const int type = readInt(Transparency_key, Default_transparency);
    return type >= 0 && type < Transparency_types ? type : Default_transparency;
}

void SoPreferenceStore::writeTransparencyType(int type)
{
    writeInt(Transparency_key, type);
}

QColor SoPreferenceStore::readBackground() const
{
    const QColor color(readString(Background_key, QString()));
    return color.isValid() ? color : defaultBackground();
}

void SoPreferenceStore::writeBackground(const QColor& color)
{
    writeString(Background_key, color.name());
}
