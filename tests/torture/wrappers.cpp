// SPDX-License-Identifier: MIT
// The library's functions, as add-ons and rounds find them.
#include "host.h"
#include "support/scarcehost.h"

#include <zelgui/zelgui.h>

#include "wrappers.inc"
