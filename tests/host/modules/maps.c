/* SPDX-License-Identifier: MIT */
/* Tells which of the process's files have "zelgui" in their names. */
#include <zvsdkbase/zelutil.h>

#include <stdio.h>
#include <string.h>

void ZelAddOnInit(void);

static void launch(void)
{
    char line[5000];
    FILE *maps = fopen("/proc/self/maps", "r");
    while (maps && fgets(line, sizeof line, maps)) {
        if (strstr(line, "/libzelgui") && strstr(line, " r-xp "))
            fputs(strrchr(line, '/') + 1, stdout);
    }
    if (maps)
        fclose(maps);
}

void ZelAddOnInit(void)
{
    ZelUtilAddOnRegister("Maps", "Lists files", launch);
}
