#include <vexel/nodes/SoGroup.h>

#include <vexel/actions/SoAction.h>
#include <vexel/base/SoDebugError.h>

namespace {

// A wrong argument is the programmer's mistake: it is reported and nothing is changed.
bool isChild(const SoNode* child, const char* method)
{
    if (!child)
        SoDebugError::post(method, "the child is null; nothing was changed");
    return child != nullptr;
}

bool isInRange(int index, int count, const char* method)
{
    const bool inside = index >= 0 && index < count;
    if (!inside)
        SoDebugError::post(method, "there is no child %d among %d; nothing was changed", index, count);
    return inside;
}

} // namespace

void SoGroup::addChild(SoNode* child)
{
    if (isChild(child, "SoGroup::addChild"))
        m_children.append(child);
}

void SoGroup::insertChild(SoNode* child, int index)
{
    if (isChild(child, "SoGroup::insertChild"))
        m_children.insert(child, index);
}

void SoGroup::replaceChild(int index, SoNode* child)
{
    if (isChild(child, "SoGroup::replaceChild") && isInRange(index, getNumChildren(), "SoGroup::replaceChild"))
        m_children.set(index, child);
}

void SoGroup::replaceChild(const SoNode* oldChild, SoNode* newChild)
{
    replaceChild(findChild(oldChild), newChild);
}

void SoGroup::removeChild(int index)
{
    if (isInRange(index, getNumChildren(), "SoGroup::removeChild"))
        m_children.remove(index);
}

void SoGroup::removeChild(const SoNode* child)
{
    removeChild(findChild(child));
}

void SoGroup::removeAllChildren()
{
    m_children.truncate();
}

void SoGroup::doAction(SoAction& action)
{
    action.traverseChildren(m_children);
}

bool SoGroup::affectsState() const
{
    for (int i = 0; i < m_children.getLength(); ++i) {
        if (m_children[i]->affectsState())
            return true;
    }
    return false;
}
