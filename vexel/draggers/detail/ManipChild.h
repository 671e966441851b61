#pragma once

class SoChildList;
class SoDragger;
class SoNode;
class SoPath;
class SoType;

// What all manipulators do alike; they have different bases.

SoDragger* manipDragger(const SoChildList& children);
void setManipDragger(SoChildList& children, SoDragger* dragger);

/**
 * Puts a node in the place of the last one of a path, as a child of a group or as a part of a kit, with the fields that
 * both have in common: values, marks, connections. The path ends at the new node then. False, with nothing changed,
 * unless the last node is of the type that is expected, and a child or a part.
 */
bool replaceTail(SoPath* path, SoType expected, SoNode* node);
