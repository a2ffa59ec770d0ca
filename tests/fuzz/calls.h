// SPDX-License-Identifier: MIT
#ifndef TESTS_FUZZ_CALLS_H
#define TESTS_FUZZ_CALLS_H

#include "fuzz/arguments.h"

#include <functional>
#include <vector>

/// One function of the interface, called with arguments that an input makes.
struct Call
{
    const char *name;
    void (*make)(CallContext &context);
};

/// All functions of the public header, in the order of their names, so that inputs outlive changes of the header's
/// order. Calls that don't belong at the place, a fourth modal dialog say, do nothing.
const std::vector<Call> &calls();

/// What a modal dialog's loop does until it is over. Called again and again while a dialog is launched.
void setModalStep(std::function<void()> step);

#endif
