#pragma once

#include <QColor>
#include <QString>
#include <array>
#include <vector>

/** One element of a preferences page with its default look. */
struct PreferenceElement {
    const char* name;
    const char* family; ///< null: that of the application's font
    bool isItalic;
    QRgb color;
};

/** What the store keeps for one panel: the table from which defaults, loading and saving follow. */
struct PreferencePage {
    const char* group;
    bool storesShown;
    std::vector<PreferenceElement> elements;
    std::array<int, 5> columnWidths; ///< further columns have none

    /** The page of a group string; null when there is none. */
    static const PreferencePage* find(const QString& group);
};
