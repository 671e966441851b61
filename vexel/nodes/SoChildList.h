#pragma once

#include <vector>

#include <vexel/base/VexelApi.h>

class SoNode;

/**
 * The children of a node. The list holds a reference to each child, passes changes of the children on to the parent,
 * and notifies of its own changes with the child and its place.
 */
class VEXEL_API SoChildList {
public:
    /** @param parent  the node that the children stand under; it outlives the list */
    explicit SoChildList(SoNode* parent) : m_parent(parent) {}
    SoChildList(const SoChildList&) = delete;
    SoChildList& operator=(const SoChildList&) = delete;
    ~SoChildList();

    int getLength() const { return static_cast<int>(m_children.size()); }
    SoNode* operator[](int index) const { return m_children[static_cast<std::size_t>(index)]; }
    /** Index of the first place of @p child, or -1. The search begins at @p guess, where the child is expected. */
    int find(const SoNode* child, int guess = 0) const;

    void append(SoNode* child);
    /** Inserts in front of the child at @p index; an index beyond the end appends. */
    void insert(SoNode* child, int index);
    /** Puts @p child in the place of the child at @p index. */
    void set(int index, SoNode* child);
    void remove(int index);
    void truncate();
    /** Replaces all children, with one notification. */
    void assign(const std::vector<SoNode*>& children);

private:
    void link(SoNode* child);
    void unlink(SoNode* child);

    SoNode* m_parent;
    std::vector<SoNode*> m_children;
};
