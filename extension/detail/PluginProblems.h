#pragma once

#include <vexel/base/SbString.h>

#include <vector>

/** What was missing or wrong with plug-ins: gathered, and posted together. */
class PluginProblems {
public:
    void add(const QString& text);
    /** All that was ever added. */
    const std::vector<SbString>& all() const { return m_all; }
    /** Posts what was added since the last call as one SoDebugError, a line each; false when there was something. */
    bool post();

private:
    std::vector<SbString> m_all;
    std::size_t m_posted = 0;
};
