#include <vexel/base/SoPreferences.h>

#include <charconv>
#include <cstdlib>
#include <mutex>
#include <optional>
#include <shared_mutex>
#include <unordered_map>

namespace {

class Values {
public:
    static Values& instance()
    {
        static Values values;
        return values;
    }

    std::optional<SbString> find(const SbString& name) const
    {
        {
            const std::shared_lock lock(m_mutex);
            const auto found = m_values.find(name);
            if (found != m_values.end())
                return found->second;
        }
        const char* text = std::getenv(name.toUtf8().constData());
        return text ? std::optional<SbString>(text) : std::nullopt;
    }

    void set(const SbString& name, const SbString& value)
    {
        const std::unique_lock lock(m_mutex);
        m_values[name] = value;
    }

    void remove(const SbString& name)
    {
        const std::unique_lock lock(m_mutex);
        m_values.erase(name);
    }

private:
    mutable std::shared_mutex m_mutex;
    std::unordered_map<SbString, SbString> m_values;
};

/** The number that the value of a preference is, blanks around it apart; nothing when it is none. */
template <class Number>
std::optional<Number> findNumber(const SbString& name)
{
    const std::optional<SbString> value = Values::instance().find(name);
    if (!value)
        return std::nullopt;
    const QByteArray text = value->toUtf8().trimmed();
    Number number;
    const auto [end, error] = std::from_chars(text.begin(), text.end(), number);
    return error == std::errc() && end == text.end() ? std::optional(number) : std::nullopt;
}

} // namespace

SbString SoPreferences::getString(const SbString& name, const SbString& defaultValue)
{
    return Values::instance().find(name).value_or(defaultValue);
}

bool SoPreferences::getBool(const SbString& name, bool defaultValue)
{
    struct Word {
        const char* text;
        bool value;
    };
    static constexpr Word Words[] = {{"true", true},   {"yes", true}, {"on", true},
                                     {"false", false}, {"no", false}, {"off", false}};
    const QString text = getString(name, SbString()).toQString().trimmed();
    for (const Word& word : Words)
        if (text.compare(QLatin1String(word.text), Qt::CaseInsensitive) == 0)
            return word.value;
    const std::optional<int> number = findNumber<int>(name);
    return number ? *number != 0 : defaultValue;
}

int SoPreferences::getInt(const SbString& name, int defaultValue)
{
    return findNumber<int>(name).value_or(defaultValue);
}

float SoPreferences::getFloat(const SbString& name, float defaultValue)
{
    return findNumber<float>(name).value_or(defaultValue);
}

bool SoPreferences::hasValue(const SbString& name)
{
    return Values::instance().find(name).has_value();
}

void SoPreferences::setValue(const SbString& name, const SbString& value)
{
    Values::instance().set(name, value);
}

void SoPreferences::removeValue(const SbString& name)
{
    Values::instance().remove(name);
}
