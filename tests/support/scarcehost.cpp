// SPDX-License-Identifier: MIT
#include "scarcehost.h"

#include <zvsdkbase/zelutil.h>

#include <QMetaMethod>
#include <QTest>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <new>
#include <vector>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

namespace ScarceHost {

namespace {

/// A test function takes some seconds, or a minute with sanitizers on a busy machine; one that is stuck is a failure.
constexpr unsigned kStuckSeconds = 300;

Refusal currentRefusal = nullptr;

bool isRefused(Thing thing, const void *caller)
{
    return currentRefusal && currentRefusal(thing, caller);
}

const void *moduleOf(const void *address)
{
    Dl_info info{};
    return dladdr(address, &info) ? info.dli_fbase : nullptr;
}

std::int64_t refused = 0;

/// Counted where the process that watches sees it.
std::int64_t &asked()
{
    static auto *const shared = [] {
        const std::size_t size = sizeof(std::int64_t);
        void *const memory = mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
        return memory == MAP_FAILED ? new std::int64_t{0} : new (memory) std::int64_t{0};
    }();
    return *shared;
}

/// A test that is refused something itself would say nothing of the library.
bool refuseOne(Thing, const void *caller)
{
    static const void *const program = moduleOf(reinterpret_cast<const void *>(&refuseOne));
    return moduleOf(caller) != program && ++asked() == refused;
}

/// Runs a test function in a process of its own, and tells how that ended: nothing if all is well. Without a refusal,
/// the test has to pass.
QString play(QObject &test, const QStringList &arguments, std::int64_t refusedOne)
{
    std::fflush(nullptr);
    asked() = 0;
    const pid_t child = fork();
    if (child == 0) {
        alarm(kStuckSeconds);
        refused = refusedOne;
        // What the test has to say is of no interest, in contrast to what sanitizers have.
        dup2(open("/dev/null", O_WRONLY), STDOUT_FILENO);
        const int failures = QTest::qExec(&test, arguments);
        _exit(refusedOne > 0 ? 0 : failures);
    }
    int status = -1;
    waitpid(child, &status, 0);
    if (WIFSIGNALED(status))
        return QStringLiteral("ended by signal %1").arg(WTERMSIG(status));
    if (status != 0)
        return QStringLiteral("exit code %1").arg(WEXITSTATUS(status));
    return asked() < refusedOne ? QStringLiteral("asked for %1 things only").arg(asked()) : QString();
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

/// Up to `most` numbers of things that are refused, from 1 to `count`, spread evenly.
std::vector<std::int64_t> chosen(std::int64_t count, int most)
{
    const std::int64_t number = std::min<std::int64_t>(count, most);
    const std::int64_t step = number > 0 ? count / number : 1;
    const std::int64_t first = 1 + qEnvironmentVariableIntValue("ZELGUI_SEED") % step;
    std::vector<std::int64_t> all;
    for (std::int64_t i = 0; i < number; ++i)
        all.push_back(first + i * step);
    return all;
}

int refuseInTurn(QObject &test, const QStringList &arguments, int most)
{
    const QString program = arguments.first();
    const QStringList functions = arguments.size() > 1 ? arguments.mid(1) : testFunctions(test);
    int failures = 0;
    std::size_t plays = 0;
    const auto tryOne = [&](const QString &function, std::int64_t one) {
        const QString end = play(test, {program, QStringLiteral("-nocrashhandler"), function}, one);
        if (end.isEmpty())
            return;
        ++failures;
        std::fprintf(stderr, "FAILED, %s\nreplay: ZELGUI_SEED=%s ZELGUI_REFUSED=%lld %s %s\n", qPrintable(end),
                     qgetenv("ZELGUI_SEED").constData(), static_cast<long long>(one), qPrintable(program),
                     qPrintable(function));
    };
    for (const QString &function : functions) {
        tryOne(function, 0);
        const std::vector<std::int64_t> refusals = chosen(asked(), most);
        for (const std::int64_t one : refusals)
            tryOne(function, one);
        plays += refusals.size();
    }
    std::printf("%zu refusals, %d failures%s\n", plays, failures, plays == 0 ? "; nothing is asked for" : "");
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
    return most > 0 ? refuseInTurn(test, arguments, most) : QTest::qExec(&test, arguments);
}

} // namespace ScarceHost

using namespace ScarceHost;

#define ORIGINAL(name) static const auto original = originalOf(&name, #name)
#define IS_REFUSED(thing) isRefused(thing, __builtin_return_address(0))

char *ZelUtilStringAlloc(size_t size, const char *label)
{
    ORIGINAL(ZelUtilStringAlloc);
    return IS_REFUSED(String) ? nullptr : original(size, label);
}

IndexSet ZelUtilSetAlloc(ZelBoolean showErrors)
{
    ORIGINAL(ZelUtilSetAlloc);
    return IS_REFUSED(Set) ? nullptr : original(showErrors);
}

ZelBoolean ZelUtilSetAddMember(IndexSet set, LgIndex member, ZelBoolean showErrors)
{
    ORIGINAL(ZelUtilSetAddMember);
    return IS_REFUSED(Member) ? 0 : original(set, member, showErrors);
}

ZelBoolean ZelUtilSetAddRange(IndexSet set, LgIndex first, LgIndex last, LgIndex step, ZelBoolean showErrors)
{
    ORIGINAL(ZelUtilSetAddRange);
    return IS_REFUSED(Member) ? 0 : original(set, first, last, step, showErrors);
}

StringList_s *ZelUtilStringListAlloc(void)
{
    ORIGINAL(ZelUtilStringListAlloc);
    return IS_REFUSED(StringList) ? nullptr : original();
}

ZelBoolean ZelUtilStringListAppendString(StringList_s *list, const char *string)
{
    ORIGINAL(ZelUtilStringListAppendString);
    return IS_REFUSED(StringList) ? 0 : original(list, string);
}
