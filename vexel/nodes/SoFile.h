#pragma once

#include <vexel/fields/SoSFString.h>
#include <vexel/nodes/SoChildList.h>
#include <vexel/nodes/SoNode.h>

/**
 * Shows the contents of another scene file. The name is relative to the folder of the file that the node was read from,
 * or else to the input's directories. Setting the name reads the file; the children are not written with the node. A
 * file that includes itself, however indirectly, is reported and not read again.
 */
class VEXEL_API SoFile : public SoNode {
    SO_NODE(SoFile, SoNode)
public:
    SoSFString name{this, "name", SbString("<Undefined file>")};

    SoFile() = default;

    /** The file that was read last, in full; empty when none could be. */
    const SbString& getFullName() const { return m_fullName; }

    SoChildList* getChildren() const override { return &m_children; }
    void doAction(SoAction& action) override;
    void readFinished(SoInput& in) override;
    void notify(SoNotList& list) override;
    void copyContents(const SoNode& from, SoCopyMap& copies) override;

private:
    void load(SoInput* includer);

    mutable SoChildList m_children{this};
    SbString m_fullName;
    bool m_isCopying = false;
};
