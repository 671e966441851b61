#include <benchmark/benchmark.h>

#include <QApplication>

#include <bench/Compare.h>
#include <nodescope/tree/NodeSearch.h>
#include <nodescope/tree/SoNodescopeTreeView.h>
#include <nodescope/tree/SoTreeViewItem.h>

#include <vexel/io/SoDB.h>
#include <vexel/nodes/SoCube.h>
#include <vexel/nodes/SoSeparator.h>

namespace {

enum Shape { Flat, EightEach };

/** Cubes below a separator, or below groups of eight; each node has a name of its own. */
SoSeparator* makeGraph(int numNodes, Shape shape)
{
    auto* root = new SoSeparator;
    root->ref();
    root->enableNotify(false);
    std::vector<SoGroup*> groups{root};
    std::size_t parent = 0;
    for (int made = 1; made < numNodes; ++made) {
        while (shape == EightEach && groups[parent]->getNumChildren() == 8)
            ++parent;
        const bool isGroup = shape == EightEach && groups.size() * 8 < std::size_t(numNodes);
        SoNode* node = isGroup ? static_cast<SoNode*>(new SoGroup) : new SoCube;
        node->setName(SbName("Node_" + std::to_string(made)));
        groups[parent]->addChild(node);
        if (isGroup)
            groups.push_back(static_cast<SoGroup*>(node));
    }
    root->enableNotify(true);
    return root;
}

/** The worst case: a text that no row has, against one walk that compares names as pointers. */
void Find(benchmark::State& state)
{
    SoDB::init();
    SoSeparator* root = makeGraph(int(state.range(0)), Shape(state.range(2)));
    SoNodescopeTreeView view;
    view.reset(root);
    const SbName wanted("nowhere");
    int numFound = 0;
    const std::function<void(const SoTreeViewItem*)> walk = [&](const SoTreeViewItem* row) {
        numFound += row->node()->getName() == wanted;
        for (int i = 0; i < row->childCount(); ++i)
            walk(row->childRow(i));
    };
    compare(
        state, [&] { benchmark::DoNotOptimize(view.find(int(state.range(1)), QStringLiteral("nowhere"), 0)); },
        [&] { walk(static_cast<SoTreeViewItem*>(view.topLevelItem(0))); });
    benchmark::DoNotOptimize(numFound);
    view.reset(nullptr);
    root->unref();
}

BENCHMARK(Find)
    ->ArgsProduct({{10000, 1000000},
                   {NodeSearch::ByType, NodeSearch::ByName, NodeSearch::ByAddress, NodeSearch::ById},
                   {Flat, EightEach}})
    ->ArgNames({"rows", "column", "shape"})
    ->Iterations(1)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
