#pragma once

#include <vexel/nodes/SoChildList.h>
#include <vexel/nodes/SoNode.h>

/** A node with an ordered list of children, which actions traverse one after the other. */
class VEXEL_API SoGroup : public SoNode {
    SO_NODE(SoGroup, SoNode)
public:
    SoGroup() = default;

    int getNumChildren() const { return m_children.getLength(); }
    SoNode* getChild(int index) const { return m_children[index]; }
    /** Index of the first place of @p child, or -1. */
    int findChild(const SoNode* child) const { return m_children.find(child); }

    void addChild(SoNode* child);
    /** Inserts in front of the child at @p index; an index beyond the end appends. */
    void insertChild(SoNode* child, int index);
    void replaceChild(int index, SoNode* child);
    void replaceChild(const SoNode* oldChild, SoNode* newChild);
    void removeChild(int index);
    void removeChild(const SoNode* child);
    void removeAllChildren();

    SoChildList* getChildren() const override { return &m_children; }
    bool hasFileChildren() const override { return true; }
    void doAction(SoAction& action) override;
    bool affectsState() const override;

private:
    mutable SoChildList m_children{this};
};
