// SPDX-License-Identifier: MIT
#include "comparison.h"
#include "mixeddialog.h"

#include <cstdlib>
#include <stdexcept>

#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>

extern char **environ;

namespace bench {

namespace {

/// Runs a program to its end.
void runProgram(const char *path)
{
    char *arguments[] = {const_cast<char *>(path), nullptr};
    pid_t child = 0;
    int status = 0;
    rusage usage{};
    if (posix_spawn(&child, path, nullptr, nullptr, arguments, environ) != 0 || wait4(child, &status, 0, &usage) < 0 ||
        status != 0)
        throw std::runtime_error(path);
    lastPeak() = std::size_t(usage.ru_maxrss) * 1024;
}

Case start(const char *name, const char *bareProgram, Goal goal, Meter meter)
{
    const auto make = [bareProgram](int) {
        return Comparison{{nullptr, [] { runProgram(BENCH_START_LIBRARY); }},
                          {nullptr, [bareProgram] { runProgram(bareProgram); }}};
    };
    return {name, goal, {0}, 1, make, meter};
}

} // namespace

std::vector<Case> startCases()
{
    const Goal goal{Goal::Ratio, 1.02};
    return {start("start of a process until a dialog is painted", BENCH_START_FULL, goal, Meter::Time),
            start("start of a process, leanest bare", BENCH_START_BARE, {Goal::None, 0}, Meter::Time),
            start("memory of that process", BENCH_START_BARE, {Goal::Difference, 1 << 20}, Meter::Peak)};
}

} // namespace bench
