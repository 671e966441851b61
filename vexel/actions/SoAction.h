#pragma once

#include <memory>
#include <vector>

#include <vexel/base/SoType.h>
#include <vexel/base/VexelApi.h>
#include <vexel/state/SoState.h>

class SoCamera;
class SoChildList;
class SoNode;
class SoPath;
class SoPathList;
class SoSeparator;
class SoShape;

/** Declares the run-time type of an action class. */
#define SO_ACTION(Class, Base)                                                                                         \
public:                                                                                                                \
    static SoType getClassTypeId()                                                                                     \
    {                                                                                                                  \
        static const SoType type = SoType::createType(Base::getClassTypeId(), #Class);                                 \
        return type;                                                                                                   \
    }                                                                                                                  \
    SoType getTypeId() const override                                                                                  \
    {                                                                                                                  \
        return getClassTypeId();                                                                                       \
    }                                                                                                                  \
                                                                                                                       \
private:

/**
 * Something that is done to a graph, or along a path: drawing, searching, measuring, picking.
 *
 * The action walks from node to node; nodes change its state and hand what they are to its visit functions, which each
 * action overrides as far as they concern it.
 */
class VEXEL_API SoAction {
public:
    static SoType getClassTypeId();
    virtual SoType getTypeId() const = 0;
    bool isOfType(SoType type) const { return getTypeId().isDerivedFrom(type); }

    SoAction(const SoAction&) = delete;
    SoAction& operator=(const SoAction&) = delete;
    virtual ~SoAction();

    /** Works on the whole graph below @p root. A null pointer does nothing, as in the other forms. */
    void apply(SoNode* root);
    /** Works on the path and the graph below its tail, with the state that the nodes beside the path give. */
    void apply(SoPath* path);
    /** Works on each path in turn. */
    void apply(const SoPathList& paths);

    // For nodes, while they are traversed.

    SoState& state() { return m_state; }
    const SoState& state() const { return m_state; }
    /** Goes on to one node that is no child: a part held in a field. */
    void traverse(SoNode& node);
    /** Goes on to all children, or to those that the path asks for. */
    void traverseChildren(const SoChildList& children);
    /** Goes on to one child, unless the path asks for another. */
    void traverseChild(const SoChildList& children, int index);
    /** True on the way down the path that the action is applied to: only some children count. */
    bool isOnPath() const;
    /** Child of the present node that the path leads to; -1 when it does not go on through a child. */
    int getPathChild() const;

    /** The path that the action works on; null while it works on a whole graph. */
    SoPath* getPathAppliedTo() const { return m_path; }

    /** True once the action has all it wants; nodes stop at once. */
    bool hasTerminated() const { return m_terminated; }

    /** The way from the root to the present node; a new path with a reference count of 0. */
    SoPath* getCurPath() const;

    /** What happens at a shape; nothing for actions that do not ask for shapes. */
    virtual void visitShape(SoShape& shape);
    /** Called around the children of a separator; answering false leaves them out. */
    virtual bool enterSeparator(SoSeparator& separator);
    virtual void leaveSeparator(SoSeparator& separator);
    /** Called after a camera changed the state. */
    virtual void visitCamera(const SoCamera& camera);
    /** True for actions that need to know the values of properties; others are not slowed down by them. */
    virtual bool needsState() const { return true; }
    /** True for actions that look into children that a switch hides. */
    virtual bool isSearchingAll() const { return false; }

protected:
    SoAction();

    /** Called before and after the walk. */
    virtual void beginTraversal() {}
    virtual void endTraversal() {}
    /** Called for each node instead of SoNode::doAction(). */
    virtual void visitNode(SoNode& node);
    void setTerminated(bool on) { m_terminated = on; }

    struct Step {
        SoNode* node;
        /** Place among the children of the node before; -1 for nodes held in fields and for the root. */
        int index;
    };
    const std::vector<Step>& way() const { return m_way; }

private:
    void run(SoNode& root, SoPath* path);
    void traverseStep(SoNode& node, int index);

    SoState m_state;
    std::vector<Step> m_way;
    SoPath* m_path = nullptr;
    // How many nodes of the path the way has followed so far; 0 when it left the path.
    int m_followed = 0;
    bool m_terminated = false;
};
