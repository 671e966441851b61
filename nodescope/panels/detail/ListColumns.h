#pragma once

/** A column of a field list. */
struct ListColumn {
    const char* headerText; ///< empty for columns whose header is an icon
    const char* menuText;   ///< null: cannot be hidden or shown by the user
    const char* icon;       ///< file name in the icon folder; null: none
    const char* toolTip;    ///< null: none
    int characters;         ///< width before the user changes it, in characters of the header's font; 0: see width
    int width;              ///< in pixels
};

/** The columns in their order, in the numbers of SoFieldItem; the last is that of network names. */
constexpr int List_column_count = 9;
extern const ListColumn List_columns[List_column_count];
