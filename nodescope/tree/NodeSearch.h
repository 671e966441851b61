#pragma once

/** What a search in the tree compares, and how. Numbers, so that they can be sent through signals. */
namespace NodeSearch {

/** The text of a row that is compared. */
enum Column {
    ByType = 0,
    ByName = 1,    ///< the name of the node or of the nodekit part
    ByAddress = 2, ///< 0x and lower-case hexadecimal digits
    ById = 3       ///< the node's unique number in decimal
};

enum Flag {
    Backward = 1,
    CaseSensitive = 2,
    ExactMatch = 4 ///< the whole text is equal, instead of containing what is looked for
};

} // namespace NodeSearch
