#include <vexel/nodes/SoFile.h>

#include <vexel/actions/SoAction.h>
#include <vexel/io/SoDB.h>
#include <vexel/io/SoInput.h>
#include <vexel/nodes/SoSeparator.h>
#include <vexel/nodes/detail/Inclusion.h>

void SoFile::doAction(SoAction& action)
{
    action.traverseChildren(m_children);
}

void SoFile::load(SoInput* includer)
{
    m_children.truncate();
    m_fullName = SbString();
    if (name.isDefault() || name.getValue().isEmpty())
        return;
    SoInput in;
    const SbString found = Inclusion::find(name.getValue(), includer, in);
    if (found.isEmpty())
        return;
    const Inclusion inclusion(found, includer);
    if (!inclusion.isAllowed() || !in.openFile(found))
        return;
    if (SoSeparator* root = SoDB::readAll(&in)) {
        m_fullName = found;
        m_children.append(root);
    }
}

void SoFile::readFinished(SoInput& in)
{
    load(&in);
}

void SoFile::notify(SoNotList& list)
{
    if (list.field == &name && isNotifyEnabled() && !m_isCopying)
        load(nullptr);
    SoNode::notify(list);
}

void SoFile::copyContents(const SoNode& from, SoCopyMap& copies)
{
    // What was read is copied with the node, not read once more.
    m_isCopying = true;
    SoNode::copyContents(from, copies);
    m_fullName = static_cast<const SoFile&>(from).m_fullName;
    m_isCopying = false;
}
