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
