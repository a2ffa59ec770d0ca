// SPDX-License-Identifier: MIT
#include "scarcehost.h"

#include <zvsdkbase/zelutil.h>

#include <QCoreApplication>
#include <QMetaMethod>
#include <QTest>

#include <algorithm>
#include <cstdio>
#include <new>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

namespace ScarceHost {

namespace {

/// A test function takes some seconds, or a minute with sanitizers on a busy machine; one that is stuck is a failure.
constexpr unsigned kStuckSeconds = 300;

Refusal currentRefusal = nullptr;

bool isRefused(Thing thing)
{
    return currentRefusal && currentRefusal(thing);
}

int refused = 0;

/// Counted where the process that watches sees it.
int &asked()
{
    static int *const shared = [] {
        void *const memory = mmap(nullptr, sizeof(int), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
        return memory == MAP_FAILED ? new int : new (memory) int;
    }();
    return *shared;
}

bool refuseOne(Thing)
{
    return ++asked() == refused;
}

/// Runs a test function in a process of its own. False if that process did not come to its end.
bool survives(QObject &test, const QStringList &arguments, int refusedOne)
{
    std::fflush(nullptr);
    asked() = 0;
    const pid_t child = fork();
    if (child == 0) {
        alarm(kStuckSeconds);
        refused = refusedOne;
        // What the test has to say is of no interest, in contrast to what sanitizers have.
        dup2(open("/dev/null", O_WRONLY), STDOUT_FILENO);
        QTest::qExec(&test, arguments);
        _exit(0);
    }
    int status = -1;
    waitpid(child, &status, 0);
    return status == 0;
}

QStringList testFunctions(const QObject &test)
{
    static const QStringList frame{QStringLiteral("initTestCase"), QStringLiteral("init"), QStringLiteral("cleanup"),
                                   QStringLiteral("cleanupTestCase")};
    QStringList names;
    const QMetaObject &type = *test.metaObject();
    for (int i = type.methodOffset(); i < type.methodCount(); ++i) {
        const QString name = QString::fromLatin1(type.method(i).name());
        if (type.method(i).methodType() == QMetaMethod::Slot && type.method(i).parameterCount() == 0 &&
            !name.endsWith(QLatin1String("_data")) && !frame.contains(name))
            names << name;
    }
    return names;
}

int refuseInTurn(QObject &test, const QString &program, int most)
{
    const QString command = QCoreApplication::arguments().join(QLatin1Char(' '));
    int failures = 0;
    int plays = 0;
    for (const QString &function : testFunctions(test)) {
        const QStringList arguments{program, QStringLiteral("-nocrashhandler"), function};
        if (!survives(test, arguments, 0))
            ++failures;
        const int count = asked();
        for (int i = 0; i < std::min(count, most); ++i, ++plays) {
            // Spread evenly where they are too many.
            const int one = count <= most ? i + 1 : int(1 + std::int64_t(i) * (count - 1) / std::max(most - 1, 1));
            if (survives(test, arguments, one))
                continue;
            ++failures;
            std::fprintf(stderr, "FAILED\nreplay: ZELGUI_REFUSED=%d %s %s\n", one, qPrintable(command),
                         qPrintable(function));
        }
    }
    std::printf("%d refusals, %d failures\n", plays, failures);
    return failures > 0 || plays == 0 ? 1 : 0;
}

} // namespace

void setRefusal(Refusal refusal)
{
    currentRefusal = refusal;
}

int runTest(QObject &test, const QStringList &arguments)
{
    setRefusal(refuseOne);
    refused = qEnvironmentVariableIntValue("ZELGUI_REFUSED");
    const int most = qEnvironmentVariableIntValue("ZELGUI_REFUSALS");
    return most > 0 ? refuseInTurn(test, arguments.first(), most) : QTest::qExec(&test, arguments);
}

} // namespace ScarceHost

using namespace ScarceHost;

#define ORIGINAL(name) static const auto original = originalOf(&name, #name)

char *ZelUtilStringAlloc(size_t size, const char *label)
{
    ORIGINAL(ZelUtilStringAlloc);
    return isRefused(String) ? nullptr : original(size, label);
}

IndexSet ZelUtilSetAlloc(ZelBoolean showErrors)
{
    ORIGINAL(ZelUtilSetAlloc);
    return isRefused(Set) ? nullptr : original(showErrors);
}

ZelBoolean ZelUtilSetAddMember(IndexSet set, LgIndex member, ZelBoolean showErrors)
{
    ORIGINAL(ZelUtilSetAddMember);
    return isRefused(Member) ? 0 : original(set, member, showErrors);
}

ZelBoolean ZelUtilSetAddRange(IndexSet set, LgIndex first, LgIndex last, LgIndex step, ZelBoolean showErrors)
{
    ORIGINAL(ZelUtilSetAddRange);
    return isRefused(Member) ? 0 : original(set, first, last, step, showErrors);
}

StringList_s *ZelUtilStringListAlloc(void)
{
    ORIGINAL(ZelUtilStringListAlloc);
    return isRefused(StringList) ? nullptr : original();
}

ZelBoolean ZelUtilStringListAppendString(StringList_s *list, const char *string)
{
    ORIGINAL(ZelUtilStringListAppendString);
    return isRefused(StringList) ? 0 : original(list, string);
}
