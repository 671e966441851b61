#include <benchmark/benchmark.h>

#include <QApplication>
#include <QTreeWidget>

#include <bench/Compare.h>
#include <bench/nodescope/Graphs.h>
#include <nodescope/tree/SoNodescopeTreeView.h>
#include <nodescope/tree/SoTreeViewItem.h>

#include <vexel/io/SoDB.h>
#include <vexel/nodes/SoCube.h>
#include <vexel/nodes/SoMaterial.h>
#include <vexel/nodes/SoSelection.h>
#include <vexel/nodes/SoSeparator.h>

#include <vector>

namespace {

enum Place { Front, Middle, End };
enum class Rows { Collapsed, Expanded };

int placeAmong(int count, std::int64_t place)
{
    return place == Front ? 0 : place == Middle ? count / 2 : count;
}

/** Groups of nodes in the tree view, the same groups where nobody watches them, and as many items in a bare widget. */
class LiveTrees {
public:
    LiveTrees(int numGroups, int numChildren, Rows rows, bool isShared = false) : m_numChildren(numChildren)
    {
        SoDB::init();
        m_root->ref();
        m_unwatched->ref();
        auto* const scene = new SoSeparator;
        for (int i = 0; i < numGroups; ++i) {
            if (i == 0 || !isShared) {
                groups.push_back(makeGroup());
                unwatchedGroups.push_back(makeGroup());
            }
            scene->addChild(groups.back());
            m_unwatched->addChild(unwatchedGroups.back());
            items.push_back(new QTreeWidgetItem);
            for (int child = 0; child < numChildren; ++child)
                items.back()->addChild(new QTreeWidgetItem);
        }
        m_view.setSceneGraph(m_root);
        m_root->addChild(scene);

        m_bare.setColumnCount(SoTreeViewItem::ColumnCount);
        m_bare.setUniformRowHeights(true);
        auto* const top = new QTreeWidgetItem(&m_bare);
        for (QTreeWidgetItem* item : items)
            top->addChild(item);
        m_bare.expandItem(top);
        if (rows == Rows::Expanded) {
            m_view.topLevelItem(0)->child(0)->setExpanded(true);
            m_bare.expandItem(items[0]);
        }
        for (QTreeWidget* tree : {static_cast<QTreeWidget*>(&m_view), &m_bare}) {
            tree->resize(500, 700);
            tree->show();
        }
        settle();
    }
    ~LiveTrees()
    {
        m_view.setSceneGraph(nullptr);
        m_view.reset(nullptr);
        m_root->unref();
        m_unwatched->unref();
    }
    LiveTrees(const LiveTrees&) = delete;
    LiveTrees& operator=(const LiveTrees&) = delete;

    /** Layout and painting. */
    static void settle()
    {
        QApplication::sendPostedEvents();
        QApplication::processEvents();
    }
    /** Brings everything back to the number of children that it had, plus some. */
    void balance(int more = 0) const
    {
        const int wanted = m_numChildren + more;
        for (const auto* each : {&groups, &unwatchedGroups}) {
            for (SoGroup* group : *each)
                fill(*group, wanted);
        }
        for (QTreeWidgetItem* item : items) {
            while (item->childCount() > wanted)
                delete item->takeChild(item->childCount() - 1);
            while (item->childCount() < wanted)
                item->addChild(new QTreeWidgetItem);
        }
        settle();
    }

    std::vector<SoGroup*> groups;
    std::vector<SoGroup*> unwatchedGroups;
    std::vector<QTreeWidgetItem*> items;

private:
    SoGroup* makeGroup() const
    {
        auto* const group = new SoGroup;
        fill(*group, m_numChildren);
        return group;
    }
    static void fill(SoGroup& group, int wanted)
    {
        while (group.getNumChildren() > wanted)
            group.removeChild(group.getNumChildren() - 1);
        while (group.getNumChildren() < wanted)
            group.addChild(new SoCube);
    }

