// SPDX-License-Identifier: MIT
// Ends the host's event loop.
#include <zvsdkbase/zelutil.h>

#include <QCoreApplication>

extern "C" void ZelAddOnInit(void);

void ZelAddOnInit(void)
{
    ZelUtilAddOnRegister("Quitting", "Ends the program", [] { QCoreApplication::exit(0); });
}
