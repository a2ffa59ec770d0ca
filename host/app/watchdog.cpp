// SPDX-License-Identifier: MIT
#include "watchdog.h"

#include <array>
#include <cstdio>
#include <cstdlib>

#include <unistd.h>

Watchdog::Watchdog(double timeoutSeconds) : m_timeoutSeconds(timeoutSeconds), m_thread([this] { run(); }) {}

Watchdog::~Watchdog()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_stopping = true;
    }
    m_changed.notify_one();
    m_thread.join();
}

void Watchdog::watch(const std::string &name, int exitCode)
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_name = name;
        m_exitCode = exitCode;
        m_deadline =
            Clock::now() + std::chrono::duration_cast<Clock::duration>(std::chrono::duration<double>(m_timeoutSeconds));
    }
    m_changed.notify_one();
}

void Watchdog::remark(const std::string &text)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_remark = text;
}

void Watchdog::rest()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_deadline = Clock::time_point::max();
    }
    m_changed.notify_one();
}

void Watchdog::run()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    while (!m_stopping) {
        if (m_deadline == Clock::time_point::max())
            m_changed.wait(lock);
        else if (Clock::now() >= m_deadline)
            endProcess();
        else
            m_changed.wait_until(lock, m_deadline);
    }
}

void Watchdog::endProcess() const
{
    // Past the streams, whose locks the stuck thread may hold, and past all destructors, which would need that thread.
    std::array<char, 100> end{};
    std::snprintf(end.data(), end.size(), "\" has not finished within %g seconds", m_timeoutSeconds);
    const std::string line = "zelhost: \"" + m_name + end.data() + m_remark + "\n";
    if (::write(STDERR_FILENO, line.data(), line.size()) < 0) {
        // There is no one left to tell; the exit code still does.
    }
    std::_Exit(m_exitCode);
}
