#pragma once

#include <vexel/base/SbBasic.h>
#include <vexel/fields/SoFieldContainer.h>

class SoAction;
class SoChildList;
class SoCopyMap;
class SoHandleEventAction;
class SoInput;

/** Declares a node class; see SO_CONTAINER. */
#define SO_NODE(Class, Base) SO_CONTAINER(Class, Base)
/** Declares a node class without instances of its own. */
#define SO_NODE_ABSTRACT(Class, Base) SO_CONTAINER_ABSTRACT(Class, Base)

/**
 * Base of everything that stands in a scene graph.
 *
 * Actions walk the graph and call doAction() of each node in their way: a property changes the state of the walk, a
 * group passes the action on to its children, a shape hands itself to the action.
 */
class VEXEL_API SoNode : public SoFieldContainer {
    SO_NODE_ABSTRACT(SoNode, SoFieldContainer)
public:
    /** A number of the node's own, given when it is made and never again in the process. */
    SbUniqueId getNodeId() const { return m_id; }

    /** A property with the override flag prevails over all properties of its kind below and behind it. */
    bool isOverride() const { return m_override; }
    void setOverride(bool on);

    /** The nodes below this one, shown or internal; null for a node that cannot have any. */
    virtual SoChildList* getChildren() const { return nullptr; }

    /** True when the children belong to the scene as its files show it; those of other nodes are made by the node
     * itself. */
    virtual bool hasFileChildren() const { return false; }
    /** Called when all fields and children of the node were read from a file. */
    virtual void readFinished(SoInput& in);

    /** What the node means to an action. Nodes without effect do nothing. */
    virtual void doAction(SoAction& action);
    /** What the node does with an event of the user; most do nothing. A node that acted tells the action so. */
    virtual void handleEvent(SoHandleEventAction& action);
    /** True when the node changes the state that its later siblings see; separators keep their effect to themselves. */
    virtual bool affectsState() const { return true; }

    /**
     * A copy of the graph below and including this node; what is shared in it is shared in the copy.
     * @param copyConnections  connections inside the graph are made between the copies, those from outside are kept
     */
    SoNode* copy(bool copyConnections = false) const;
    /** Takes over the contents of @p from, a node of the same type, with all nodes exchanged as @p copies says. */
    virtual void copyContents(const SoNode& from, SoCopyMap& copies);

    /** The node of that name that was named last, or null. */
    static SoNode* getByName(const SbName& name);

    void notify(SoNotList& list) override;

protected:
    SoNode();
    ~SoNode() override = default;

private:
    SbUniqueId m_id;
    bool m_override = false;
};
