#include <benchmark/benchmark.h>

#include <bench/Compare.h>

#include <QProcess>
#include <QTemporaryDir>

namespace {

void runToItsEnd(const char* program, const QStringList& arguments)
{
    if (QProcess::execute(QString::fromLatin1(program), arguments) != 0)
        std::abort();
}

/** Whole processes, from their start until window and GL view are painted. The inspector has 4 samples a pixel. */
void FirstWindow(benchmark::State& state)
{
    const QTemporaryDir settings;
    qputenv("XDG_CONFIG_HOME", settings.path().toLocal8Bit());
    compareMedians(
        state, [] { runToItsEnd(INSPECTOR_WINDOW, {QStringLiteral(SCENE)}); },
        [&] { runToItsEnd(BARE_WINDOW, {QString::number(state.range(0))}); });
}
BENCHMARK(FirstWindow)
    ->ArgName("bareSamples")
    ->Arg(0)
    ->Arg(4)
    ->Iterations(11)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
