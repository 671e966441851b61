#include "SceneView.h"

#include <random>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include <vexel/actions/detail/CompiledScene.h>
#include <vexel/base/SbString.h>
#include <vexel/base/SoPath.h>
#include <vexel/nodes/SoBaseColor.h>
#include <vexel/nodes/SoCoordinate3.h>
#include <vexel/nodes/SoCube.h>
#include <vexel/nodes/SoDepthBuffer.h>
#include <vexel/nodes/SoFaceSet.h>
#include <vexel/nodes/SoGroup.h>
#include <vexel/nodes/SoMaterial.h>
#include <vexel/nodes/SoSeparator.h>
#include <vexel/nodes/SoSwitch.h>
#include <vexel/nodes/SoTranslation.h>

namespace {

/** Edits a graph at random, with nodes shared and moved about. */
class RandomEdits {
public:
    RandomEdits(SoSeparator* root, unsigned seed) : m_random(seed), m_groups{root}
    {
        root->ref();
        for (int i = 0; i < 12; ++i)
            keep(makeNode());
    }
    ~RandomEdits()
    {
        for (SoNode* node : m_nodes)
            node->unref();
        m_groups[0]->unref();
    }

    void edit()
    {
        // Mostly the first ones, so that the graph becomes deep and full.
        SoGroup* group = m_groups[below(below(3) ? std::min<std::size_t>(m_groups.size(), 4) : m_groups.size())];
        const int num = group->getNumChildren();
        // The camera and the light model at the front of the root stay.
        const int first = group == m_groups[0] ? 2 : 0;
        switch (below(10)) {
        case 0:
        case 1:
        case 2:
        case 3:
            insert(*group, first + int(below(std::size_t(num - first + 1))));
            break;
        case 4:
            if (num > first)
                group->removeChild(first + int(below(std::size_t(num - first))));
            break;
        case 5:
            if (num > first)
                group->replaceChild(first + int(below(std::size_t(num - first))), leaf());
            break;
        default:
            change(*m_nodes[below(m_nodes.size())]);
        }
    }

private:
    std::size_t below(std::size_t limit) { return std::uniform_int_distribution<std::size_t>(0, limit - 1)(m_random); }
    float real(float limit) { return std::uniform_real_distribution<float>(-limit, limit)(m_random); }

    SoNode* makeNode()
    {
        switch (below(10)) {
        case 0:
            return new SoMaterial;
        case 1:
            return new SoBaseColor;
        case 2:
            return new SoTranslation;
        case 3:
            return new SoSeparator;
        case 4:
            return new SoGroup;
        case 5:
            return new SoSwitch;
        case 6:
            return new SoCoordinate3;
        default:
            return new SoCube;
        }
    }

    void keep(SoNode* node)
    {
        node->ref();
        m_nodes.push_back(node);
        change(*node);
        if (node->isOfType(SoGroup::getClassTypeId()))
            m_groups.push_back(static_cast<SoGroup*>(node));
    }

    SoNode* leaf()
    {
        SoNode* node = below(2) ? static_cast<SoNode*>(new SoCube) : new SoBaseColor;
        keep(node);
        return node;
    }

    // Groups only come into groups that were made before, so that no graph contains itself.
    void insert(SoGroup& group, int index)
    {
        if (below(3) == 0) {
            SoNode* node = makeNode();
            keep(node);
            group.insertChild(node, index);
            return;
        }
        SoNode* node = m_nodes[below(m_nodes.size())];
        if (!node->isOfType(SoGroup::getClassTypeId()) || node->getNodeId() > group.getNodeId())
            group.insertChild(node, index);
    }

    void change(SoNode& node)
    {
        if (node.isOfType(SoCube::getClassTypeId())) {
            static_cast<SoCube&>(node).width = 0.2f + real(0.1f);
            static_cast<SoCube&>(node).height = 0.2f + real(0.1f);
            static_cast<SoCube&>(node).depth = 1 + real(0.5f);
        } else if (node.isOfType(SoBaseColor::getClassTypeId())) {
            static_cast<SoBaseColor&>(node).rgb = SbColor(0.5f + real(0.5f), 0.5f + real(0.5f), 0.5f + real(0.5f));
        } else if (node.isOfType(SoTranslation::getClassTypeId())) {
            static_cast<SoTranslation&>(node).translation = SbVec3f(real(0.5f), real(0.5f), real(0.2f));
        } else if (node.isOfType(SoSwitch::getClassTypeId())) {
            static_cast<SoSwitch&>(node).whichChild = int(below(4)) - 1;
        }
    }

