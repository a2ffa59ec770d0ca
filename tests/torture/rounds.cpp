// SPDX-License-Identifier: MIT
#include "rounds.h"

#include <QApplication>

#include <cstdio>
#include <cstdlib>
#include <new>

#include <poll.h>
#include <signal.h>
#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace torture {

namespace {

/// A step takes microseconds; only a round that is stuck makes none for so long, even under Valgrind.
constexpr int kStuckMilliseconds = 60000;

/// A round that wants more memory fails, instead of taking it from everybody. The sanitizers reserve far more.
constexpr rlim_t kMostMemory = rlim_t{4} << 30;

void limitMemory()
{
#ifndef __SANITIZE_ADDRESS__
    const rlimit limit{kMostMemory, kMostMemory};
    setrlimit(RLIMIT_AS, &limit);
#endif
}

/// More failures than this say nothing new.
constexpr int kMostFailures = 5;

void handleMessage(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    // What the offscreen platform can't do and what fonts don't have says nothing about us.
    if (type == QtDebugMsg || type == QtInfoMsg || message.startsWith(QLatin1String("This plugin does not support")) ||
        message.contains(QLatin1String("OpenType support missing")))
        return;
    fail("the toolkit warns: " + message.toStdString());
}

/// Waits for the end of the other side of a pipe, as long as steps are made. False if the round is stuck.
bool awaitEnd(int end)
{
    std::int64_t last = -1;
    while (last != progress().step) {
        last = progress().step;
        pollfd poll{end, POLLIN, 0};
        if (::poll(&poll, 1, kStuckMilliseconds) > 0)
            return true;
    }
    return false;
}

std::string describe(int status)
{
    if (WIFSIGNALED(status))
        return std::string("ended by signal ") + std::to_string(WTERMSIG(status));
    return "exit code " + std::to_string(WEXITSTATUS(status));
}

} // namespace

Progress &progress()
{
    static auto *const shared = [] {
        void *const memory = mmap(nullptr, sizeof(Progress), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
        return memory == MAP_FAILED ? nullptr : new (memory) Progress{};
    }();
    return *shared;
}

void fail(const std::string &what)
{
    std::fprintf(stderr, "step %lld: %s\n", static_cast<long long>(progress().step), what.c_str());
    std::_Exit(1);
}

void failAtWarnings()
{
    qInstallMessageHandler(handleMessage);
}

bool runRound(const std::function<void()> &round, const std::function<std::string()> &command)
{
    progress().step = 0;
    for (auto &occasions : progress().occasions)
        occasions = 0;
    int ends[2];
    std::fflush(nullptr);
    if (pipe(ends) != 0)
        return false;
    const pid_t child = fork();
    if (child == 0) {
        close(ends[0]);
        limitMemory();
        failAtWarnings();
        round();
        delete qApp;
        std::exit(0);
    }
    close(ends[1]);
    const bool isStuck = !awaitEnd(ends[0]);
    close(ends[0]);
    if (isStuck)
        kill(child, SIGABRT);
    int status = 0;
    waitpid(child, &status, 0);
    if (status == 0)
        return true;
    const std::int64_t step = progress().step;
    std::fprintf(stderr, "FAILED at step %lld, %s%s\nreplay: %s\n", static_cast<long long>(step),
                 isStuck ? "stuck, " : "", describe(status).c_str(), command().c_str());
    static int failures = 0;
    if (++failures == kMostFailures)
        std::_Exit(1);
    return false;
}

} // namespace torture
