#include <vexel/nodekits/SoBaseKit.h>

#include <algorithm>

#include <vexel/actions/SoAction.h>
#include <vexel/base/SbString.h>
#include <vexel/base/SoDebugError.h>
#include <vexel/io/detail/TextReader.h>
#include <vexel/nodekits/SoNodeKitListPart.h>
#include <vexel/nodekits/SoNodekitCatalog.h>
#include <vexel/nodekits/detail/PartName.h>
#include <vexel/nodes/SoCallback.h>
#include <vexel/nodes/SoEventCallback.h>
#include <vexel/nodes/SoSeparator.h>
#include <vexel/nodes/detail/SoCopyMap.h>

namespace {

SoBaseKit* asKit(SoNode* node)
{
    return node && node->isOfType(SoBaseKit::getClassTypeId()) ? static_cast<SoBaseKit*>(node) : nullptr;
}

SoNodeKitListPart* asList(SoNode* node)
{
    return node && node->isOfType(SoNodeKitListPart::getClassTypeId()) ? static_cast<SoNodeKitListPart*>(node)
                                                                       : nullptr;
}

// Answers whether a file would hold nothing of the node but its type.
bool holdsOnlyDefaults(const SoNode& node)
{
    if (!node.getName().isEmpty() || (node.hasFileChildren() && node.getChildren()->getLength() > 0))
        return false;
    for (const SoField* field : node.getFields()) {
        if (node.shouldWriteField(*field))
            return false;
    }
    return true;
}

} // namespace

const SoNodekitCatalog& SoBaseKit::getClassNodekitCatalog()
{
    static const SoNodekitCatalog catalog = [] {
        SoNodekitCatalog entries(getClassTypeId());
        SoNodekitCatalog::Entry list{"callbackList", SoNodeKitListPart::getClassTypeId(),
                                     SoNodeKitListPart::getClassTypeId()};
        list.isList = true;
        list.listContainerType = SoSeparator::getClassTypeId();
        list.listItemTypes = {SoCallback::getClassTypeId(), SoEventCallback::getClassTypeId()};
        entries.addEntry(list);
        return entries;
    }();
    return catalog;
}

SoSFNode* SoBaseKit::getPartField(int part) const
{
    SoField* field = part > 0 ? getField(getNodekitCatalog().getName(part)) : nullptr;
    return field && field->isOfType(SoSFNode::getClassTypeId()) ? static_cast<SoSFNode*>(field) : nullptr;
}

SoNode* SoBaseKit::makePart(int part)
{
    SoSFNode* field = getPartField(part);
    if (!field || field->getValue())
        return field ? field->getValue() : nullptr;
    auto* made = static_cast<SoNode*>(getNodekitCatalog().getDefaultType(part).createInstance());
    if (made)
        field->setValue(made);
    return made;
}

void SoBaseKit::makeDefaultParts()
{
    const SoNodekitCatalog& catalog = getNodekitCatalog();
    for (int part = 1; part < catalog.getNumEntries(); ++part) {
        if (catalog.isNullByDefault(part) || !getPartField(part))
            continue;
        makePart(part);
        getPartField(part)->setDefault(true);
    }
}

SoNode* SoBaseKit::getPart(const SbName& name, bool makeIfNeeded)
{
    const PartName path(name.getView());
    const SoNodekitCatalog& catalog = getNodekitCatalog();
    const int part = catalog.getPartNumber(path.first());
    if (part == 0)
        return this;
    if (part < 0 || !catalog.isPublic(part) || !getPartField(part))
        return nullptr;
    SoNode* node = makeIfNeeded ? makePart(part) : getPartField(part)->getValue();
    if (path.hasIndex()) {
        SoNodeKitListPart* list = asList(node);
        node = list ? list->getItem(path.index(), makeIfNeeded) : nullptr;
    }
    if (path.rest().isEmpty() || !node)
        return node;
    return asKit(node) ? asKit(node)->getPart(path.rest(), makeIfNeeded) : nullptr;
}

bool SoBaseKit::setPart(const SbName& name, SoNode* node)
{
    const PartName path(name.getView());
    if (!path.rest().isEmpty()) {
        SoBaseKit* kit = asKit(getPart(path.head(), true));
        return kit && kit->setPart(path.rest(), node);
    }
    const SoNodekitCatalog& catalog = getNodekitCatalog();
    const int part = catalog.getPartNumber(path.first());
    if (part <= 0 || !catalog.isPublic(part) || !getPartField(part))
        return false;
    if (path.hasIndex()) {
        SoNodeKitListPart* list = asList(makePart(part));
        return list && list->setItem(path.index(), node);
    }
    if (node && !node->isOfType(catalog.getType(part)))
        return false;
    getPartField(part)->setValue(node);
    return true;
}

SbString SoBaseKit::getPartString(const SoNode* node) const
{
    if (!node)
        return SbString();
    if (node == this)
        return SbString("this");
    const SoNodekitCatalog& catalog = getNodekitCatalog();
    for (int part = 1; part < catalog.getNumEntries(); ++part) {
        SoSFNode* field = getPartField(part);
        SoNode* value = field ? field->getValue() : nullptr;
        if (!value)
            continue;
        SbString name(catalog.getName(part));
        if (value == node)
            return name;
        if (const SoNodeKitListPart* list = asList(value)) {
            const SbString item = list->getItemString(node);
            if (!item.isEmpty())
                return name + item;
        } else if (const SoBaseKit* kit = asKit(value)) {
            const SbString below = kit->getPartString(node);
            if (!below.isEmpty())
                return name + SbString(".") + below;
        }
    }
    return SbString();
}

