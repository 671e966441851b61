#include <benchmark/benchmark.h>

#include <bench/Compare.h>
#include <bench/nodescope/Graphs.h>
#include <nodescope/tree/NodeSearch.h>
#include <nodescope/tree/SoNodescopeTreeView.h>
#include <nodescope/tree/SoTreeViewItem.h>

#include <vexel/io/SoDB.h>

namespace {

/** The worst case: a text that no row has, against one walk that compares names as pointers. */
void Find(benchmark::State& state)
{
    SoDB::init();
    SoSeparator* root = makeGraph(int(state.range(0)), GraphShape(state.range(2)), GraphNames::OneEach);
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
                   {Flat, Eight_each}})
    ->ArgNames({"rows", "column", "shape"})
    ->Iterations(1)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

} // namespace
