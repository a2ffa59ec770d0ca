// SPDX-License-Identifier: MIT
#ifndef BENCH_COMPARISON_H
#define BENCH_COMPARISON_H

#include <QMainWindow>

#include <functional>
#include <memory>
#include <string>
#include <vector>

/// The cases of the benchmarks: what an add-on does through the library, beside the same written with bare calls of
/// the toolkit. How a case is measured (time, instructions) is up to the program that runs it.
namespace bench {

/// What is measured of a side's work.
enum class Meter {
    /// Of the processor.
    Time,
    /// What the heap holds more afterwards than before.
    Heap,
    /// The peak of a child process, which the work has put into lastPeak().
    Peak
};

/// How far the library's figure, for each of a work's calls, may be from the toolkit's. Figures are seconds or bytes.
struct Goal
{
    enum Kind { None, Ratio, Difference, Most };
    Kind kind;
    double limit;
};

struct Side
{
    /// Brings about the state in which the work starts; not measured. May be empty.
    std::function<void()> prepare;
    std::function<void()> work;
};

struct Comparison
{
    Side library;
    /// Without work where there is nothing to compare with.
    Side bare;
};

struct Case
{
    std::string name;
    Goal goal;
    /// Numbers of items, members or characters; a single 0 where there are none. With several, the library's time is to
    /// grow with at most the power 1.1.
    std::vector<int> sizes;
    /// Calls in each work, where they are what the figures are for; else 1.
    int calls;
    std::function<Comparison(int size)> make;
    Meter meter = Meter::Time;
    /// Where the toolkit keeps the goal out of reach: why, and which row shows it.
    const char *toolkitsLimit = nullptr;
};

constexpr double kLargestGrowth = 1.1;

std::vector<Case> dialogCases();
std::vector<Case> valueCases();
std::vector<Case> listCases();
std::vector<Case> selectionCases();
std::vector<Case> menuCases();
std::vector<Case> textCases();
/// Starts of a process, which only the program of the timings can measure.
std::vector<Case> startCases();

QMainWindow *mainWindow();

/// A modeless dialog that lives as long as the comparison that holds it.
class Dialog
{
public:
    explicit Dialog(bool isVisible = false);
    ~Dialog();
    Dialog(const Dialog &) = delete;
    Dialog &operator=(const Dialog &) = delete;
    int id() const { return m_id; }

private:
    int m_id;
};

/// The object behind an identifier.
template <typename T>
T *object(int id)
{
    return mainWindow()->findChild<T *>(QString::number(id));
}

std::size_t &lastPeak();

} // namespace bench

#endif
