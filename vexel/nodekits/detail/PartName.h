#pragma once

#include <string_view>

#include <vexel/base/SbName.h>

/** The name of a part taken apart: "childList[2].appearance.material" begins with item 2 of "childList". */
class PartName {
public:
    explicit PartName(std::string_view text);

    const SbName& first() const { return m_first; }
    bool hasIndex() const { return m_index >= 0; }
    int index() const { return m_index; }
    /** All before the first point, with the index. */
    SbName head() const { return m_head; }
    /** What follows the first point; empty when there is none. */
    SbName rest() const { return m_rest; }

private:
    SbName m_first;
    SbName m_head;
    SbName m_rest;
    int m_index = -1;
};
