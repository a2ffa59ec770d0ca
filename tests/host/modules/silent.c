/* SPDX-License-Identifier: MIT */
/* Its entry shows nothing but says on the standard output what the host has told it. It releases what it allocates. */
#include <zvsdkbase/zelutil.h>

#include <stdio.h>

void ZelAddOnInit(void);

static void launch(void)
{
    double horizontal = 0.0;
    double vertical = 0.0;
    char *text = ZelUtilStringAlloc(10, "text of the silent add-on");
    ZelUtilInterfaceGetDotsPerInch(&horizontal, &vertical);
    printf("launched: batch %d, dpi %g,%g\n", ZelUtilMacroIsBatchModeActive(), horizontal, vertical);
    fflush(stdout);
    ZelUtilStringDealloc(&text);
}

void ZelAddOnInit(void)
{
    ZelUtilAddOnRegister("Silent", "Shows nothing", launch);
}
