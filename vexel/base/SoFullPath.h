#pragma once

#include <vexel/base/SoPath.h>

/** A path seen with all its nodes, those inside nodekits included: static_cast a path to it. */
class VEXEL_API SoFullPath : public SoPath {
public:
    int getLength() const { return getFullLength(); }
    SoNode* getTail() const { return getNodeFromTail(0); }
    SoNode* getNodeFromTail(int i) const { return getNode(getFullLength() - 1 - i); }
    int getIndexFromTail(int i) const { return getIndex(getFullLength() - 1 - i); }

private:
    SoFullPath() = delete;
};
