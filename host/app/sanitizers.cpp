// SPDX-License-Identifier: MIT
// Defaults of the sanitizers for this program, in builds that have them.

// Whole stacks, so that what is suppressed can be told by its name.
extern "C" const char *__asan_default_options(); // NOLINT(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp)
extern "C" const char *__asan_default_options()  // NOLINT(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp)
{
    return "fast_unwind_on_malloc=0";
}

// A thread of the toolkit's lives on for a moment after it was waited for, and holds its data when the process ends.
extern "C" const char *
__lsan_default_suppressions();                       // NOLINT(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp)
extern "C" const char *__lsan_default_suppressions() // NOLINT(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp)
{
    return "leak:QThread::QThread\n";
}
