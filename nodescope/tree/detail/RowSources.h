#pragma once

#include <functional>

class SoField;
class SoNode;

/**
 * Calls @p visit for each node that stands below @p node in the tree, in the order of the rows: children, then the
 * nodes held in fields, with the field.
 */
void forEachRowSource(SoNode& node, const std::function<void(SoNode&, SoField*)>& visit);

/** The part of this that the node's child list gives. */
void forEachChildRowSource(SoNode& node, const std::function<void(SoNode&)>& visit);

/** Number of the children that make rows. */
int childRowSourceCount(const SoNode& node);
/** Index of the first child that makes a row, if any does; those behind it all do. */
int firstChildRowSource(const SoNode& node);
bool hasRowSources(SoNode& node);

/** True for a field whose nodes make rows. */
bool makesRows(const SoField& field);
