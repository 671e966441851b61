#include "KeyMatcher.h"

#include <nodescope/tree/NodeSearch.h>
#include <nodescope/tree/NodekitPart.h>
#include <nodescope/tree/SoTreeViewItem.h>

#include <vexel/nodes/SoNode.h>

#include <QString>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>

KeyMatcher::KeyMatcher(int column, const QString& text, int flags)
    : m_column(column), m_isExact(flags & NodeSearch::ExactMatch), m_isCaseSensitive(flags & NodeSearch::CaseSensitive),
      m_pattern((m_isCaseSensitive ? text : text.toLower()).toStdString()),
      m_lastNameMatches(matchesText(m_lastName.getView()))
{
}

bool KeyMatcher::comparesNames() const
{
    return m_column == NodeSearch::ByName;
}

bool KeyMatcher::matches(const SoTreeViewItem& row) const
{
    return matches(*row.node(), row.kit());
}

bool KeyMatcher::matches(SoNode& node, SoBaseKit* kit) const
{
    if (!comparesNames())
        return matchesNode(node);
    if (kit) {
        if (const NodekitPart part(*kit, node); part.isPart())
            return matchesName(part.name());
    }
    return matchesName(node.getName());
}

bool KeyMatcher::matchesName(SbName name) const
{
    if (name != m_lastName) {
        m_lastName = name;
        m_lastNameMatches = matchesText(name.getView());
    }
    return m_lastNameMatches;
}

bool KeyMatcher::matchesNode(const SoNode& node) const
{
    switch (m_column) {
    case NodeSearch::ByType: {
        const SoType type = node.getTypeId();
        if (type.getKey() >= m_types.size())
            m_types.resize(type.getKey() + 1u, Unknown);
        Verdict& verdict = m_types[type.getKey()];
        if (verdict == Unknown)
            verdict = matchesText(type.getName().getView()) ? Yes : No;
        return verdict == Yes;
    }
    case NodeSearch::ByAddress:
        return matchesNumber("0x", reinterpret_cast<std::uintptr_t>(&node), 16);
    case NodeSearch::ById:
        return matchesNumber("", node.getNodeId(), 10);
    default:
        return matchesKey({});
    }
}

bool KeyMatcher::matchesNumber(std::string_view prefix, quint64 number, int base) const
{
    std::array<char, 24> text;
    char* const digits = std::copy(prefix.begin(), prefix.end(), text.begin());
    const char* const end = std::to_chars(digits, text.data() + text.size(), number, base).ptr;
    return matchesKey({text.data(), std::size_t(end - text.data())});
}

bool KeyMatcher::matchesText(std::string_view text) const
{
    if (m_isCaseSensitive)
        return matchesKey(text);
    std::array<char, 128> lower;
    unsigned char bits = text.size() <= lower.size() ? 0 : 0x80;
    for (std::size_t i = 0; bits < 0x80 && i < text.size(); ++i) {
        bits |= static_cast<unsigned char>(text[i]);
        lower[i] = text[i] >= 'A' && text[i] <= 'Z' ? char(text[i] - 'A' + 'a') : text[i];
    }
    if (bits >= 0x80) // long, or with letters beyond ASCII
        return matchesKey(QString::fromUtf8(text.data(), int(text.size())).toLower().toStdString());
    return matchesKey({lower.data(), text.size()});
}

bool KeyMatcher::matchesKey(std::string_view key) const
{
    return m_isExact ? key == m_pattern : key.find(m_pattern) != std::string_view::npos;
}
