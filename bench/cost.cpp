// SPDX-License-Identifier: MIT
// Guards against decay, without a clock: counts the instructions of representative calls and of the same work written
// with bare calls of the toolkit. To be run by callgrind, with the file of its reports as the first argument; with the
// name of a case as the second, counts only that one, against no bound.
#include "comparison.h"
#include "table.h"

#include <QApplication>

#include <valgrind/callgrind.h>

#include <cstdio>
#include <fstream>

namespace {

using namespace bench;

struct Bound
{
    const char *name;
    /// Greatest ratio to the toolkit's instructions; generous, since only decay is to be found.
    double ratio;
};

constexpr Bound kBounds[] = {
    {"dialog of 200 widgets: create", 1.10},
    {"dialog of 200 widgets: show until painted", 1.05},
    {"dialog of 200 widgets: destroy", 1.15},
    {"text field: set text", 1.10},
    {"text field: get text", 1.25},
    {"toggle: set", 1.25},
    {"slider: set", 1.25},
    {"option menu: set", 1.25},
    {"label: set text", 1.25},
    {"label: set number", 1.25},
    {"text: read", 1.25},
};

const std::vector<int> kSizes = {400, 1200, 3600};
constexpr double kLargestCountedGrowth = 1.15;

/// Counts in one process, whose reports callgrind numbers from 1.
class Counter
{
public:
    explicit Counter(std::string file) : m_file(std::move(file)) {}

    double count(const Side &side)
    {
        if (side.prepare)
            side.prepare();
        CALLGRIND_ZERO_STATS;
        CALLGRIND_TOGGLE_COLLECT;
        side.work();
        CALLGRIND_TOGGLE_COLLECT;
        CALLGRIND_DUMP_STATS;
        return readTotal(m_file + '.' + std::to_string(++m_reports));
    }

private:
    static double readTotal(const std::string &file)
    {
        std::ifstream report(file);
        for (std::string line; std::getline(report, line);) {
            if (line.rfind("totals: ", 0) == 0) {
                std::remove(file.c_str());
                return std::stod(line.substr(8));
            }
        }
        std::fprintf(stderr, "%s tells no total: is this run by callgrind?\n", file.c_str());
        std::exit(2);
    }

    std::string m_file;
    int m_reports = 0;
};

bool isWithin(const std::string &name, const char *unit, double figure, double limit)
{
    std::printf("%-45s %s%.3f, at most %.2f%s\n", name.c_str(), unit, figure, limit, figure <= limit ? "" : "  FAILED");
    std::fflush(stdout);
    return figure <= limit;
}

bool checkRatio(Counter &counter, const Case &tested, double bound)
{
    const Comparison comparison = tested.make(tested.sizes.front());
    // What is done for the first time is not what is counted.
    counter.count(comparison.library);
    counter.count(comparison.bare);
    const double library = counter.count(comparison.library);
    return isWithin(tested.name, "x ", library / counter.count(comparison.bare), bound);
}

constexpr double kNoBound = 1000;

std::vector<Case> comparedCases()
{
    std::vector<Case> all;
    for (const auto &cases : {dialogCases(), valueCases(), textCases()})
        all.insert(all.end(), cases.begin(), cases.end());
    return all;
}

bool checkGrowth(Counter &counter, const Case &tested)
{
    std::vector<Row> rows;
    for (const int size : kSizes) {
        const Comparison comparison = tested.make(size);
        counter.count(comparison.library);
        rows.push_back({size, counter.count(comparison.library), 0, 0});
    }
    return isWithin(tested.name, "n^", growth(rows), kLargestCountedGrowth);
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    Counter counter(argc > 1 ? argv[1] : "");
    if (argc > 2) {
        for (const Case &tested : comparedCases()) {
            if (tested.name == argv[2])
                checkRatio(counter, tested, kNoBound);
        }
        return 0;
    }
    bool isFine = true;
    std::size_t found = 0;
    for (const Case &tested : comparedCases()) {
        for (const Bound &bound : kBounds) {
            if (tested.name != bound.name)
                continue;
            ++found;
            isFine = checkRatio(counter, tested, bound.ratio) && isFine;
        }
    }
    for (const auto &cases : {listCases(), selectionCases()}) {
        for (const Case &tested : cases) {
            if (tested.sizes.size() > 2)
                isFine = checkGrowth(counter, tested) && isFine;
        }
    }
    return isFine && found == std::size(kBounds) ? 0 : 1;
}
