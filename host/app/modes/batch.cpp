// SPDX-License-Identifier: MIT
#include "modes.h"

#include "../exitcodes.h"

int runInBatch(const Session &session)
{
    for (const orvane::host::AddOn &entry : session.chosen)
        entry.launch();
    return Success;
}
