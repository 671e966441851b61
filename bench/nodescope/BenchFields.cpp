// What field lists cost: showing a node, and following fields that change. bench/README.md says what the ratios mean.

#include <bench/Compare.h>

#include <nodescope/panels/SoFieldItem.h>
#include <nodescope/panels/SoNodeOverviewList.h>
#include <vexel/fields/SoFieldContainer.h>
#include <vexel/fields/SoMFVec3f.h>
#include <vexel/fields/SoSFFloat.h>
#include <vexel/io/SoDB.h>

#include <QApplication>

#include <array>
#include <string>
#include <thread>

namespace {

constexpr std::size_t Many = 200;

const char* nameOf(std::size_t index)
{
    static const auto names = [] {
        std::array<std::string, Many> made;
        for (std::size_t i = 0; i < Many; ++i)
            made[i] = "field" + std::to_string(i);
        return made;
    }();
    return names[index].c_str();
}

class ManyFields : public SoFieldContainer {
    SO_CONTAINER(ManyFields, SoFieldContainer)
public:
    ManyFields() : ManyFields(std::make_index_sequence<Many>()) {}

    std::array<SoSFFloat, Many> fields;

private:
    template <std::size_t... I>
    explicit ManyFields(std::index_sequence<I...>) : fields{{SoSFFloat(this, nameOf(I))...}}
    {
    }
};

class Points : public SoFieldContainer {
    SO_CONTAINER(Points, SoFieldContainer)
public:
    SoMFVec3f point{this, "point"};
};

template <class Container>
Container* referenced()
{
    SoDB::init();
    auto* container = new Container;
    container->ref();
    return container;
}

void show(QWidget& widget)
{
    widget.resize(600, 500);
    widget.show();
    QApplication::processEvents();
}

void showManyFields(benchmark::State& state)
{
    auto* container = referenced<ManyFields>();
    {
        SoNodeOverviewList list;
        show(list);
        QTreeWidget bare;
        bare.setColumnCount(list.columnCount());
        bare.setUniformRowHeights(true);
        show(bare);
        const QString name = "ManyFields";
        compare(
            state,
            [&] {
                list.showContainer(container);
                list.viewport()->repaint();
            },
            [&] {
                bare.clear();
                QList<QTreeWidgetItem*> rows;
                for (const SoSFFloat& field : container->fields)
                    rows.append(new QTreeWidgetItem(
                        {QString(), QString(), QString(), name, QString(), QStringLiteral("SFFloat"),
                         container->getFieldName(&field).toQString(), field.get().toQString()}));
                bare.addTopLevelItems(rows);
                bare.viewport()->repaint();
            });
    }
    container->unref();
}
BENCHMARK(showManyFields)->Name("ShowNode/fields:200")->UseManualTime()->Iterations(1)->Unit(benchmark::kMillisecond);

void showHugeField(benchmark::State& state)
{
    auto* huge = referenced<Points>();
    auto* small = referenced<Points>();
    huge->point.setNum(int(state.range(0)));
    small->point.setNum(7);
    {
        SoNodeOverviewList list;
        show(list);
        const auto open = [&](Points& points) {
            list.showContainer(&points);
            list.viewport()->repaint();
        };
        compare(
            state, [&] { open(*huge); }, [&] { open(*small); });
    }
    huge->unref();
    small->unref();
}
BENCHMARK(showHugeField)
    ->Name("ShowNode/values")
    ->Arg(10000000)
    ->UseManualTime()
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);

/** Lists that each show the first field of a container. */
struct Watches {
    Watches(ManyFields& container, int count)
    {
        for (int i = 0; i < count; ++i) {
            lists.push_back(std::make_unique<SoNodescopeList>());
            lists.back()->addRows({new SoFieldItem(container, 0, nullptr, false)});
            show(*lists.back());
        }
    }
    std::vector<std::unique_ptr<SoNodescopeList>> lists;
};

void notifyWatches(benchmark::State& state)
{
    constexpr int Changes = 10000;
    auto* container = referenced<ManyFields>();
    auto* other = referenced<ManyFields>();
    {
        const Watches watches(*container, 5);
        std::array<SoFieldSensor, 5> sensors;
        for (SoFieldSensor& sensor : sensors) {
            sensor.setPriority(0);
            sensor.setFunction([](void*, SoSensor*) {});
            sensor.attach(&other->fields[0]);
        }
        const auto change = [](ManyFields& changed) {
            for (int i = 0; i < Changes; ++i)
                changed.fields[0].setValue(float(i));
        };
        compare(
            state, [&] { change(*container); }, [&] { change(*other); });
    }
    container->unref();
    other->unref();
}
BENCHMARK(notifyWatches)->Name("Notify/watches:5")->UseManualTime()->Iterations(1)->Unit(benchmark::kMillisecond);

/** Time spent in the frames of half a second in which one field changes each time; idle time is not counted. */
double secondsOfFrames(ManyFields& container)
{
    using Clock = std::chrono::steady_clock;
    constexpr int Frames = 30;
    constexpr std::chrono::microseconds Frame_time(16667);
    double spent = 0;
    auto due = Clock::now();
    for (int i = 0; i < Frames; ++i) {
        spent += secondsOf([&] {
            container.fields[0].setValue(float(i));
            QApplication::processEvents();
        });
        due += Frame_time;
        std::this_thread::sleep_until(due);
    }
    return spent;
}

void watchSixtyTimesASecond(benchmark::State& state)
{
    constexpr double Seconds = 0.5;
    auto* container = referenced<ManyFields>();
    double best = 1e9;
    for (auto _ : state) {
        const double without = secondsOfFrames(*container);
        const Watches watches(*container, 5);
        const double spent = std::max(0.0, secondsOfFrames(*container) - without);
        best = std::min(best, spent);
        state.SetIterationTime(spent);
    }
    reportRatio(state, best, Seconds);
    state.counters["percent_of_frame"] = 100 * best / Seconds;
    container->unref();
}
BENCHMARK(watchSixtyTimesASecond)
    ->Name("Frames/watches:5")
    ->UseManualTime()
    ->Iterations(4)
    ->Unit(benchmark::kMillisecond);

} // namespace
