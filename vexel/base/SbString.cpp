#include <vexel/base/SbString.h>

#include <vexel/base/SbName.h>

#include <algorithm>

SbString::SbString(const SbName& name) : m_text(name.toQString()) {}

SbString SbString::getSubString(int first, int last) const
{
    const int from = std::max(first, 0);
    const int to = last < 0 ? getLength() - 1 : std::min(last, getLength() - 1);
    return from > to ? SbString() : SbString(m_text.mid(from, to - from + 1));
}
