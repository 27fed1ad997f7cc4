// Times every subject with Google Benchmark; takes its arguments.

#include "bench/Stage.h"
#include "bench/Subjects.h"

#include <QApplication>

#include <benchmark/benchmark.h>

namespace {

void measure(benchmark::State& state, const SubjectEntry& entry)
{
    const Subject subject = entry.make();
    for (auto _ : state) { // NOLINT(clang-analyzer-deadcode.DeadStores)
        if (subject.before) {
            state.PauseTiming();
            subject.before();
            state.ResumeTiming();
        }
        subject.run();
        if (subject.after) {
            state.PauseTiming();
            subject.after();
            state.ResumeTiming();
        }
    }
}

} // namespace

int main(int argc, char** argv)
{
    const Stage::Environment environment;
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    for (const SubjectEntry& entry : subjects()) {
        benchmark::RegisterBenchmark(entry.label().c_str(), measure, entry)
            ->Unit(benchmark::kMicrosecond);
    }
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