bool SoBaseKit::set(const SbString& text)
{
    const QByteArray bytes = text.toUtf8();
    TextReader reader(bytes.constData(), bytes.constData() + bytes.size());
    while (reader.peek()) {
        const char* start = reader.position();
        const char* brace = std::find(start, reader.end(), '{');
        // Without braces the rest is fields of the kit itself.
        if (brace == reader.end())
            return SoNode::set(SbString(std::string_view(start, static_cast<std::size_t>(brace - start))));
        std::string_view name(start, static_cast<std::size_t>(brace - start));
        while (!name.empty() && TextReader::isSpace(name.back()))
            name.remove_suffix(1);
        reader.setPosition(brace + 1);
        if (!reader.skipBlock('{', '}'))
            return false;
        const std::string_view fields(brace + 1, static_cast<std::size_t>(reader.position() - brace - 2));
        if (!set(SbName(name), SbString(fields)))
            return false;
    }
    return true;
}

bool SoBaseKit::set(const SbName& part, const SbString& fields)
{
    SoNode* node = getPart(part, true);
    return node && node->set(fields);
}

void SoBaseKit::doAction(SoAction& action)
{
    action.traverseChildren(m_children);
}

bool SoBaseKit::affectsState() const
{
    for (int i = 0; i < m_children.getLength(); ++i) {
        if (m_children[i]->affectsState())
            return true;
    }
    return false;
}

bool SoBaseKit::shouldWriteField(const SoField& field) const
{
    // What only holds other parts together is made again with them.
    const SoNodekitCatalog& catalog = getNodekitCatalog();
    const int part = catalog.getPartNumber(field.getName());
    return (part <= 0 || catalog.isLeaf(part)) && SoNode::shouldWriteField(field);
}

bool SoBaseKit::shouldWriteValue(const SoField& field) const
{
    const SoNodekitCatalog& catalog = getNodekitCatalog();
    const int part = catalog.getPartNumber(field.getName());
    if (part <= 0)
        return SoNode::shouldWriteValue(field);
    const SoNode* node = getPartField(part)->getValue();
    if (!node)
        return !catalog.isNullByDefault(part) && !field.isDefault();
    // An empty kit or list has no effect, while a plain node with defaults takes the place of what is in force.
    const bool hasEffect =
        catalog.isNullByDefault(part) && !node->isOfType(SoBaseKit::getClassTypeId()) && !catalog.isList(part);
    return hasEffect || node->getTypeId() != catalog.getDefaultType(part) || !holdsOnlyDefaults(*node);
}

void SoBaseKit::checkPart(int part)
{
    const SoNodekitCatalog& catalog = getNodekitCatalog();
    SoSFNode& field = *getPartField(part);
    SoNode* node = field.getValue();
    if (node && !node->isOfType(catalog.getType(part))) {
        SoDebugError::post("SoBaseKit", "a %s cannot be the part \"%s\" of a %s; the part is left out",
                           node->getTypeId().getName().getString(), catalog.getName(part).getString(),
                           getTypeId().getName().getString());
        field.setValue(nullptr);
    } else if (node && catalog.isList(part)) {
        static_cast<SoNodeKitListPart*>(node)->setTypes(catalog.getListContainerType(part),
                                                        catalog.getListItemTypes(part));
    }
}

void SoBaseKit::notify(SoNotList& list)
{
    // A change of a part's own fields comes through the part's field too, but needs no new arrangement.
    if (list.field && list.field->getContainer() == this && !m_isHeld) {
        const int part = getNodekitCatalog().getPartNumber(list.field->getName());
        if (part > 0 && getPartField(part) == list.field) {
            m_isHeld = true;
            checkPart(part);
            arrange();
            m_isHeld = false;
        }
    }
    SoNode::notify(list);
}

void SoBaseKit::arrange()
{
    arrangeBelow(0, m_children);
}

void SoBaseKit::arrangeBelow(int parent, SoChildList& children)
{
    const SoNodekitCatalog& catalog = getNodekitCatalog();
    std::vector<SoNode*> wanted;
    for (const int part : catalog.getPartsBelow(parent)) {
        SoSFNode* field = getPartField(part);
        if (!field)
            continue;
        if (!catalog.isLeaf(part)) {
            SoNode* group = makePart(part);
            field->setDefault(true);
            arrangeBelow(part, *group->getChildren());
        }
        if (field->getValue())
            wanted.push_back(field->getValue());
    }
    bool isRight = static_cast<int>(wanted.size()) == children.getLength();
    for (int i = 0; isRight && i < children.getLength(); ++i)
        isRight = children[i] == wanted[static_cast<std::size_t>(i)];
    if (!isRight)
        children.assign(wanted);
}

void SoBaseKit::copyContents(const SoNode& from, SoCopyMap& copies)
{
    m_isHeld = true;
    // A part that the kit made by itself counts as default whatever it holds, so it is taken over in any case.
    const auto& source = static_cast<const SoBaseKit&>(from);
    for (int part = 1; part < getNodekitCatalog().getNumEntries(); ++part) {
        if (SoSFNode* field = getPartField(part)) {
            field->copyFrom(*source.getPartField(part));
            field->setDefault(source.getPartField(part)->isDefault());
        }
    }
    SoNode::copyContents(from, copies);
    m_isHeld = false;
}