    std::mt19937 m_random;
    std::vector<SoGroup*> m_groups;
    std::vector<SoNode*> m_nodes;
};

using ChangeTracking = SceneView;

// What is drawn, one text for each place of a shape.
std::multiset<std::string> contents(vexel::CompiledScene& scene)
{
    std::multiset<std::string> result;
    vexel::SceneTree& tree = scene.tree();
    tree.forEachShape([&](std::uint32_t index, const vexel::SceneShape& shape) {
        SoPath* path = tree.pathOf(index);
        path->ref();
        std::ostringstream text;
        for (int i = 1; i < path->getFullLength(); ++i)
            text << path->getIndex(i) << '/';
        path->unref();
        const vexel::Bounds box = tree.drawList().bounds(shape.packets[0]);
        text << " box " << box.lo[0] << ' ' << box.lo[1] << ' ' << box.hi[0] << ' ' << box.hi[1];
        for (int i = 0; i < 3; ++i)
            text << ' ' << shape.material.diffuse[i];
        result.insert(text.str());
    });
    EXPECT_EQ(result.size(), tree.drawList().size());
    return result;
}

TEST_F(ChangeTracking, AfterRandomEditsTheSceneIsThatOfAFreshStart)
{
    std::size_t numShapes = 0;
    for (unsigned seed = 1; seed <= 40; ++seed) {
        read("");
        RandomEdits edits(root, seed);
        vexel::CompiledScene kept(*root);
        for (int step = 0; step < 200; ++step) {
            edits.edit();
            if (step % 3 == 0)
                continue;
            kept.update(region);
            vexel::CompiledScene fresh(*root);
            fresh.update(region);
            const auto expected = contents(fresh);
            numShapes = std::max(numShapes, expected.size());
            ASSERT_EQ(expected, contents(kept)) << "seed " << seed << ", step " << step;
        }
    }
    EXPECT_GT(numShapes, 20u);
}

TEST_F(ChangeTracking, APropertyConcernsOnlyWhatStandsBehindIt)
{
    std::string nodes;
    for (int i = 0; i < 200; ++i)
        nodes += "Separator { Cube { width 0.2 height 0.2 } }";
    read((nodes + "BaseColor { rgb 1 0 0 } Translation { translation 0.5 0 0 } Separator { Cube { width 0.2 } }")
             .c_str());
    vexel::CompiledScene scene(*root);
    scene.update(region);
    EXPECT_GT(scene.compiler().numVisits(), 400);
    static_cast<SoBaseColor*>(root->getChild(202))->rgb = SbColor(0, 1, 0);
    scene.update(region);
    // The children of the root and the shape behind the property, but none of the shapes before it.
    EXPECT_LT(scene.compiler().numVisits(), 210);
    vexel::CompiledScene fresh(*root);
    fresh.update(region);
    EXPECT_EQ(contents(fresh), contents(scene));
}

/** Seeds are in the names of the tests, so that one that failed can be run again alone. */
class PicturesAfterEdits : public SceneView, public testing::WithParamInterface<unsigned> {};

TEST_P(PicturesAfterEdits, AreThoseOfAFreshStart)
{
    RandomEdits edits(root, GetParam());
    SoGLRenderAction freshAction(region);
    // A picture of the same graph in a list of its own. Surfaces at the same depth hide each other in any order, so
    // pixels only count where the first one drawn and the last one drawn look alike.
    const auto fresh = [&](const char* function) {
        auto* view = new SoSeparator;
        view->ref();
        auto* depth = new SoDepthBuffer;
        depth->function.set(SbString(function));
        view->addChild(depth);
        view->addChild(root);
        const QImage picture = draw(freshAction, view);
        view->unref();
        return picture;
    };
    int numCompared = 0;
    int numSeen = 0;
    for (int step = 0; step < 150; ++step) {
        edits.edit();
        if (step % 3 == 0)
            continue;
        const QImage kept = draw();
        const QImage first = fresh("LESS");
        const QImage last = fresh("LEQUAL");
        for (int i = 0; i < Size * Size; ++i) {
            const QRgb expected = first.pixel(i % Size, i / Size);
            if (expected != last.pixel(i % Size, i / Size))
                continue;
            ++numCompared;
            numSeen += (expected & 0xffffff) != 0;
            ASSERT_EQ(expected, kept.pixel(i % Size, i / Size))
                << "seed " << GetParam() << ", step " << step << ", pixel " << i % Size << ' ' << i / Size;
        }
    }
    EXPECT_GT(numCompared, 99 * Size * Size * 3 / 4);
    EXPECT_GT(numSeen, 0);
    freshAction.releaseGraphics();
}

INSTANTIATE_TEST_SUITE_P(Seed, PicturesAfterEdits, testing::Range(1u, 21u), testing::PrintToStringParamName());

TEST_F(ChangeTracking, AColorOfManyShapesReachesAllPlaces)
{
    read("DEF Shared Separator { BaseColor { rgb 1 0 0 } Cube { width 0.4 height 0.4 } }"
         "Translation { translation 0.6 0 0 } USE Shared");
    EXPECT_COLOR(at(0.6f, 0), 255, 0, 0);
    auto* shared = static_cast<SoSeparator*>(root->getChild(2));
    static_cast<SoBaseColor*>(shared->getChild(0))->rgb = SbColor(0, 1, 0);
    const QImage picture = draw();
    EXPECT_COLOR(pixel(picture, 0, 0), 0, 255, 0);
    EXPECT_COLOR(pixel(picture, 0.6f, 0), 0, 255, 0);
}

TEST_F(ChangeTracking, CoordinatesAndVertexPropertiesChangeTheirShapes)
{
    read("BaseColor { rgb 1 0 0 } FaceSet { vertexProperty VertexProperty { vertex [-1 -1 0, 0 -1 0, -1 1 0] }"
         " numVertices 3 }");
    EXPECT_COLOR(at(0.8f, -0.9f), 0, 0, 0);
    auto* faces = static_cast<SoFaceSet*>(root->getChild(3));
    faces->vertexProperty.getValue()->set(SbString("vertex [-1 -1 0, 1 -1 0, 1 1 0]"));
    EXPECT_COLOR(at(0.8f, -0.9f), 255, 0, 0);
}

} // namespace
