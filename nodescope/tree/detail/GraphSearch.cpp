#include "GraphSearch.h"
#include "KeyMatcher.h"
#include "RowSources.h"

#include <vexel/nodekits/SoBaseKit.h>

#include <functional>

std::size_t GraphSearch::PlaceHash::operator()(const Place& place) const
{
    return std::hash<const void*>()(place.first) * 31 + std::hash<const void*>()(place.second);
}

bool GraphSearch::searchBelow(SoNode& node, SoBaseKit* kit, bool mayContainItself)
{
    const Place place(&node, m_matcher.comparesNames() ? kit : nullptr);
    if (const auto known = m_known.find(place); known != m_known.end())
        return known->second;
    // A node that only one holds is come to once. Noting the others before what is below them is looked at ends the
    // search in a graph that contains itself.
    if (mayContainItself || node.getRefCount() > 1)
        m_known.emplace(place, false);

    SoBaseKit* const kitBelow = node.isOfType(SoBaseKit::getClassTypeId()) ? static_cast<SoBaseKit*>(&node) : kit;
    bool isFound = false;
    forEachRowSource(node, [&](SoNode& below, SoField*) {
        isFound = isFound || m_matcher.matches(below, kitBelow) || searchBelow(below, kitBelow, false);
    });
    // The way to what was found is gone again, step by step.
    if (isFound)
        m_known[place] = true;
    return isFound;
}
