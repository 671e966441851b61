#include "SoTreeAddNodeCommand.h"
#include "SoCommandManager.h"
#include "detail/ChildAccess.h"
#include "detail/EditMessages.h"
#include <vexel/io/SoDBWriteLock.h>

#include <nodescope/tree/SoTreeViewItem.h>
#include <vexel/base/SbName.h>

SoTreeAddNodeCommand::SoTreeAddNodeCommand(SoCommandManager& manager, const SoTreeViewItem* item)
    : m_manager(manager), m_item(item), m_target(item ? item->node() : nullptr),
      m_parent(item ? item->parentNode() : nullptr)
{
}

SoTreeAddNodeCommand::~SoTreeAddNodeCommand()
{
    for (const Addition& addition : m_undone)
        addition.node.get()->unref();
}

bool SoTreeAddNodeCommand::addNode(SoNode* node)
{
    node->ref();
    const bool isPlaced = place(*node);
    if (isPlaced)
        m_manager.addCommand(this);
    else
        EditMessages::showCannotAdd();
    node->unref();
    return isPlaced;
}

bool SoTreeAddNodeCommand::place(SoNode& node)
{
    if (!m_addsBeside && ChildAccess::accepts(m_item, node)) {
        const SoDBWriteLock lock;
        ChildAccess::insert(*m_target.get(), node, ChildAccess::count(*m_target.get()));
        m_done.push_back({Appended, SoWeakPtr<SoNode>(&node)});
        return true;
    }
    const SoTreeViewItem* const parent = m_item ? m_item->parentRow() : nullptr;
    const bool isChild = parent && !m_item->fromField();
    if (!isChild || !ChildAccess::accepts(parent, node))
        return false;
    // What comes later goes into the parent too, behind what is there.
    const int index =
        m_addsBeside ? Appended : ChildAccess::find(*m_parent.get(), *m_item->node(), m_item->position()) + 1;
    m_addsBeside = true;
    m_target = m_parent;
    const SoDBWriteLock lock;
    ChildAccess::insert(*m_target.get(), node, index == Appended ? ChildAccess::count(*m_target.get()) : index);
    m_done.push_back({index, SoWeakPtr<SoNode>(&node)});
    return true;
}

bool SoTreeAddNodeCommand::addType(const SbName& type)
{
    const SoType found = SoType::fromName(type);
    const bool isNode = found.isDerivedFrom(SoNode::getClassTypeId()) && found.canCreateInstance();
    return isNode && addNode(static_cast<SoNode*>(found.createInstance()));
}

bool SoTreeAddNodeCommand::addTypes(const std::vector<SbName>& types)
{
    bool isAnyAdded = false;
    for (const SbName& type : types)
        isAnyAdded |= addType(type);
    if (isAnyAdded)
        m_manager.addCommand(this);
    return isAnyAdded;
}

void SoTreeAddNodeCommand::undo()
{
    SoNode* const target = m_target.get();
    const SoDBWriteLock lock;
    for (; !m_done.empty(); m_done.pop_back()) {
        const Addition& addition = m_done.back();
        SoNode* const node = addition.node.get();
        if (!target || !node)
            continue;
        const int guess = addition.index == Appended ? ChildAccess::count(*target) - 1 : addition.index;
        const int index = ChildAccess::find(*target, *node, guess);
        if (index < 0)
            continue; // the host took it out
        node->ref();
        m_undone.push_back(addition);
        ChildAccess::remove(*target, index);
    }
}

void SoTreeAddNodeCommand::redo()
{
    SoNode* const target = m_target.get();
    if (!target)
        return;
    const SoDBWriteLock lock;
    for (; !m_undone.empty(); m_undone.pop_back()) {
        const Addition& addition = m_undone.back();
        SoNode* const node = addition.node.get();
        ChildAccess::insert(*target, *node, addition.index == Appended ? ChildAccess::count(*target) : addition.index);
        m_done.push_back(addition);
        node->unrefNoDelete();
    }
}
