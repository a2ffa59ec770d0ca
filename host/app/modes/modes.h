// SPDX-License-Identifier: MIT
#ifndef ZELHOST_MODES_H
#define ZELHOST_MODES_H

#include "../options.h"
#include "../session.h"

// The ways of running the host, a source each. All return the program's exit code.

/// Without a window, as if there were no user: launches what is chosen.
int runInBatch(const Session &session);
/// With the user, after launching what is chosen.
int runInteractively(const Options &options, const Session &session);
/// Saves pictures of the dialogs of what is chosen, or of all.
int drawPictures(const Options &options, const Session &session);
/// Does what a script says.
int playScript(const Options &options, const Session &session);
/// Looks at the pages of the same dialogs, draws them too and reports what is wrong with how they look.
int inspectLooks(const Options &options, const Session &session);
/// Runs inspections in processes of their own, with many fonts, resolutions and styles.
int sweepLooks(const Options &options);

#endif
