#pragma once

#include <memory>

#include <vexel/base/SbString.h>
#include <vexel/fields/SoSFNode.h>
#include <vexel/nodes/SoChildList.h>
#include <vexel/nodes/SoNode.h>

class SoNodekitCatalog;

/**
 * Declares a kit class: as SO_NODE, and its catalog, which the class's source defines. Each part is a field:
 *
 *     SoSFNode material{this, "material"};
 */
#define SO_KIT(Class, Base)                                                                                            \
    SO_NODE(Class, Base)                                                                                               \
    SO_KIT_CATALOG
#define SO_KIT_ABSTRACT(Class, Base)                                                                                   \
    SO_NODE_ABSTRACT(Class, Base)                                                                                      \
    SO_KIT_CATALOG
#define SO_KIT_CATALOG                                                                                                 \
public:                                                                                                                \
    static const SoNodekitCatalog& getClassNodekitCatalog();                                                           \
    const SoNodekitCatalog& getNodekitCatalog() const override                                                         \
    {                                                                                                                  \
        return getClassNodekitCatalog();                                                                               \
    }                                                                                                                  \
                                                                                                                       \
private:

/**
 * Base of the kits: nodes that put together a small graph of their own from parts, which the catalog of the class
 * lists. Parts are fields; the graph below the kit is kept in step with them and is not shown as children.
 *
 * Parts are named by paths: "material", "appearance.material" for a part of a part that is a kit, "childList[2]" for an
 * item of a list part.
 */
class VEXEL_API SoBaseKit : public SoNode {
    SO_NODE(SoBaseKit, SoNode)
public:
    /** Callbacks, called before anything else of the kit. */
    SoSFNode callbackList{this, "callbackList"};

    SoBaseKit() = default;

    static const SoNodekitCatalog& getClassNodekitCatalog();
    virtual const SoNodekitCatalog& getNodekitCatalog() const { return getClassNodekitCatalog(); }

    /** A public part; null when there is no such part, or it is not there and @p makeIfNeeded is false. */
    SoNode* getPart(const SbName& name, bool makeIfNeeded);
    /** Puts a node, or null, in the place of a part. False when there is no such part or the node does not fit. */
    bool setPart(const SbName& name, SoNode* node);
    /** The name of the part that a node is, as getPart() takes it; empty for a node that is none. */
    SbString getPartString(const SoNode* node) const;

    /** Sets fields of parts, made as needed: "material { diffuseColor 1 0 0 } transform { translation 1 0 0 }". False
     * at the first thing that cannot be set. */
    bool set(const SbString& text);
    /** Sets fields of one part: "diffuseColor 1 0 0 transparency 0.5". */
    bool set(const SbName& part, const SbString& fields);

    SoChildList* getChildren() const override { return &m_children; }
    void doAction(SoAction& action) override;
    bool affectsState() const override;
    bool shouldWriteField(const SoField& field) const override;
    bool shouldWriteValue(const SoField& field) const override;
    void notify(SoNotList& list) override;
    void copyContents(const SoNode& from, SoCopyMap& copies) override;

protected:
    ~SoBaseKit() override = default;

    /** The field that holds a part, by its number in the catalog. */
    SoSFNode* getPartField(int part) const;
    /** Makes a part by its number, private ones too, unless it is there. */
    SoNode* makePart(int part);
    /** Makes the parts that are not null by default; to be called by the constructor of each class that has some. */
    void makeDefaultParts();

private:
    void arrange();
    void arrangeBelow(int parent, SoChildList& children);
    void checkPart(int part);

    mutable SoChildList m_children{this};
    // Parts must not be moved about while several of them change at once.
    bool m_isHeld = false;
};
