#pragma once

#include <vexel/base/SbName.h>

#include <QtGlobal>

#include <string>
#include <string_view>
#include <vector>

class QString;
class SoBaseKit;
class SoNode;
class SoTreeViewItem;

/**
 * Compares the key of a node with what is looked for.
 *
 * A million rows have a few hundred types and names that are kept once: each type is compared once, and a name only
 * when it differs from the one before it.
 */
class KeyMatcher {
public:
    /** Columns and flags are those of NodeSearch. */
    KeyMatcher(int column, const QString& text, int flags);

    /** False for an empty text that need not be the whole key: it would stand in every key. */
    bool canMatch() const { return m_isExact || !m_pattern.empty(); }
    /** Whether keys depend on the nodekit below which a node stands. */
    bool comparesNames() const;

    bool matches(const SoTreeViewItem& row) const;
    /** As for a row of the node; @p kit is the nodekit that describes it, null for none. */
    bool matches(SoNode& node, SoBaseKit* kit) const;

private:
    bool matchesName(SbName name) const;
    bool matchesNode(const SoNode& node) const;
    bool matchesNumber(std::string_view prefix, quint64 number, int base) const;
    bool matchesText(std::string_view text) const;
    bool matchesKey(std::string_view key) const;

    int m_column;
    bool m_isExact;
    bool m_isCaseSensitive;
    std::string m_pattern;
    enum Verdict : char { Unknown, No, Yes };
    mutable std::vector<Verdict> m_types;
    mutable SbName m_lastName;
    mutable bool m_lastNameMatches;
};
