/* SPDX-License-Identifier: MIT */
/* Changes the process's directory when it is loaded, and with STUCK in the environment never comes back. */
#include <zvsdkbase/zelutil.h>

#include <stdlib.h>
#include <unistd.h>

void ZelAddOnInit(void)
{
    if (chdir("/") != 0)
        ZelUtilDialogErrMsg("There is no root.");
    while (getenv("STUCK"))
        sleep(1);
}
