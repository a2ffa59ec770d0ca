// SPDX-License-Identifier: MIT
#ifndef ZELHOST_WATCHDOG_H
#define ZELHOST_WATCHDOG_H

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <string>
#include <thread>

/// Ends the process, with one line on the standard error, when an add-on does not finish in time. It
/// has a thread of its own, so it also ends an add-on that never returns to the event loop.
class Watchdog
{
public:
    explicit Watchdog(double timeoutSeconds);
    ~Watchdog();

    /// Gives `name`, UTF-8, the full time from now on. After that, the process ends with `exitCode`.
    void watch(const std::string &name, int exitCode = 1);
    /// What the message is to add, UTF-8, if it comes to that.
    void remark(const std::string &text);
    /// What was watched has finished.
    void rest();

private:
    using Clock = std::chrono::steady_clock;

    void run();
    [[noreturn]] void endProcess() const;

    const double m_timeoutSeconds;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    /// Clock::time_point::max() while nothing is watched.
    Clock::time_point m_deadline = Clock::time_point::max();
    std::string m_name;
    std::string m_remark;
    int m_exitCode = 1;
    bool m_stopping = false;
    std::thread m_thread;
};

#endif
