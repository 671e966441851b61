#include <benchmark/benchmark.h>

#include <functional>
#include <malloc.h>

#include <QTreeWidget>

#include <bench/Compare.h>
#include <bench/nodescope/Graphs.h>
#include <nodescope/tree/SoNodescopeTreeView.h>
#include <nodescope/tree/SoTreeViewItem.h>

#include <vexel/io/SoDB.h>

namespace {

/** The least that a row can be. */
class BareItem : public QTreeWidgetItem {
public:
    explicit BareItem(SoNode* node) : m_node(node) {}
    QVariant data(int column, int role) const override
    {
        if (role == Qt::DisplayRole && column == 0)
            return QString::fromLatin1(m_node->getTypeId().getName().getString());
        return QTreeWidgetItem::data(column, role);
    }

private:
    SoNode* m_node;
};

BareItem* makeBareRow(SoNode* node)
{
    auto* item = new BareItem(node);
    if (const SoChildList* children = node->getChildren()) {
        for (int i = 0; i < children->getLength(); ++i)
            item->addChild(makeBareRow((*children)[i]));
    }
    return item;
}

void buildBareRows(QTreeWidget& view, SoNode* root)
{
    view.clear();
    view.addTopLevelItem(makeBareRow(root));
}

void BuildRows(benchmark::State& state)
{
    SoDB::init();
    const int numRows = int(state.range(0));
    SoSeparator* root = makeGraph(numRows, GraphShape(state.range(1)));
    SoNodescopeTreeView view;
    QTreeWidget bare;
    bare.setColumnCount(5);
    // Clearing belongs to neither.
    compare(
        state, [&] { view.reset(root); }, [&] { bare.addTopLevelItem(makeBareRow(root)); },
        [&] {
            bare.clear();
            view.reset(nullptr);
        });
    state.counters["ns_per_row"] = state.counters["ours_ms"] * 1e6 / numRows;
    view.reset(nullptr);
    root->unref();
}

/** Bytes that the process holds more of after the work. */
std::size_t bytesTakenBy(const std::function<void()>& work)
{
    const auto inUse = [] {
        const struct mallinfo2 info = mallinfo2();
        return info.uordblks + info.hblkhd;
    };
    const std::size_t before = inUse();
    work();
    return inUse() - before;
}

void RowMemory(benchmark::State& state)
{
    SoDB::init();
    const int numRows = int(state.range(0));
    SoSeparator* root = makeGraph(numRows, GraphShape(state.range(1)));
    SoNodescopeTreeView view;
    QTreeWidget bare;
    bare.setColumnCount(5);
    for (auto _ : state) {
        const auto ours = double(bytesTakenBy([&] { view.reset(root); })) / numRows;
        const auto baseline = double(bytesTakenBy([&] {
                                  buildBareRows(bare, root);
                                  // Ours shows the rows below the first one at once.
                                  bare.expandItem(bare.topLevelItem(0));
                                  bare.visualItemRect(bare.topLevelItem(0));
                              })) /
                              numRows;
        state.counters["ratio"] = ours / baseline;
        state.counters["bytes_per_row"] = ours;
        state.counters["baseline_bytes_per_row"] = baseline;
    }
    view.reset(nullptr);
    root->unref();
}

void ExpandAll(benchmark::State& state)
{
    SoDB::init();
    const int numRows = int(state.range(0));
    SoSeparator* root = makeGraph(numRows, GraphShape(state.range(1)));
    SoNodescopeTreeView view;
    view.reset(root);
    QTreeWidget bare;
    buildBareRows(bare, root);
    compare(
        state,
        [&] {
            view.collapseAll();
            view.expandBelow(view.topLevelItem(0));
        },
        [&] {
            bare.collapseAll();
            bare.expandAll();
        });
    view.reset(nullptr);
    root->unref();
}

/** Hiding half of the rows and showing them again, against one walk with a virtual call for each row. */
void ChangeFilter(benchmark::State& state)
{
    SoDB::init();
    const int numRows = int(state.range(0));
    SoSeparator* root = makeGraph(numRows, Eight_each);
    SoNodescopeTreeView view;
    view.reset(root);
    std::int64_t seen = 0;
    const std::function<void(SoTreeViewItem*)> walk = [&](SoTreeViewItem* row) {
        seen += row->node()->getTypeId().getKey();
        for (int i = 0; i < row->childCount(); ++i)
            walk(row->childRow(i));
    };
    compare(
        state,
        [&] {
            view.setFilter(Nsc::All_categories & ~Nsc::Camera);
            view.setFilter(Nsc::All_categories);
        },
        [&] { walk(static_cast<SoTreeViewItem*>(view.topLevelItem(0))); });
    benchmark::DoNotOptimize(seen);
    state.counters["hide_groups_s"] = secondsOf([&] { view.setFilter(Nsc::All_categories & ~Nsc::Group); });
    state.counters["show_groups_s"] = secondsOf([&] { view.setFilter(Nsc::All_categories); });
    view.reset(nullptr);
    root->unref();
}

BENCHMARK(BuildRows)
    ->ArgsProduct({{10000, 100000, 1000000}, {0, 1}})
    ->ArgNames({"rows", "flat"})
    ->Iterations(1)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(RowMemory)
    ->ArgsProduct({{10000, 1000000}, {0, 1}})
    ->ArgNames({"rows", "flat"})
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(ExpandAll)
    ->ArgsProduct({{1000000}, {0, 1}})
    ->ArgNames({"rows", "flat"})
    ->Iterations(1)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(ChangeFilter)->Arg(1000000)->ArgName("rows")->Iterations(1)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace
