/* SPDX-License-Identifier: MIT */
/* Releases nothing of what it allocates. */
#include <zvsdkbase/zelutil.h>

void ZelAddOnInit(void);

static void launch(void) {}

void ZelAddOnInit(void)
{
    ZelUtilStringAlloc(100, "forgotten");
    ZelUtilStringAlloc(20, "forgotten");
    ZelUtilSetAlloc(0);
    ZelUtilStringListAlloc();
    ZelUtilAddOnRegister("Leaky", "Forgets what it has", launch);
}
