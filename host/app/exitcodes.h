// SPDX-License-Identifier: MIT
#ifndef ZELHOST_EXITCODES_H
#define ZELHOST_EXITCODES_H

/// What the program ends with; the help and the documentation list the same.
enum ExitCode {
    Success = 0,
    Failure = 1,
    /// A step of a script could not be done.
    StepFailed = 2,
    LeaksFound = 3,
    MisuseFound = 4,
    LookProblemsFound = 5,
};

#endif
