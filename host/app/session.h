// SPDX-License-Identifier: MIT
#ifndef ZELHOST_SESSION_H
#define ZELHOST_SESSION_H

#include "hostwindow.h"
#include "options.h"

#include <zvsdkbase/hostcontrol.h>

#include <memory>
#include <vector>

/// What every way of running the host starts from: settings applied, the window made, the add-ons loaded.
struct Session
{
    /// Null in batch mode.
    std::unique_ptr<HostWindow> window;
    std::vector<orvane::host::AddOn> registered;
    /// What --launch names, in that order.
    std::vector<orvane::host::AddOn> chosen;
};

/// Fills the session; false, after a message, if that fails.
bool openSession(const Options &options, Session &session);

#endif
