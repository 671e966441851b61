#include "U3DNames.h"

#include <QString>

namespace {

/** In characters; well below the 65535 bytes that a file can hold. */
constexpr int Longest_name = 16000;

} // namespace

std::string U3DNames::add(std::string_view wanted)
{
    QString text = QString::fromUtf8(wanted.data(), int(wanted.size()));
    if (text.size() > Longest_name)
        text.truncate(text.at(Longest_name - 1).isHighSurrogate() ? Longest_name - 1 : Longest_name);
    const std::string base = text.toStdString();
    // The empty name is that of the world and of the default objects.
    if (!base.empty() && m_numbers.emplace(base, 1).second)
        return base;
    for (;;) {
        std::string numbered = base + ' ' + std::to_string(++m_numbers[base]);
        if (m_numbers.emplace(numbered, 1).second)
            return numbered;
    }
}
