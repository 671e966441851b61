#pragma once

#include <cstddef>
#include <unordered_map>
#include <utility>

class KeyMatcher;
class SoBaseKit;
class SoNode;

/**
 * Tells whether rows that were not made yet would match, from the graph itself. Each shared node is looked at once,
 * in however many places its rows would stand.
 *
 * Only where a graph contains itself, rows below a node that stands above itself may be passed over.
 */
class GraphSearch {
public:
    explicit GraphSearch(const KeyMatcher& matcher) : m_matcher(matcher) {}

    /** Whether any row below one of @p node would match; @p kit describes the node, null for none. */
    bool findsBelow(SoNode& node, SoBaseKit* kit) { return searchBelow(node, kit, true); }

private:
    using Place = std::pair<const SoNode*, const SoBaseKit*>;
    struct PlaceHash {
        std::size_t operator()(const Place& place) const;
    };

    bool searchBelow(SoNode& node, SoBaseKit* kit, bool mayContainItself);

    const KeyMatcher& m_matcher;
    std::unordered_map<Place, bool, PlaceHash> m_known;
};
