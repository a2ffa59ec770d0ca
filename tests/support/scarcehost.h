// SPDX-License-Identifier: MIT
#ifndef TESTS_SUPPORT_SCARCEHOST_H
#define TESTS_SUPPORT_SCARCEHOST_H

#include <QObject>
#include <QStringList>

#include <dlfcn.h>

/// A host that runs out of memory on demand: the test program stands before the host's libraries with functions of the
/// same names.
namespace ScarceHost {

enum Thing { String, Set, Member, StringList };

/// Is asked whenever somebody wants something of the host, and from where in memory; true refuses it.
using Refusal = bool (*)(Thing thing, const void *caller);
void setRefusal(Refusal refusal);

/// The function of that name that would have been called without ours.
template <typename Function>
Function originalOf(Function, const char *name)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

/// Runs a test, as QTest::qExec does, unless the environment asks for scarcity. With ZELGUI_REFUSED=17, the host
/// refuses the 17th thing that it is asked for, what the test program itself asks for aside. With ZELGUI_REFUSALS=100,
/// each test function, or each of those in `arguments`, runs once for each thing the host is asked for in it, which is
/// refused then; where there are more, for a hundred of them, which ZELGUI_SEED chooses. Whether the test still passes
/// doesn't matter then, only that the process goes on. A program that asks for nothing fails. The answer is for main()
/// to return.
int runTest(QObject &test, const QStringList &arguments);

} // namespace ScarceHost

#endif
