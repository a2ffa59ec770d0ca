// SPDX-License-Identifier: MIT
// Times the library beside bare calls of the toolkit, in alternating pairs, and prints one table.
#include "comparison.h"
#include "table.h"

#include <benchmark/benchmark.h>

#include <QApplication>

#include <algorithm>
#include <chrono>
#include <ctime>
#include <iterator>

#include <malloc.h>
#include <sys/resource.h>

namespace {

using namespace bench;

/// A case is measured until it has taken so many seconds, within these numbers of pairs; fewer are enough if even they
/// take too long. Each side goes first in half of them.
constexpr double kLongEnough = 1.5;
constexpr double kTooLong = 100;
constexpr std::size_t kFewestPairs = 12;
constexpr std::size_t kMostPairs = 200;

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

/// Tells when a case has been measured often enough.
class Budget
{
public:
    bool isSpent(std::size_t pairs) const
    {
        using Seconds = std::chrono::duration<double>;
        const double spent = Seconds(std::chrono::steady_clock::now() - m_start).count();
        const bool isEnough = pairs >= kFewestPairs || spent > kTooLong;
        return pairs % 2 == 0 && (pairs >= kMostPairs || (spent > kLongEnough && isEnough));
    }

private:
    std::chrono::steady_clock::time_point m_start = std::chrono::steady_clock::now();
};

/// Of an even number of values; 0 of none.
double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    const std::size_t half = values.size() / 2;
    return values.empty() ? 0 : (values[half - 1] + values[half]) / 2;
}

/// One row of the table. The sides take turns in going first.
void runPairs(const Case &tested, int size, Table &table)
{
    const Comparison comparison = tested.make(size);
    const bool hasBare = bool(comparison.bare.work);
    std::vector<double> library;
    std::vector<double> bare;
    // What is done for the first time is not what is measured.
    measured(comparison.library, tested.meter);
    const Budget budget;
    bool isBareFirst = false;
    do {
        const auto measureBare = [&] { bare.push_back(measured(comparison.bare, tested.meter) / tested.calls); };
        if (hasBare && isBareFirst)
            measureBare();
        library.push_back(measured(comparison.library, tested.meter) / tested.calls);
        if (hasBare && !isBareFirst)
            measureBare();
        isBareFirst = !isBareFirst;
    } while (!budget.isSpent(library.size()));
    // What disturbs the machine for a while disturbs both of a pair.
    std::vector<double> ratios;
    std::transform(bare.begin(), bare.end(), library.begin(), std::back_inserter(ratios),
                   [](double ofBare, double ofLibrary) { return ofLibrary / ofBare; });
    table.add(tested, {size, median(library), median(bare), median(ratios)});
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
    for (const auto &cases :
         {startCases(), dialogCases(), valueCases(), listCases(), selectionCases(), menuCases(), textCases()}) {
        for (const Case &tested : cases) {
            for (const int size : tested.sizes)
                benchmark::RegisterBenchmark((tested.name + '/' + std::to_string(size)).c_str(),
                                             [tested, size, &table](benchmark::State &state) {
                                                 for (auto _ : state)
                                                     runPairs(tested, size, table);
                                             })
                    ->Iterations(1);
        }
    }
    Silence silence;
    benchmark::RunSpecifiedBenchmarks(&silence);
    return table.finish() ? 0 : 1;
}
