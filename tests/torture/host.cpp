// SPDX-License-Identifier: MIT
#include "host.h"

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

#define ORIGINAL(name) static const auto original = originalOf(&name, #name)

char *ZelUtilStringAlloc(size_t size, const char *label)
{
    ORIGINAL(ZelUtilStringAlloc);
    return happens(Fault::NoString) ? nullptr : original(size, label);
}

IndexSet ZelUtilSetAlloc(ZelBoolean showErrors)
{
    ORIGINAL(ZelUtilSetAlloc);
    return happens(Fault::NoSet) ? nullptr : original(showErrors);
}

ZelBoolean ZelUtilSetAddMember(IndexSet set, LgIndex member, ZelBoolean showErrors)
{
    ORIGINAL(ZelUtilSetAddMember);
    return happens(Fault::NoMember) ? 0 : original(set, member, showErrors);
}

ZelBoolean ZelUtilSetAddRange(IndexSet set, LgIndex first, LgIndex last, LgIndex step, ZelBoolean showErrors)
{
    ORIGINAL(ZelUtilSetAddRange);
    return happens(Fault::NoMember) ? 0 : original(set, first, last, step, showErrors);
}

StringList_s *ZelUtilStringListAlloc(void)
{
    ORIGINAL(ZelUtilStringListAlloc);
    return happens(Fault::NoStringList) ? nullptr : original();
}

ZelBoolean ZelUtilStringListAppendString(StringList_s *list, const char *string)
{
    ORIGINAL(ZelUtilStringListAppendString);
    return happens(Fault::NoStringList) ? 0 : original(list, string);
}

void ZelUtilDialogErrMsg(const char *message)
{
    ORIGINAL(ZelUtilDialogErrMsg);
    if (areMessagesShown && !ZelUtilMacroIsBatchModeActive())
        original(message);
}
