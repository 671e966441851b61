#pragma once

class QString;

/** The look of the tree: row height, colours of hovered and selected rows, branch lines. */
QString treeStyleSheet();
