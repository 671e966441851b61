#include "RandomGraph.h"

#include <vexel/nodekits/SoNodeKitListPart.h>
#include <vexel/nodekits/SoSeparatorKit.h>
#include <vexel/nodekits/SoShapeKit.h>
#include <vexel/nodes/SoCone.h>
#include <vexel/nodes/SoCube.h>
#include <vexel/nodes/SoFile.h>
#include <vexel/nodes/SoGroup.h>
#include <vexel/nodes/SoIndexedFaceSet.h>
#include <vexel/nodes/SoMaterial.h>
#include <vexel/nodes/SoSwitch.h>
#include <vexel/nodes/SoVertexProperty.h>

#include <algorithm>

namespace {

constexpr int Most_nodes = 150; ///< beyond that, changes rather take away

bool isGroup(const SoNode* node)
{
    return node->isOfType(SoGroup::getClassTypeId());
}

void collect(SoNode& node, std::vector<SoNode*>& found)
{
    if (std::find(found.begin(), found.end(), &node) != found.end())
        return;
    found.push_back(&node);
    if (isGroup(&node)) {
        for (int i = 0; i < static_cast<SoGroup&>(node).getNumChildren(); ++i)
            collect(*static_cast<SoGroup&>(node).getChild(i), found);
    }
}

bool leadsTo(SoNode& from, const SoNode& to)
{
    std::vector<SoNode*> below;
    collect(from, below);
    return std::find(below.begin(), below.end(), &to) != below.end();
}

} // namespace

SoNode* RandomGraph::makeLeaf()
{
    switch (below(6)) {
    case 0:
        return new SoMaterial;
    case 1:
        return new SoIndexedFaceSet;
    case 2:
        return new SoFile;
    case 3:
        return new SoShapeKit;
    case 4:
        return new SoSeparatorKit;
    default:
        return new SoCube;
    }
}

SoNode* RandomGraph::makeNode()
{
    if (below(5) > 1)
        return makeLeaf();
    auto* group = below(2) == 0 ? new SoSeparator : static_cast<SoGroup*>(new SoSwitch);
    for (int i = below(4); i > 0; --i)
        group->addChild(makeLeaf());
    return group;
}

SoSeparator* RandomGraph::make(int nodes)
{
    auto* root = new SoSeparator;
    root->ref();
    for (int i = 0; i < nodes; ++i)
        change(*root);
    root->unrefNoDelete();
    return root;
}

std::vector<SoNode*> RandomGraph::nodesBelow(SoNode& root) const
{
    std::vector<SoNode*> found;
    collect(root, found);
    return found;
}

void RandomGraph::change(SoSeparator& root)
{
    const std::vector<SoNode*> all = nodesBelow(root);
    SoNode& node = *all[std::size_t(below(int(all.size())))];
    if (isGroup(&node)) {
        changeChildren(static_cast<SoGroup&>(node), all);
    } else if (node.isOfType(SoBaseKit::getClassTypeId())) {
        changeKit(static_cast<SoBaseKit&>(node));
    } else if (node.isOfType(SoIndexedFaceSet::getClassTypeId())) {
        auto& faces = static_cast<SoIndexedFaceSet&>(node);
        faces.vertexProperty = faces.vertexProperty.getValue() ? nullptr : new SoVertexProperty;
    } else if (node.isOfType(SoFile::getClassTypeId())) {
        if (node.getChildren()->getLength() > 2)
            node.getChildren()->truncate();
        else
            node.getChildren()->append(makeNode());
        node.touch();
    } else {
        node.touch();
    }
}

void RandomGraph::changeChildren(SoGroup& group, const std::vector<SoNode*>& all)
{
    const int count = group.getNumChildren();
    const bool isFull = int(all.size()) > Most_nodes;
    switch (below(isFull ? 4 : 8)) {
    case 0:
        if (below(20) == 0)
            group.removeAllChildren();
        break;
    case 1:
    case 2:
        if (count > 0)
            group.removeChild(below(count));
        break;
    case 3:
        if (count > 0)
            group.replaceChild(below(count), makeNode());
        break;
    case 4: {
        SoNode& shared = *all[std::size_t(below(int(all.size())))];
        if (!leadsTo(shared, group))
            group.insertChild(&shared, below(count + 1));
        break;
    }
    case 5:
        group.insertChild(makeNode(), below(count + 1));
        break;
    default:
        group.addChild(makeNode());
        break;
    }
}

void RandomGraph::changeKit(SoBaseKit& kit)
{
    if (kit.isOfType(SoShapeKit::getClassTypeId())) {
        if (below(2) == 0)
            kit.setPart("shape", below(2) == 0 ? nullptr : new SoCone);
        else if (below(2) == 0)
            kit.getPart("appearance.material", true);
        else
            kit.setPart("appearance", nullptr);
        return;
    }
    if (!kit.isOfType(SoSeparatorKit::getClassTypeId()))
        return; // a part of another kit, which was pasted among the children
    auto* list = static_cast<SoNodeKitListPart*>(kit.getPart("childList", true));
    const int count = list->getNumChildren();
    if (count > 0 && below(2) == 0)
        list->removeChild(below(count));
    else
        list->insertChild(new SoShapeKit, below(count + 1));
}
