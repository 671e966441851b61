#pragma once

#include <QColor>
#include <QFont>
#include <QMap>
#include <QString>

/** How one kind of text of a panel is shown; the user chooses it on the panel's preferences page. */
struct DisplayElement {
    QFont font;
    QColor color;
    bool isShown = true; ///< only the tree view's elements can be hidden
};

/** Display elements by their name. */
using DisplayElementMap = QMap<QString, DisplayElement>;
