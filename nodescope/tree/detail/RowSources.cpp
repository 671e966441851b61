#include "RowSources.h"

#include <nodescope/tree/NodekitPart.h>

#include <vexel/base/SoPreferences.h>
#include <vexel/fields/SoMFNode.h>
#include <vexel/fields/SoMFUniformShaderParameter.h>
#include <vexel/fields/SoSFNode.h>
#include <vexel/nodekits/SoBaseKit.h>
#include <vexel/nodes/SoFile.h>
#include <vexel/nodes/SoGroup.h>
#include <vexel/nodes/SoUniformShaderParameter.h>
#include <vexel/nodes/SoUnknownNode.h>
#include <vexel/nodes/SoWWWInline.h>

#include <algorithm>
#include <deque>
#include <optional>
#include <vector>

namespace {

const bool Shows_internal_children = SoPreferences::getBool("NODESCOPE_SHOW_INTERNAL_CHILDREN", false);
const bool Shows_all_child_lists =
    SoPreferences::getBool("VXRU_LAUNCH_NODESCOPE", false) || SoPreferences::getBool("ART_LAUNCH_NODESCOPE", false);

std::vector<int> findNodeFields(const SoNode& node)
{
    std::vector<int> found;
    const SoFieldData& data = node.getFieldData();
    for (int i = 0; i < data.getNumFields(); ++i) {
        if (makesRows(*data.getField(&node, i)))
            found.push_back(i);
    }
    return found;
}

// The same for all nodes of a class, so it is found out once.
const std::vector<int>& knownNodeFields(const SoNode& node)
{
    static std::deque<std::optional<std::vector<int>>> known; // whose elements stay in place while it grows
    const std::size_t key = node.getTypeId().getKey();
    if (key >= known.size())
        known.resize(key + 1);
    if (!known[key])
        known[key] = findNodeFields(node);
    return *known[key];
}

} // namespace

bool makesRows(const SoField& field)
{
    const SoField::FieldType kind = field.getFieldType();
    if (kind == SoField::PRIVATE || kind == SoField::INTERNAL_PART || kind == SoField::INTERNAL)
        return false;
    const SoType type = field.getTypeId();
    return type == SoSFNode::getClassTypeId() || type == SoMFNode::getClassTypeId() ||
           type == SoMFUniformShaderParameter::getClassTypeId();
}

int firstChildRowSource(const SoNode& node)
{
    // The first child of an inline node belongs to the node itself.
    return !Shows_internal_children && node.isOfType(SoWWWInline::getClassTypeId()) ? 1 : 0;
}

int childRowSourceCount(const SoNode& node)
{
    const SoChildList* children = node.getChildren();
    if (!children)
        return 0;
    const bool showsChildren = Shows_internal_children || Shows_all_child_lists ||
                               node.isOfType(SoWWWInline::getClassTypeId()) ||
                               node.isOfType(SoGroup::getClassTypeId()) || node.isOfType(SoFile::getClassTypeId());
    return showsChildren ? std::max(children->getLength() - firstChildRowSource(node), 0) : 0;
}

bool hasRowSources(SoNode& node)
{
    if (childRowSourceCount(node) > 0)
        return true;
    bool hasAny = false;
    forEachRowSource(node, [&hasAny](SoNode&, SoField*) { hasAny = true; });
    return hasAny;
}

void forEachChildRowSource(SoNode& node, const std::function<void(SoNode&)>& visit)
{
    const int count = childRowSourceCount(node);
    const int first = firstChildRowSource(node);
    for (int i = 0; i < count; ++i)
        visit(*(*node.getChildren())[first + i]);
}

void forEachRowSource(SoNode& node, const std::function<void(SoNode&, SoField*)>& visit)
{
    forEachChildRowSource(node, [&visit](SoNode& child) { visit(child, nullptr); });

    std::vector<int> ownFields;
    if (node.isOfType(SoUnknownNode::getClassTypeId()))
        ownFields = findNodeFields(node); // each has fields of its own
    const std::vector<int>& fields = ownFields.empty() ? knownNodeFields(node) : ownFields;
    if (fields.empty())
        return;
    SoBaseKit* kit = node.isOfType(SoBaseKit::getClassTypeId()) ? static_cast<SoBaseKit*>(&node) : nullptr;
    const SoFieldData& data = node.getFieldData();
    for (const int index : fields) {
        SoField* field = data.getField(&node, index);
        for (SoBase* base : field->getReferences()) {
            if (!base)
                continue;
            auto& held = *static_cast<SoNode*>(base);
            // Nested parts are shown below the parts that they hang from; they and all behind them make no rows here.
            if (kit && NodekitPart(*kit, held).isNested())
                return;
            visit(held, field);
        }
    }
}
