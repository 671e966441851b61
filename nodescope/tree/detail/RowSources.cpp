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

#include <vector>

namespace {

const bool Shows_internal_children = SoPreferences::getBool("NODESCOPE_SHOW_INTERNAL_CHILDREN", false);
const bool Shows_all_child_lists =
    SoPreferences::getBool("VXRU_LAUNCH_NODESCOPE", false) || SoPreferences::getBool("ART_LAUNCH_NODESCOPE", false);

bool holdsNodes(const SoField& field)
{
    const SoField::FieldType kind = field.getFieldType();
    if (kind == SoField::PRIVATE || kind == SoField::INTERNAL_PART || kind == SoField::INTERNAL)
        return false;
    const SoType type = field.getTypeId();
    return type == SoSFNode::getClassTypeId() || type == SoMFNode::getClassTypeId() ||
           type == SoMFUniformShaderParameter::getClassTypeId();
}

// Which fields of a node hold nodes: the same for all nodes of a class, so it is found out once.
const std::vector<int>& nodeFields(const SoNode& node)
{
    static std::vector<std::vector<int>> known;
    static std::vector<bool> isKnown;
    const std::size_t key = node.getTypeId().getKey();
    if (key >= known.size()) {
        known.resize(key + 1);
        isKnown.resize(key + 1);
    }
    const bool ownFields = node.isOfType(SoUnknownNode::getClassTypeId());
    if (!isKnown[key] || ownFields) {
        known[key].clear();
        const SoFieldData& data = node.getFieldData();
        for (int i = 0; i < data.getNumFields(); ++i) {
            if (holdsNodes(*data.getField(&node, i)))
                known[key].push_back(i);
        }
        isKnown[key] = true;
    }
    return known[key];
}

} // namespace

void forEachChildRowSource(SoNode& node, const std::function<void(SoNode&)>& visit)
{
    const SoChildList* children = node.getChildren();
    if (!children)
        return;
    const bool isInline = node.isOfType(SoWWWInline::getClassTypeId());
    const bool showsChildren = Shows_internal_children || Shows_all_child_lists || isInline ||
                               node.isOfType(SoGroup::getClassTypeId()) || node.isOfType(SoFile::getClassTypeId());
    if (!showsChildren)
        return;
    // The first child of an inline node belongs to the node itself.
    for (int i = isInline && !Shows_internal_children ? 1 : 0; i < children->getLength(); ++i)
        visit(*(*children)[i]);
}

void forEachRowSource(SoNode& node, const std::function<void(SoNode&, SoField*)>& visit)
{
    forEachChildRowSource(node, [&visit](SoNode& child) { visit(child, nullptr); });

    const std::vector<int> fields = nodeFields(node);
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
            if (kit && NodekitPart::isNested(kit, &held))
                return;
            visit(held, field);
        }
    }
}
