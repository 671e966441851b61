#pragma once

#include <vector>

#include <vexel/base/SoBase.h>

class SoNode;

/**
 * A way down a graph: a head node and, for each step, the child taken.
 *
 * The path references its nodes and follows changes of the children along the way; it is cut where a child it leads
 * through is taken out. Nodes below a nodekit are the kit's own business: getLength() and the other operations count up
 * to the first kit only, those of SoFullPath count all.
 */
class VEXEL_API SoPath : public SoBase {
public:
    static SoType getClassTypeId();
    SoType getTypeId() const override { return getClassTypeId(); }

    SoPath() = default;
    explicit SoPath(SoNode* head);

    /** Empties the path and starts it anew. */
    void setHead(SoNode* head);
    SoNode* getHead() const;
    SoNode* getTail() const { return getNodeFromTail(0); }

    /** Goes on to the child at @p childIndex of the last node; an index out of range is left out and answered false. */
    bool append(int childIndex);
    /** Goes on to @p node: a child of the last node, or a node held by one of its fields. */
    void append(SoNode* node);
    /** Goes on along another path, whose head is a child of the last node or the last node itself. */
    void append(const SoPath& path);
    /** Cuts the path behind its first @p length nodes. */
    void truncate(int length);
    void pop() { truncate(getFullLength() - 1); }

    int getLength() const;
    int getFullLength() const { return static_cast<int>(m_steps.size()); }
    SoNode* getNode(int i) const { return m_steps[static_cast<std::size_t>(i)].node; }
    SoNode* getNodeFromTail(int i) const;
    /** Place of the i-th node among the children of the one before; -1 for the head and for nodes held in fields. */
    int getIndex(int i) const;
    int getIndexFromTail(int i) const { return getIndex(getLength() - 1 - i); }

    bool containsNode(const SoNode* node) const;
    /** True when @p path leads the same way from its head to its end, somewhere in this path. */
    bool containsPath(const SoPath& path) const;
    /** Index of the last node that this path and @p path have in common from their heads on; -1 for different heads. */
    int findFork(const SoPath& path) const;
    /** The nodes from @p start on, @p num of them or all. */
    SoPath* copy(int start = 0, int num = -1) const;

    bool operator==(const SoPath& other) const;
    bool operator!=(const SoPath& other) const { return !(*this == other); }

    static SoPath* getByName(const SbName& name);

    // Called by child lists that the path leads through, after they changed.
    void childInserted(SoNode* parent, int index);
    void childRemoved(SoNode* parent, int index);
    void childReplaced(SoNode* parent, int index);
    void allChildrenRemoved(SoNode* parent);

protected:
    ~SoPath() override;

private:
    friend class SoFullPath;

    static constexpr int Unresolved = -2;
    struct Step {
        SoNode* node;
        mutable int index;
    };

    void appendStep(SoNode* node, int index);
    void resolve(std::size_t i) const;

    std::vector<Step> m_steps;
};
