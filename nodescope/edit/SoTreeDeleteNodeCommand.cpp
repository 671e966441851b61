#include "SoTreeDeleteNodeCommand.h"
#include "SoCommandManager.h"
#include "detail/ChildAccess.h"
#include "detail/EditMessages.h"

#include <nodescope/tree/SoNodescopeTreeView.h>
#include <nodescope/tree/SoTreeViewItem.h>
#include <vexel/base/SbString.h>
#include <vexel/fields/SoMField.h>
#include <vexel/nodekits/SoBaseKit.h>
#include <vexel/nodekits/SoNodeKitListPart.h>
#include <vexel/nodes/SoFile.h>
#include <vexel/nodes/SoSelection.h>
#include <vexel/nodes/SoWWWInline.h>

#include <algorithm>

namespace {

bool isListPart(const SoNode* node)
{
    return node && node->isOfType(SoNodeKitListPart::getClassTypeId());
}

bool hasFileContents(const SoNode* node)
{
    return node && (node->isOfType(SoFile::getClassTypeId()) || node->isOfType(SoWWWInline::getClassTypeId()));
}

} // namespace

SoTreeDeleteNodeCommand::SoTreeDeleteNodeCommand(SoCommandManager& manager, SoTreeViewItem* item, bool& canDelete)
    : m_manager(manager)
{
    canDelete = false;
    if (!item)
        return;
    m_node = SoWeakPtr<SoNode>(item->node());
    if (item->isPart()) {
        choosePart(*item);
    } else if (item->fromField()) {
        m_kind = Kind::FieldValue;
        m_field = item->sourceField();
        m_container = SoWeakPtr<SoNode>(item->parentNode());
    } else {
        chooseChild(*item);
    }
    m_hasContainer = m_container.get() != nullptr;
    canDelete = m_kind != Kind::Nothing && perform();
}

SoTreeDeleteNodeCommand::~SoTreeDeleteNodeCommand()
{
    if (m_holdsReference && m_node.get())
        m_node.get()->unref();
}

void SoTreeDeleteNodeCommand::choosePart(const SoTreeViewItem& item)
{
    m_partName = item.partName();
    SoNode* list = item.parentRow() ? item.parentRow()->parentNode() : nullptr;
    const QString name = item.text(SoTreeViewItem::NameColumn);
    if (name.contains(QLatin1String("childList[")) || (isListPart(list) && name.endsWith(']'))) {
        if (!isListPart(list))
            return;
        m_kind = Kind::ListItem;
        m_container = SoWeakPtr<SoNode>(list);
        m_index = static_cast<SoNodeKitListPart*>(list)->findChild(item.node());
        return;
    }
    m_kind = Kind::Part;
    m_container = SoWeakPtr<SoNode>(item.kit());
}

void SoTreeDeleteNodeCommand::chooseChild(const SoTreeViewItem& item)
{
    if (hasFileContents(item.parentNode())) {
        EditMessages::showCannotDelete(*item.node());
        return;
    }
    if (item.parentRow() && !ChildAccess::isRemovable(item))
        return;
    m_kind = Kind::Child;
    m_container = SoWeakPtr<SoNode>(item.parentNode());
    // What was pasted beside the scene is no scene of its own.
    if (!item.parentRow() && item.treeWidget()->topLevelItemCount() > 1)
        m_container = SoWeakPtr<SoNode>(m_manager.treeView()->selectionRoot());
    m_index = item.position();
}

bool SoTreeDeleteNodeCommand::perform()
{
    SoNode* const node = m_node.get();
    if (!node || (m_hasContainer && !m_container.get()))
        return false;
    node->ref();
    m_isDone = remove(*node);
    // Somebody else keeps the node alive, or it is where it was.
    m_holdsReference = m_isDone && node->getRefCount() == 1;
    if (!m_holdsReference)
        node->unrefNoDelete();
    return m_isDone;
}

bool SoTreeDeleteNodeCommand::remove(SoNode& node)
{
    switch (m_kind) {
    case Kind::Child: {
        if (!m_hasContainer) {
            m_manager.setScene(nullptr, false);
            return true;
        }
        const int place = ChildAccess::find(*m_container.get(), node, m_index);
        if (place < 0)
            return false;
        m_index = place;
        ChildAccess::remove(*m_container.get(), place);
        return true;
    }
    case Kind::FieldValue:
        if (isListPart(m_container.get())) {
            EditMessages::showCannotDeleteContainer();
            return false;
        }
        return removeFromField(node);
    case Kind::Part:
        if (!static_cast<SoBaseKit*>(m_container.get())->setPart(m_partName, nullptr)) {
            EditMessages::showCannotDeletePart(m_partName);
            return false;
        }
        return true;
    case Kind::ListItem:
        ChildAccess::remove(*m_container.get(), m_index);
        return true;
    case Kind::Nothing:
        break;
    }
    return false;
}

bool SoTreeDeleteNodeCommand::removeFromField(const SoNode& node)
{
    std::vector<SoBase*> values = m_field->getReferences();
    const auto found = std::find(values.begin(), values.end(), static_cast<const SoBase*>(&node));
    if (found == values.end())
        return false;
    m_index = int(found - values.begin());
    values.erase(found);
    m_field->setReferences(values);
    return true;
}

void SoTreeDeleteNodeCommand::restoreInField(SoNode& node)
{
    std::vector<SoBase*> values;
    if (m_field->isOfType(SoMField::getClassTypeId()))
        values = m_field->getReferences();
    values.insert(values.begin() + std::min<std::ptrdiff_t>(m_index, std::ptrdiff_t(values.size())), &node);
    m_field->setReferences(values);
}

bool SoTreeDeleteNodeCommand::restore(SoNode& node)
{
    switch (m_kind) {
    case Kind::Child:
        if (m_hasContainer)
            ChildAccess::insert(*m_container.get(), node, m_index);
        else
            m_manager.setScene(&node, false);
        break;
    case Kind::FieldValue:
        restoreInField(node);
        break;
    case Kind::Part:
        if (!static_cast<SoBaseKit*>(m_container.get())->setPart(m_partName, &node)) {
            EditMessages::showCannotSetPart(m_partName);
            return false;
        }
        break;
    case Kind::ListItem:
        if (!static_cast<SoNodeKitListPart*>(m_container.get())->isChildPermitted(&node)) {
            EditMessages::showCannotSetPart(m_partName);
            return false;
        }
        ChildAccess::insert(*m_container.get(), node, m_index);
        break;
    case Kind::Nothing:
        break;
    }
    return true;
}

void SoTreeDeleteNodeCommand::undo()
{
    SoNode* const node = m_node.get();
    if (!m_isDone || !node || (m_hasContainer && !m_container.get()) || !restore(*node))
        return;
    m_isDone = false;
    dropReference();
}

void SoTreeDeleteNodeCommand::redo()
{
    if (!m_isDone && m_kind != Kind::Nothing)
        perform();
}

void SoTreeDeleteNodeCommand::dropReference()
{
    if (m_holdsReference)
        m_node.get()->unrefNoDelete();
    m_holdsReference = false;
}
