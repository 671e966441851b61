#pragma once

#include <vector>

#include <vexel/base/SbString.h>
#include <vexel/fields/SoMFName.h>
#include <vexel/fields/SoSFName.h>
#include <vexel/fields/SoSFNode.h>
#include <vexel/nodes/SoChildList.h>
#include <vexel/nodes/SoNode.h>

class SoGroup;

/** A list of nodes that is one part of a kit: a group of a certain type, with items of certain types. */
class VEXEL_API SoNodeKitListPart : public SoNode {
    SO_NODE(SoNodeKitListPart, SoNode)
public:
    /** Type of the group that holds the items; the list must be empty to change it. */
    SoSFName containerTypeName{this, "containerTypeName", SbName("Group")};
    /** Types of items; none for any node. */
    SoMFName childTypeNames{this, "childTypeNames"};
    /** The group with the items. */
    SoSFNode containerNode{this, "containerNode"};

    SoNodeKitListPart() = default;

    SoType getContainerType() const;
    /** Gives the types, as a catalog has them. They are no values that a file would hold. */
    void setTypes(SoType container, const std::vector<SoType>& items);
    bool isTypePermitted(SoType type) const;
    bool isChildPermitted(const SoNode* child) const;

    // As in a group; a child that is not permitted is reported and left out.

    int getNumChildren() const;
    SoNode* getChild(int index) const;
    int findChild(const SoNode* child) const;
    void addChild(SoNode* child);
    void insertChild(SoNode* child, int index);
    void removeChild(int index);
    void removeChild(const SoNode* child);
    void replaceChild(int index, SoNode* child);
    /** Sets fields of the container. */
    bool containerSet(const SbString& fields);

    /** The item at a place; the one behind the last is made of the first permitted type when asked for. */
    SoNode* getItem(int index, bool makeIfNeeded);
    /** Replaces the item at a place, or adds one behind the last; null removes it. */
    bool setItem(int index, SoNode* node);
    /** What follows the name of the list in the name of an item, or of a part of an item that is a kit: "[2].shape". */
    SbString getItemString(const SoNode* node) const;

    SoChildList* getChildren() const override { return &m_children; }
    void doAction(SoAction& action) override;
    bool affectsState() const override;
    bool shouldWriteField(const SoField& field) const override;
    void notify(SoNotList& list) override;
    void copyContents(const SoNode& from, SoCopyMap& copies) override;

protected:
    ~SoNodeKitListPart() override = default;

private:
    SoGroup* group() const;
    SoGroup* makeGroup();
    bool permits(const SoNode* child, const char* method) const;

    mutable SoChildList m_children{this};
    // Where the last item was found, since items are mostly asked about in their order.
    mutable int m_lastFound = 0;
    bool m_isHeld = false;
};
