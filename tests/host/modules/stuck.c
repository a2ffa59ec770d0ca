/* SPDX-License-Identifier: MIT */
/* Its entry never returns and handles no events. */
#include <zvsdkbase/zelutil.h>

void ZelAddOnInit(void);

static volatile int forever = 1;

static void launch(void)
{
    while (forever) {
    }
}

void ZelAddOnInit(void)
{
    ZelUtilAddOnRegister("Stuck", "Never returns", launch);
}
