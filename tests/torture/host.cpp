// SPDX-License-Identifier: MIT
#include "host.h"

#include "support/scarcehost.h"

#include <zelgui/zelgui.h>
#include <zvsdkbase/hostcontrol.h>

namespace torture {

namespace {

Fault plannedFault = Fault::None;
std::int64_t plannedOccasion = 0;
bool areMessagesShown = true;

} // namespace

void plan(Fault fault, std::int64_t occasion)
{
    plannedFault = fault;
    plannedOccasion = occasion;
    ScarceHost::setRefusal([](ScarceHost::Thing thing, const void *) {
        static constexpr Fault kFaults[] = {Fault::NoString, Fault::NoSet, Fault::NoMember, Fault::NoStringList};
        return happens(kFaults[thing]);
    });
}

bool happens(Fault fault)
{
    return ++progress().occasions[static_cast<int>(fault)] == plannedOccasion && fault == plannedFault;
}

void moment()
{
    if (happens(Fault::WindowGone))
        delete mainWindow();
    if (happens(Fault::BatchMode))
        orvane::host::setBatchModeActive(true);
}

QPointer<QMainWindow> &mainWindow()
{
    static QPointer<QMainWindow> window;
    return window;
}

void openMainWindow()
{
    mainWindow() = new QMainWindow;
    mainWindow()->resize(400, 300);
    mainWindow()->show();
}

void showMessages(bool on)
{
    areMessagesShown = on;
}

void checkLedger()
{
    for (const orvane::host::Unreleased &leak : orvane::host::unreleased())
        fail("not released: " + std::to_string(leak.count) + " x " + leak.label);
}

} // namespace torture

using namespace torture;

void ZelUtilDialogErrMsg(const char *message)
{
    static const auto original = ScarceHost::originalOf(&ZelUtilDialogErrMsg, "ZelUtilDialogErrMsg");
    if (areMessagesShown && !ZelUtilMacroIsBatchModeActive())
        original(message);
}
