#pragma once

class SoNode;
class SoTreeViewItem;

/**
 * The children that the user may change: those of groups, whose list a file holds, and the items of a nodekit's list.
 * The children that a node makes itself, be it from a file or as a kit's parts, are not among them.
 */
namespace ChildAccess {

/** True when the node of a row may get a child; null stands for no row. A kit decides which items its lists hold. */
bool accepts(const SoTreeViewItem* row, const SoNode& child);
/** True when the row stands for a child that may be taken out of its parent. */
bool isRemovable(const SoTreeViewItem& row);

int count(const SoNode& parent);
/** Place of a child, first looked for at @p guess; -1 for none. */
int find(const SoNode& parent, const SoNode& child, int guess);
/** Inserts in front of the child at a place; behind the last when there are fewer. */
void insert(SoNode& parent, SoNode& child, int place);
void remove(SoNode& parent, int place);
/** True when @p ancestor is the node, or leads to it on any way. */
bool leadsTo(const SoNode& ancestor, SoNode& node);

} // namespace ChildAccess
