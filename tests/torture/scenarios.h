// SPDX-License-Identifier: MIT
#ifndef TESTS_TORTURE_SCENARIOS_H
#define TESTS_TORTURE_SCENARIOS_H

#include <cstdint>

/// What rounds play. Each opens the main window, makes its steps, ends the GUI, and checks what is left.
namespace torture {

/// An add-on calls functions with arguments drawn at random.
void callAtRandom(std::uint64_t seed, std::int64_t steps);

/// A user does anything to what the example add-ons offer: to all of it, or to one entry only.
constexpr int kAllEntries = -1;
void useAtRandom(std::uint64_t seed, std::int64_t steps, int entry = kAllEntries);

/// Loads the example add-ons, once, before the rounds; the answer is how many entries they have.
int loadExamples();

/// Everything fails once, at every occasion; but the GUI is lost only at one of `share` moments. False if something was
/// not survived; `program` is for the command that plays it again.
bool failEverywhere(std::uint64_t seed, int share, const char *program);
/// One of these cases.
struct FaultCase
{
    int scenario;
    int resolution;
    int fault;
    std::int64_t occasion;
};
bool failOnce(std::uint64_t seed, const FaultCase &faultCase, const char *program);

} // namespace torture

#endif
