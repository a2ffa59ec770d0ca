// SPDX-License-Identifier: MIT
#ifndef TESTS_TORTURE_ROUNDS_H
#define TESTS_TORTURE_ROUNDS_H

#include <atomic>
#include <cstdint>
#include <functional>
#include <string>

/// Rounds in processes of their own: identifiers are never forgotten and a GUI that is lost stays lost, so whatever is
/// to end in the end of the main window can happen once in a process.
namespace torture {

/// What a host can be made to do to its add-ons at the worst moment. Each is counted, so that it can happen at any.
enum class Fault { None, NoString, NoSet, NoMember, NoStringList, WindowGone, BatchMode, Count };

/// Seen by the round and by the process that watches it.
struct Progress
{
    std::atomic<std::int64_t> step;
    std::atomic<std::int64_t> calls;
    /// How often each fault could have happened.
    std::atomic<std::int64_t> occasions[static_cast<int>(Fault::Count)];
};
Progress &progress();

/// Ends the round: prints what is wrong, and at which step.
[[noreturn]] void fail(const std::string &what);

/// Ends the round if the toolkit warns of anything, from now on.
void failAtWarnings();

/// Runs `round` in a process of its own, in which an application object lives but no main window. False if it did not
/// end well: it has failed, crashed, leaked or made no step for minutes. Then `command`, which plays it again, has
/// been printed.
bool runRound(const std::function<void()> &round, const std::function<std::string()> &command);

} // namespace torture

#endif
