#include <vexel/nodes/SoNode.h>

#include <atomic>

#include <vexel/engines/SoEngineOutput.h>
#include <vexel/fields/SoField.h>
#include <vexel/nodes/SoChildList.h>
#include <vexel/nodes/detail/SoCopyMap.h>

namespace {
std::atomic<SbUniqueId> s_lastId{0};
}

SoNode::SoNode() : m_id(++s_lastId) {}

void SoNode::setOverride(bool on)
{
    if (m_override == on)
        return;
    m_override = on;
    touch();
}

void SoNode::doAction(SoAction&) {}

void SoNode::handleEvent(SoHandleEventAction&) {}

void SoNode::readFinished(SoInput&) {}

SoNode* SoNode::getByName(const SbName& name)
{
    return static_cast<SoNode*>(getNamedBase(name, getClassTypeId()));
}

void SoNode::notify(SoNotList& list)
{
    if (!list.node)
        list.node = this;
    if (isNotifyEnabled() && !isNotifiedOf(list))
        notifyAuditors(list);
}

SoNode* SoNode::copy(bool copyConnections) const
{
    SoCopyMap copies;
    SoNode* result = copies.copyOf(this);
    if (copyConnections)
        copies.copyConnections();
    return result;
}

void SoNode::copyContents(const SoNode& from, SoCopyMap& copies)
{
    setName(from.getName());
    copyFieldValues(from);
    setOverride(from.isOverride());
    // Nodes held in fields belong to the graph: they are copied before the fields are told of their copies.
    for (SoField* field : getFields())
        field->remapReferences(copies);
    if (const SoChildList* children = from.getChildren(); children && getChildren()) {
        std::vector<SoNode*> copied;
        copied.reserve(static_cast<std::size_t>(children->getLength()));
        for (int i = 0; i < children->getLength(); ++i)
            copied.push_back(copies.copyOf((*children)[i]));
        getChildren()->assign(copied);
    }
}

SoNode* SoCopyMap::copyOf(const SoNode* node)
{
    if (!node)
        return nullptr;
    if (const auto found = m_copies.find(node); found != m_copies.end())
        return static_cast<SoNode*>(found->second);
    auto* made = static_cast<SoNode*>(node->getTypeId().createInstance());
    if (!made)
        return nullptr;
    m_copies.emplace(node, made);
    m_order.emplace_back(node, made);
    made->copyContents(*node, *this);
    return made;
}

SoBase* SoCopyMap::find(SoBase* object) const
{
    const auto found = m_copies.find(object);
    return found == m_copies.end() ? object : found->second;
}

void SoCopyMap::copyConnections() const
{
    for (const auto& [original, made] : m_order) {
        const std::vector<SoField*> from = original->getFields();
        const std::vector<SoField*> to = made->getFields();
        for (std::size_t i = 0; i < from.size() && i < to.size(); ++i) {
            if (SoEngineOutput* output = from[i]->getConnectedEngine()) {
                to[i]->connectFrom(output);
            } else if (SoField* source = from[i]->getConnectedField()) {
                SoFieldContainer* container = source->getContainer();
                auto* counterpart = static_cast<SoFieldContainer*>(find(container));
                to[i]->connectFrom(container == counterpart || !counterpart ? source
                                                                            : counterpart->getField(source->getName()));
            }
        }
    }
}
