#include <vexel/nodes/SoChildList.h>

#include <algorithm>

#include <vexel/base/SoPath.h>
#include <vexel/nodes/SoNode.h>

namespace {

void notifyOf(SoNode* parent, SoTriggerType type, SoNode* child, int index)
{
    SoNotList list(type);
    list.child = child;
    list.childIndex = index;
    parent->notify(list);
}

// Paths that lead through the parent keep their place when the children before it change.
template <class Tell>
void tellPaths(const SoNode* parent, Tell&& tell)
{
    parent->getAuditors().forEach([&](void* auditor, SoAuditorType type) {
        if (type == SoAuditorType::Path)
            tell(*static_cast<SoPath*>(auditor));
    });
}

} // namespace

SoChildList::~SoChildList()
{
    for (SoNode* child : m_children)
        unlink(child);
}

void SoChildList::link(SoNode* child)
{
    child->ref();
    child->addAuditor(static_cast<SoFieldContainer*>(m_parent), SoAuditorType::Container);
}

void SoChildList::unlink(SoNode* child)
{
    child->removeAuditor(static_cast<SoFieldContainer*>(m_parent), SoAuditorType::Container);
    child->unref();
}

int SoChildList::find(const SoNode* child, int guess) const
{
    const int size = getLength();
    if (guess >= 0 && guess < size && m_children[static_cast<std::size_t>(guess)] == child)
        return guess;
    const auto found = std::find(m_children.begin(), m_children.end(), child);
    return found == m_children.end() ? -1 : static_cast<int>(found - m_children.begin());
}

void SoChildList::append(SoNode* child)
{
    link(child);
    m_children.push_back(child);
    notifyOf(m_parent, SO_TRIGGER_CHILD_ADDED, child, getLength() - 1);
}

void SoChildList::insert(SoNode* child, int index)
{
    if (index >= getLength()) {
        append(child);
        return;
    }
    index = std::max(index, 0);
    link(child);
    m_children.insert(m_children.begin() + index, child);
    tellPaths(m_parent, [&](SoPath& path) { path.childInserted(m_parent, index); });
    notifyOf(m_parent, SO_TRIGGER_CHILD_INSERTED, child, index);
}

void SoChildList::set(int index, SoNode* child)
{
    SoNode* old = m_children[static_cast<std::size_t>(index)];
    link(child);
    m_children[static_cast<std::size_t>(index)] = child;
    tellPaths(m_parent, [&](SoPath& path) { path.childReplaced(m_parent, index); });
    // Listeners may still ask about the old child, so it goes after they were told.
    notifyOf(m_parent, SO_TRIGGER_CHILD_REPLACED, child, index);
    unlink(old);
}

void SoChildList::remove(int index)
{
    SoNode* child = m_children[static_cast<std::size_t>(index)];
    m_children.erase(m_children.begin() + index);
    tellPaths(m_parent, [&](SoPath& path) { path.childRemoved(m_parent, index); });
    notifyOf(m_parent, SO_TRIGGER_CHILD_REMOVED, child, index);
    unlink(child);
}

void SoChildList::truncate()
{
    if (m_children.empty())
        return;
    std::vector<SoNode*> old;
    old.swap(m_children);
    tellPaths(m_parent, [&](SoPath& path) { path.allChildrenRemoved(m_parent); });
    notifyOf(m_parent, SO_TRIGGER_ALL_CHILDREN_REMOVED, nullptr, -1);
    for (SoNode* child : old)
        unlink(child);
}

void SoChildList::assign(const std::vector<SoNode*>& children)
{
    std::vector<SoNode*> old;
    old.swap(m_children);
    for (SoNode* child : children) {
        link(child);
        m_children.push_back(child);
    }
    tellPaths(m_parent, [&](SoPath& path) { path.allChildrenRemoved(m_parent); });
    notifyOf(m_parent, SO_TRIGGER_UNSPECIFIED, nullptr, -1);
    for (SoNode* child : old)
        unlink(child);
}
