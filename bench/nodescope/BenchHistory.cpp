// Undo and redo of one command beside the change itself. Baseline: the same calls on a bare stack of commands.

#include <extension/NscCommand.h>
#include <nodescope/edit/SoCommandManager.h>
#include <nodescope/mainframe/SoNodescopeMainFrame.h>

#include <QApplication>
#include <benchmark/benchmark.h>
#include <memory>
#include <vector>

namespace {

class CountingCommand : public NscCommand {
public:
    explicit CountingCommand(long& count) : m_count(count) {}
    bool execute() override { return ++m_count; }
    void undo() override { --m_count; }
    void redo() override { ++m_count; }

private:
    long& m_count;
};

void undoRedoOnBareStack(benchmark::State& state)
{
    long count = 0;
    std::vector<std::unique_ptr<NscCommand>> commands;
    for (int i = 0; i < state.range(0); ++i)
        commands.push_back(std::make_unique<CountingCommand>(count));
    std::size_t index = commands.size();
    for (auto _ : state) {
        commands[--index]->undo();
        commands[index++]->redo();
        benchmark::DoNotOptimize(count);
    }
}
BENCHMARK(undoRedoOnBareStack)->Arg(1)->Arg(100000);

void undoRedoWithTheActions(benchmark::State& state)
{
    SoCommandManager manager;
    SoNodescopeMainFrame frame;
    frame.setUp(&manager, SoNodescopeMainFrame::Hosting::Standalone);
    manager.initialize(&frame);
    frame.show();
    long count = 0;
    for (int i = 0; i < state.range(0); ++i)
        manager.addCommand(new CountingCommand(count));
    for (auto _ : state) {
        manager.undo();
        manager.redo();
        benchmark::DoNotOptimize(count);
    }
}
BENCHMARK(undoRedoWithTheActions)->Arg(1)->Arg(100000);

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
