// Undo and redo of one command beside the change itself. Baseline: the same calls on a bare stack of commands.

#include <extension/NscCommand.h>
#include <nodescope/edit/SoCommandManager.h>
#include <nodescope/mainframe/SoNodescopeMainFrame.h>

#include <bench/Compare.h>
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

void UndoAndRedo(benchmark::State& state)
{
    constexpr int Pairs = 1000;
    long count = 0;
    std::vector<std::unique_ptr<NscCommand>> bareStack;
    SoCommandManager manager;
    SoNodescopeMainFrame frame;
    frame.setUp(&manager, SoNodescopeMainFrame::Hosting::Standalone);
    manager.initialize(&frame);
    frame.show();
    for (int i = 0; i < state.range(0); ++i) {
        manager.addCommand(new CountingCommand(count));
        bareStack.push_back(std::make_unique<CountingCommand>(count));
    }
    std::size_t top = bareStack.size();
    compare(
        state,
        [&] {
            for (int i = 0; i < Pairs; ++i) {
                manager.undo();
                manager.redo();
            }
        },
        [&] {
            for (int i = 0; i < Pairs; ++i) {
                bareStack[--top]->undo();
                bareStack[top++]->redo();
                benchmark::DoNotOptimize(count);
            }
        });
    state.counters["us_per_command"] = state.counters["ours_ms"] * 1e3 / (2 * Pairs);
}
BENCHMARK(UndoAndRedo)
    ->ArgName("commands")
    ->Arg(1)
    ->Arg(100000)
    ->Iterations(1)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

} // namespace
