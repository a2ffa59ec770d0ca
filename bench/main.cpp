// SPDX-License-Identifier: MIT
// Times the library beside bare calls of the toolkit, in alternating pairs, and prints one table.
#include "comparison.h"
#include "table.h"

#include <benchmark/benchmark.h>

#include <QApplication>

#include <algorithm>
#include <ctime>

#include <malloc.h>
#include <sys/resource.h>

namespace {

using namespace bench;

constexpr int kPairs = 11;

double heapInUse()
{
    const struct mallinfo2 info = mallinfo2();
    return double(info.uordblks) + double(info.hblkhd);
}

/// What this process and the ones that it has waited for have used of the processor: other programs don't count.
double processorSeconds()
{
    timespec own{};
    rusage children{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &own);
    getrusage(RUSAGE_CHILDREN, &children);
    const double seconds = double(own.tv_sec + children.ru_utime.tv_sec + children.ru_stime.tv_sec);
    return seconds + double(own.tv_nsec) * 1e-9 + double(children.ru_utime.tv_usec + children.ru_stime.tv_usec) * 1e-6;
}

double measured(const Side &side, Meter meter)
{
    if (side.prepare)
        side.prepare();
    const auto now = meter == Meter::Heap ? heapInUse : processorSeconds;
    const double before = now();
    side.work();
    const double after = now();
    return meter == Meter::Peak ? double(lastPeak()) : after - before;
}

double median(std::vector<double> values)
{
    const auto middle = values.begin() + std::ptrdiff_t(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/// One row of the table. The sides take turns in going first.
void runPairs(benchmark::State &state, const Case &tested, int size, Table &table)
{
    const Comparison comparison = tested.make(size);
    const bool hasBare = bool(comparison.bare.work);
    std::vector<double> library;
    std::vector<double> bare;
    std::vector<double> ratios;
    // What is done for the first time is not what is measured.
    measured(comparison.library, tested.meter);
    bool isBareFirst = false;
    for (auto _ : state) {
        const auto measureBare = [&] { bare.push_back(measured(comparison.bare, tested.meter) / tested.calls); };
        if (hasBare && isBareFirst)
            measureBare();
        library.push_back(measured(comparison.library, tested.meter) / tested.calls);
        if (hasBare && !isBareFirst)
            measureBare();
        isBareFirst = !isBareFirst;
        if (hasBare)
            ratios.push_back(library.back() / bare.back());
        state.SetIterationTime(library.back());
    }
    table.add(tested, {size, median(library), hasBare ? median(bare) : 0, hasBare ? median(ratios) : 0});
}

/// The table is printed row by row as it comes about; the framework's own lines would only repeat it.
class Silence : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context &) override { return true; }
    void ReportRuns(const std::vector<Run> &) override {}
};

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    Table table;
    benchmark::Initialize(&argc, argv);
    for (const auto &cases : {startCases(), dialogCases(), valueCases(), listCases(), textCases()}) {
        for (const Case &tested : cases) {
            for (const int size : tested.sizes)
                benchmark::RegisterBenchmark(
                    (tested.name + '/' + std::to_string(size)).c_str(),
                    [tested, size, &table](benchmark::State &state) { runPairs(state, tested, size, table); })
                    ->UseManualTime()
                    ->Iterations(kPairs);
        }
    }
    Silence silence;
    benchmark::RunSpecifiedBenchmarks(&silence);
    return table.finish() ? 0 : 1;
}