    int m_numChildren;
    SoSelection* m_root = new SoSelection;
    SoSeparator* m_unwatched = new SoSeparator;
    SoNodescopeTreeView m_view;
    QTreeWidget m_bare;
};

constexpr int Changes_in_a_turn = 100;

/** Children more at one place, one after the other, or one with the event pass that shows it. */
void Insert(benchmark::State& state, Rows rows, bool isShown)
{
    const LiveTrees trees(1, int(state.range(0)), rows);
    const int place = placeAmong(int(state.range(0)), state.range(1));
    const int count = isShown ? 1 : Changes_in_a_turn;
    compare(
        state,
        [&] {
            for (int i = 0; i < count; ++i)
                trees.groups[0]->insertChild(new SoCube, place);
            if (isShown)
                LiveTrees::settle();
        },
        [&] {
            for (int i = 0; i < count; ++i) {
                trees.unwatchedGroups[0]->insertChild(new SoCube, place);
                trees.items[0]->insertChild(place, new QTreeWidgetItem);
            }
            if (isShown)
                LiveTrees::settle();
        },
        [&] { trees.balance(); });
    state.counters["us_a_change"] = state.counters["ours_ms"] * 1e3 / count;
}

void Remove(benchmark::State& state, Rows rows, bool isShown)
{
    const LiveTrees trees(1, int(state.range(0)), rows);
    const int count = isShown ? 1 : Changes_in_a_turn;
    const int place = placeAmong(int(state.range(0)) - count, state.range(1));
    compare(
        state,
        [&] {
            for (int i = 0; i < count; ++i)
                trees.groups[0]->removeChild(place);
            if (isShown)
                LiveTrees::settle();
        },
        [&] {
            for (int i = 0; i < count; ++i) {
                trees.unwatchedGroups[0]->removeChild(place);
                delete trees.items[0]->takeChild(place);
            }
            if (isShown)
                LiveTrees::settle();
        },
        [&] { trees.balance(); });
    state.counters["us_a_change"] = state.counters["ours_ms"] * 1e3 / count;
}

/** A thousand children at the end of a group on screen, in one turn, against one. */
void AppendThousand(benchmark::State& state)
{
    const LiveTrees trees(1, int(state.range(0)), Rows::Expanded);
    const auto append = [&](int count) {
        for (int i = 0; i < count; ++i)
            trees.groups[0]->addChild(new SoCube);
        LiveTrees::settle();
    };
    compare(
        state, [&] { append(1000); }, [&] { append(1); }, [&] { trees.balance(); });
}

void RemoveThousand(benchmark::State& state)
{
    const LiveTrees trees(1, int(state.range(0)), Rows::Expanded);
    const auto remove = [&](int count) {
        for (int i = 0; i < count; ++i)
            trees.groups[0]->removeChild(trees.groups[0]->getNumChildren() - 1);
        LiveTrees::settle();
    };
    compare(
        state, [&] { remove(1000); }, [&] { remove(1); }, [&] { trees.balance(1000); });
}

/** A child for each of many groups, or for one that stands in all the places, before any event passes. */
void InsertInMany(benchmark::State& state, bool isShared)
{
    const LiveTrees trees(int(state.range(0)), 8, Rows::Collapsed, isShared);
    compare(
        state,
        [&] {
            for (SoGroup* group : trees.groups)
                group->insertChild(new SoCube, 0);
            LiveTrees::settle();
        },
        [&] {
            for (SoGroup* group : trees.unwatchedGroups)
                group->insertChild(new SoCube, 0);
            for (QTreeWidgetItem* item : trees.items)
                item->insertChild(0, new QTreeWidgetItem);
            LiveTrees::settle();
        },
        [&] { trees.balance(); });
}

/** The first change of a graph that was just shown, when the rows of each node are looked up for the first time. */
void FirstChange(benchmark::State& state)
{
    SoDB::init();
    auto* const root = new SoSelection;
    root->ref();
    SoSeparator* const scene = makeGraph(int(state.range(0)), Eight_each);
    root->addChild(scene);
    SoNodescopeTreeView view;
    view.setSceneGraph(root);
    compare(
        state,
        [&] {
            scene->addChild(new SoCube);
            scene->removeChild(scene->getNumChildren() - 1);
        },
        [&] { view.reset(scene); }, [&] { view.reset(scene); });
    view.setSceneGraph(nullptr);
    view.reset(nullptr);
    scene->unref();
    root->unref();
}

/** What a host does in a second: sixty turns with a thousand changes of fields and a hundred of children in all. */
void HostSecond(benchmark::State& state)
{
    SoDB::init();
    auto* const root = new SoSelection;
    root->ref();
    auto* const scene = new SoSeparator;
    std::vector<SoSeparator*> objects;
    std::vector<SoMaterial*> materials;
    for (int i = 0; i < 10000; ++i) {
        objects.push_back(new SoSeparator);
        materials.push_back(new SoMaterial);
        objects.back()->addChild(materials.back());
        objects.back()->addChild(new SoCube);
        scene->addChild(objects.back());
    }
    root->addChild(scene);
    SoNodescopeTreeView view;
    view.resize(500, 700);
    view.reset(scene);
    view.collapseAll();
    view.show();
    LiveTrees::settle();

    float shade = 0;
    const auto second = [&] {
        std::size_t object = 0;
        const auto next = [&] { return object = (object + 97) % objects.size(); };
        for (int turn = 0; turn < 60; ++turn) {
            for (int i = 0; i < 17; ++i)
                materials[next()]->transparency.setValue(shade += 1e-6F);
            for (int i = 0; i < 2; ++i) {
                SoSeparator* const changed = objects[next()];
                if (changed->getNumChildren() == 2)
                    changed->addChild(new SoCube);
                else
                    changed->removeChild(2);
            }
            LiveTrees::settle();
        }
    };
    compare(
        state,
        [&] {
            view.setSceneGraph(root);
            second();
        },
        second,
        [&] {
            view.setSceneGraph(nullptr);
            for (SoSeparator* changed : objects) {
                if (changed->getNumChildren() == 3)
                    changed->removeChild(2);
            }
        });
    state.counters["percent_of_a_second"] = (state.counters["ours_ms"] - state.counters["baseline_ms"]) / 10;
    view.setSceneGraph(nullptr);
    view.reset(nullptr);
    root->unref();
}

void once(benchmark::internal::Benchmark* bench)
{
    bench->Iterations(1)->UseManualTime()->Unit(benchmark::kMicrosecond);
}

void inAllPlaces(benchmark::internal::Benchmark* bench)
{
    bench->ArgsProduct({{1000, 100000, 1000000}, {Front, Middle, End}})->ArgNames({"children", "place"});
}

void inThousandsOfRows(benchmark::internal::Benchmark* bench)
{
    bench->ArgsProduct({{1000, 100000}, {Front, Middle, End}})->ArgNames({"children", "place"});
}

BENCHMARK_CAPTURE(Insert, Collapsed, Rows::Collapsed, false)->Apply(inAllPlaces)->Apply(once);
BENCHMARK_CAPTURE(Insert, Expanded, Rows::Expanded, false)->Apply(inThousandsOfRows)->Apply(once);
BENCHMARK_CAPTURE(Insert, ExpandedAndPainted, Rows::Expanded, true)->Apply(inThousandsOfRows)->Apply(once);
BENCHMARK_CAPTURE(Remove, Collapsed, Rows::Collapsed, false)->Apply(inAllPlaces)->Apply(once);
BENCHMARK_CAPTURE(Remove, Expanded, Rows::Expanded, false)->Apply(inThousandsOfRows)->Apply(once);
BENCHMARK_CAPTURE(Remove, ExpandedAndPainted, Rows::Expanded, true)->Apply(inThousandsOfRows)->Apply(once);
BENCHMARK(AppendThousand)->Arg(1000)->Arg(100000)->ArgName("children")->Apply(once);
BENCHMARK(RemoveThousand)->Arg(1000)->Arg(100000)->ArgName("children")->Apply(once);
BENCHMARK_CAPTURE(InsertInMany, Places, true)->Arg(1000)->ArgName("groups")->Apply(once);
BENCHMARK_CAPTURE(InsertInMany, Groups, false)->Arg(1000)->Arg(10000)->ArgName("groups")->Apply(once);
BENCHMARK(FirstChange)->Arg(1000)->Arg(1000000)->ArgName("rows")->Apply(once);
BENCHMARK(HostSecond)->Apply(once);

} // namespace
