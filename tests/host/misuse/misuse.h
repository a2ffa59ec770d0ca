/* SPDX-License-Identifier: MIT */
#ifndef TESTS_HOST_MISUSE_MISUSE_H
#define TESTS_HOST_MISUSE_MISUSE_H

#include <zelgui/zelgui.h>

/* Each file has an entry "Wrong", and an entry "Valid" for what looks alike and is right. The tests launch one of them,
 * or the same one twice, and close what it shows. */
#ifdef __cplusplus
extern "C" void ZelAddOnInit(void);
#else
void ZelAddOnInit(void);
#endif

static int dialog = ZELGUI_INVALID_ID;

static void drop(void)
{
    ZelGUIDialogDrop(dialog);
}

static void makeDialogWithInit(ZelGUIVoidCallback init)
{
    dialog = ZelGUIDialogCreateModeless(ZELGUI_MAIN_WINDOW, 4000, 1000, "Dialog", init, drop, NULL);
}

#define REGISTER_ENTRIES REGISTER(wrong, valid)

/* For entries that fill a new dialog, which is launched then. */
#define REGISTER_FILLING_ENTRIES                                                                                       \
    static void launchWrong(void)                                                                                      \
    {                                                                                                                  \
        makeDialogWithInit(0);                                                                                         \
        wrong();                                                                                                       \
        ZelGUIDialogLaunch(dialog);                                                                                    \
    }                                                                                                                  \
    static void launchValid(void)                                                                                      \
    {                                                                                                                  \
        makeDialogWithInit(0);                                                                                         \
        valid();                                                                                                       \
        ZelGUIDialogLaunch(dialog);                                                                                    \
    }                                                                                                                  \
    REGISTER(launchWrong, launchValid)

#define REGISTER(launchWrong, launchValid)                                                                             \
    void ZelAddOnInit(void)                                                                                            \
    {                                                                                                                  \
        ZelUtilAddOnRegister("Wrong", "Does something wrong", launchWrong);                                            \
        ZelUtilAddOnRegister("Valid", "Does something similar", launchValid);                                          \
    }

#endif
