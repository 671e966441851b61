#include <vexel/nodekits/SoNodeKitListPart.h>

#include <vexel/actions/SoAction.h>
#include <vexel/base/SoDebugError.h>
#include <vexel/nodekits/SoBaseKit.h>
#include <vexel/nodes/SoGroup.h>
#include <vexel/nodes/detail/SoCopyMap.h>

SoType SoNodeKitListPart::getContainerType() const
{
    const SoType type = SoType::fromName(containerTypeName.getValue());
    return type.isDerivedFrom(SoGroup::getClassTypeId()) && type.canCreateInstance() ? type : SoGroup::getClassTypeId();
}

void SoNodeKitListPart::setTypes(SoType container, const std::vector<SoType>& items)
{
    const bool before = enableNotify(false);
    containerTypeName = container.getName();
    containerTypeName.setDefault(true);
    std::vector<SbName> names;
    names.reserve(items.size());
    for (const SoType type : items)
        names.push_back(type.getName());
    childTypeNames.setValues(std::move(names));
    childTypeNames.setDefault(true);
    enableNotify(before);
}

bool SoNodeKitListPart::isTypePermitted(SoType type) const
{
    if (childTypeNames.getNum() == 0)
        return true;
    for (int i = 0; i < childTypeNames.getNum(); ++i) {
        if (type.isDerivedFrom(SoType::fromName(childTypeNames[i])))
            return true;
    }
    return false;
}

bool SoNodeKitListPart::isChildPermitted(const SoNode* child) const
{
    return child && isTypePermitted(child->getTypeId());
}

bool SoNodeKitListPart::permits(const SoNode* child, const char* method) const
{
    const bool good = isChildPermitted(child);
    if (!good)
        SoDebugError::post(method, "a %s cannot be an item of this list; nothing was changed",
                           child ? child->getTypeId().getName().getString() : "null pointer");
    return good;
}

SoGroup* SoNodeKitListPart::group() const
{
    return static_cast<SoGroup*>(containerNode.getValue());
}

SoGroup* SoNodeKitListPart::makeGroup()
{
    if (!group())
        containerNode = static_cast<SoNode*>(getContainerType().createInstance());
    return group();
}

int SoNodeKitListPart::getNumChildren() const
{
    return group() ? group()->getNumChildren() : 0;
}

SoNode* SoNodeKitListPart::getChild(int index) const
{
    return index >= 0 && index < getNumChildren() ? group()->getChild(index) : nullptr;
}

int SoNodeKitListPart::findChild(const SoNode* child) const
{
    if (!group())
        return -1;
    for (const int guess : {m_lastFound, m_lastFound + 1}) {
        if (getChild(guess) == child)
            return m_lastFound = guess;
    }
    const int found = group()->findChild(child);
    m_lastFound = found < 0 ? 0 : found;
    return found;
}

void SoNodeKitListPart::addChild(SoNode* child)
{
    if (permits(child, "SoNodeKitListPart::addChild"))
        makeGroup()->addChild(child);
}

void SoNodeKitListPart::insertChild(SoNode* child, int index)
{
    if (permits(child, "SoNodeKitListPart::insertChild"))
        makeGroup()->insertChild(child, index);
}

void SoNodeKitListPart::removeChild(int index)
{
    if (group())
        group()->removeChild(index);
}

void SoNodeKitListPart::removeChild(const SoNode* child)
{
    removeChild(findChild(child));
}

void SoNodeKitListPart::replaceChild(int index, SoNode* child)
{
    if (group() && permits(child, "SoNodeKitListPart::replaceChild"))
        group()->replaceChild(index, child);
}

bool SoNodeKitListPart::containerSet(const SbString& fields)
{
    return makeGroup()->set(fields);
}

SoNode* SoNodeKitListPart::getItem(int index, bool makeIfNeeded)
{
    if (index != getNumChildren() || !makeIfNeeded || childTypeNames.getNum() == 0)
        return getChild(index);
    if (auto* made = static_cast<SoNode*>(SoType::fromName(childTypeNames[0]).createInstance()))
        addChild(made);
    return getChild(index);
}

bool SoNodeKitListPart::setItem(int index, SoNode* node)
{
    if (index < 0 || index > getNumChildren() || (node && !isChildPermitted(node)))
        return false;
    if (!node) {
        if (index == getNumChildren())
            return false;
        removeChild(index);
    } else if (index == getNumChildren()) {
        addChild(node);
    } else {
        replaceChild(index, node);
    }
    return true;
}

SbString SoNodeKitListPart::getItemString(const SoNode* node) const
{
    const auto indexText = [](int index) { return SbString("[") + SbString(index) + SbString("]"); };
    if (const int index = findChild(node); index >= 0)
        return indexText(index);
    for (int i = 0; i < getNumChildren(); ++i) {
        if (!getChild(i)->isOfType(SoBaseKit::getClassTypeId()))
            continue;
        const SbString below = static_cast<SoBaseKit*>(getChild(i))->getPartString(node);
        if (!below.isEmpty())
            return indexText(i) + SbString(".") + below;
    }
    return SbString();
}

void SoNodeKitListPart::doAction(SoAction& action)
{
    action.traverseChildren(m_children);
}

bool SoNodeKitListPart::affectsState() const
{
    return group() && group()->affectsState();
}

bool SoNodeKitListPart::shouldWriteField(const SoField& field) const
{
    if (&field != &containerNode)
        return SoNode::shouldWriteField(field);
    return group() && (getNumChildren() > 0 || !group()->hasDefaultValues() || !group()->getName().isEmpty());
}

void SoNodeKitListPart::notify(SoNotList& list)
{
    if (list.field == &containerNode && !m_isHeld) {
        m_isHeld = true;
        SoNode* node = containerNode.getValue();
        if (node && !node->isOfType(SoGroup::getClassTypeId())) {
            SoDebugError::post("SoNodeKitListPart", "a %s holds no children and cannot be the container of a list",
                               node->getTypeId().getName().getString());
            containerNode = nullptr;
            node = nullptr;
        }
        const bool isThere = m_children.getLength() == 1 && m_children[0] == node;
        if (!isThere)
            m_children.assign(node ? std::vector<SoNode*>{node} : std::vector<SoNode*>());
        m_isHeld = false;
    }
    SoNode::notify(list);
}

void SoNodeKitListPart::copyContents(const SoNode& from, SoCopyMap& copies)
{
    m_isHeld = true;
    SoNode::copyContents(from, copies);
    m_isHeld = false;
}
