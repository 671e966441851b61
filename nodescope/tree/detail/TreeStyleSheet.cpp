#include "TreeStyleSheet.h"

#include <QString>

QString treeStyleSheet()
{
    return QStringLiteral(R"(
QTreeView { show-decoration-selected: 0; }
QTreeView::item { height: 27px; }
QTreeView::item:hover { background: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, stop: 0 #e7effd, stop: 1 #cbdaf1); }
QTreeView::item:selected:active {
    background: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, stop: 0 #6ea1f1, stop: 1 #567dbc);
}
QTreeView::item:selected:!active {
    background: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, stop: 0 #6b9be8, stop: 1 #577fbf);
}
QTreeView::branch:has-siblings:!adjoins-item { border-image: url(:/Nodescope_icons/Icons/vline.png) 0; }
QTreeView::branch:has-siblings:adjoins-item { border-image: url(:/Nodescope_icons/Icons/branch-more.png) 0; }
QTreeView::branch:!has-children:!has-siblings:adjoins-item {
    border-image: url(:/Nodescope_icons/Icons/branch-end.png) 0;
}
QTreeView::branch:has-children:!has-siblings:closed, QTreeView::branch:closed:has-children:has-siblings {
    border-image: none;
    image: url(:/Nodescope_icons/Icons/branch-closed.png);
}
QTreeView::branch:open:has-children:!has-siblings, QTreeView::branch:open:has-children:has-siblings {
    border-image: none;
    image: url(:/Nodescope_icons/Icons/branch-open.png);
}
)");
}
