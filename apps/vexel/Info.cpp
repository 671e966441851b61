#include "SceneFile.h"

#include <vexel/actions/SoGetBoundingBoxAction.h>
#include <vexel/actions/SoGetPrimitiveCountAction.h>
#include <vexel/fields/SoField.h>
#include <vexel/nodes/SoSeparator.h>
#include <vexel/nodes/SoUnknownNode.h>

#include <cinttypes>
#include <cstdio>
#include <map>
#include <string>
#include <unordered_map>

namespace {

/** Goes over all nodes of a graph, those in fields included, each once. */
class Census {
public:
    void visit(const SoNode& node, int depth)
    {
        m_depth = std::max(m_depth, depth);
        if (++m_places[&node] > 1)
            return;
        ++m_types[typeName(node)];
        for (const SoField* field : node.getFields()) {
            for (SoBase* base : field->getReferences()) {
                if (base && base->isOfType(SoNode::getClassTypeId()))
                    visit(*static_cast<SoNode*>(base), depth + 1);
            }
        }
        const SoChildList* children = node.getChildren();
        for (int i = 0; children && i < children->getLength(); ++i)
            visit(*(*children)[i], depth + 1);
    }

    void print() const
    {
        int shared = 0;
        for (const auto& [node, places] : m_places)
            shared += places > 1 ? 1 : 0;
        std::printf("nodes      %zu\nshared     %d\ndepth      %d\n", m_places.size(), shared, m_depth);
        for (const auto& [type, count] : m_types)
            std::printf("  %-24s %d\n", type.c_str(), count);
    }

private:
    static std::string typeName(const SoNode& node)
    {
        if (node.isOfType(SoUnknownNode::getClassTypeId()))
            return static_cast<const SoUnknownNode&>(node).getNodeTypeName() + " (unknown)";
        return node.getTypeId().getName().getString();
    }

    std::unordered_map<const SoNode*, int> m_places;
    std::map<std::string, int> m_types;
    int m_depth = 0;
};

} // namespace

int runInfo(const Arguments& arguments)
{
    if (arguments.size() != 1)
        return complain("info needs one file");
    const SceneFile file(arguments[0]);
    if (!file.root())
        return file.status();

    std::printf("file       %s\nformat     %s\n", arguments[0].c_str(), file.isBinary() ? "binary" : "ascii");
    Census census;
    census.visit(*file.root(), 1);
    SoGetPrimitiveCountAction count;
    count.apply(file.root());
    std::printf("triangles  %" PRId64 "\nlines      %" PRId64 "\npoints     %" PRId64 "\n", count.getTriangleCount(),
                count.getLineCount(), count.getPointCount());
    SoGetBoundingBoxAction boxAction{SbViewportRegion()};
    boxAction.apply(file.root());
    const SbBox3f& box = boxAction.getBoundingBox();
    if (box.isEmpty()) {
        std::puts("box        empty");
    } else {
        std::printf("box        %g %g %g  to  %g %g %g\n", double(box.getMin()[0]), double(box.getMin()[1]),
                    double(box.getMin()[2]), double(box.getMax()[0]), double(box.getMax()[1]), double(box.getMax()[2]));
    }
    census.print();
    return file.status();
}
