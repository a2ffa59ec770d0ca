// SPDX-License-Identifier: MIT
#include "calls.h"
#include "host.h"
#include "scenarios.h"
#include "user.h"

#include <zvsdkbase/hostcontrol.h>

#include <QApplication>
#include <QDialog>
#include <QScopedValueRollback>

#include <limits>
#include <memory>

namespace torture {

namespace {

/// In the last steps of a round, the host may close in any callback.
constexpr int kClosingSteps = 400;
/// Identifiers are never forgotten and widgets never die alone, so calls get slower with each: enough for all kinds.
constexpr int kMostObjects = 350;
constexpr int kDeepestCallback = 3;

/// One add-on without sense or reason, in one process.
class RandomAddOn
{
public:
    RandomAddOn(std::uint64_t seed, std::int64_t steps) : m_seed(seed), m_steps(steps) {}

    void step();
    void compareWithToolkit();

    /// What the add-on does in a callback; the answer is the callback's, if it is to have one.
    int inCallback(bool isAboutText);

private:
    Random stream() { return Random(m_seed, std::uint64_t(progress().step), ++m_serial); }
    void callSomething(Random &random);
    int chooseObject(const Call &call, Random &random) const;
    int chooseWrong(const Call &call, Random &random) const;
    void check(const Call &call, int id, bool hadGui, bool wasRight, long long answer, const Outputs &outputs);
    void disturb(Random &random);
    /// In it, event loops end, but not before the user has done something.
    std::unique_ptr<LoopEnder> makeEnder();
    void destroyDialog(Random &random);
    void closeHost(Random &random);
    /// What has just died is the most tempting thing to use.
    void useTheDead(Random &random);

    const std::uint64_t m_seed;
    const std::int64_t m_steps;
    std::uint64_t m_serial = 0;
    Pool m_pool;
    Model m_model;
    User m_user;
    int m_callbackDepth = 0;
    bool m_isTextCallback = false;
    const Call *m_silent = nullptr;
};

RandomAddOn *addOn = nullptr;

void done()
{
    addOn->inCallback(false);
}

void changed(const int *value)
{
    // Reads it: a dangling one shows under the sanitizers.
    const volatile int read = *value;
    static_cast<void>(read);
    addOn->inCallback(false);
}

int edited(const char *text)
{
    if (!isUtf8(text))
        fail("a text that was reported is no UTF-8");
    return addOn->inCallback(true);
}

constexpr Callbacks kCallbacks = {done, changed, edited};

int RandomAddOn::inCallback(bool isAboutText)
{
    if (!mainWindow())
        fail("a callback is called after the end of the GUI");
    if (m_silent)
        fail(std::string("a callback is called in ") + m_silent->name);
    const QScopedValueRollback<int> deeper(m_callbackDepth, m_callbackDepth + 1);
    const QScopedValueRollback<bool> text(m_isTextCallback, m_isTextCallback || isAboutText);
    Random random = stream();
    const int answer = random.between(0, 1);
    if (m_callbackDepth > kDeepestCallback)
        return answer;
    for (int calls = random.between(0, 3); calls > 0; --calls)
        callSomething(random);
    if (random.oneIn(8))
        disturb(random);
    if (progress().step > m_steps - kClosingSteps && random.oneIn(20))
        closeHost(random);
    return answer;
}

int RandomAddOn::chooseWrong(const Call &call, Random &random) const
{
    using Limits = std::numeric_limits<int>;
    const int any = random.between(-3, m_model.size() + 3);
    const int id = random.oneIn(4) ? random.of({Limits::min(), Limits::max(), -2}) : any;
    return m_model.isAliveOf(id, call.accepts) || (id == -1 && call.takesMainWindow) ? -2 : id;
}

int RandomAddOn::chooseObject(const Call &call, Random &random) const
{
    const bool isFull = call.creates != kNoKinds && m_model.size() >= kMostObjects;
    if (isFull || random.oneIn(4))
        return chooseWrong(call, random);
    if (call.takesMainWindow && random.oneIn(2))
        return -1;
    return m_model.anyOf(call.accepts, random);
}

void RandomAddOn::callSomething(Random &random)
{
    const auto isLaunch = [](const Call *chosen) { return qstrcmp(chosen->name, "ZelGUIDialogLaunch") == 0; };
    const Call *call = &random.of(calls());
    // Windows cost a thousand times what other calls do; and what creates has an end.
    if ((isLaunch(call) && !random.oneIn(15)) || (call->creates && m_model.size() >= kMostObjects))
        call = &random.of(calls());
    const int id = chooseObject(*call, random);
    const bool hadGui = mainWindow();
    const bool wasRight = hadGui && (m_model.isAliveOf(id, call->accepts) || (id == -1 && call->takesMainWindow));
    Outputs outputs;
    const Draw draw{random, m_pool, kCallbacks, outputs};
    const auto ender = isLaunch(call) && wasRight ? makeEnder() : nullptr;
    const QScopedValueRollback<const Call *> silence(m_silent, call->isSilent ? call : nullptr);
    const long long answer = call->call(id, draw);
    ++progress().calls;
    check(*call, id, hadGui, wasRight, answer, outputs);
    outputs.release();
}

void RandomAddOn::check(const Call &call, int id, bool hadGui, bool wasRight, long long answer, const Outputs &outputs)
{
    const auto failWith = [&](const char *what) {
        fail(std::string(call.name) + " of " + std::to_string(id) + " answers " + std::to_string(answer) + ": " + what);
    };
    if (!mainWindow() && hadGui)
        m_model.destroy(-1);
    if (!wasRight) {
        if (answer != (hadGui || call.accepts == kNoKinds ? call.neutral : call.neutralWithoutGui))
            failWith("not neutral");
        if (!outputs.areUntouched())
            failWith("an output argument is touched");
        return;
    }
    // What dies during the call may leave an object that is registered, and dead.
    const bool isStillRight = mainWindow() && (id == -1 || m_model.isAlive(id));
    if (call.creates != kNoKinds) {
        if (answer == m_model.size())
            m_model.add(call.creates, id);
        else if (isStillRight || answer != call.neutral)
            failWith("not the next identifier");
    }
}

void RandomAddOn::destroyDialog(Random &random)
{
    static const Kinds kDialogs = calls().front().creates | calls()[1].creates;
    const int id = m_model.anyOf(kDialogs, random);
    if (id < 0 || !mainWindow())
        return;
    auto *const dialog = mainWindow()->findChild<QDialog *>(QString::number(id));
    if (!dialog)
        fail("dialog " + std::to_string(id) + " is gone");
    m_model.destroy(id);
    delete dialog;
    useTheDead(random);
}

void RandomAddOn::closeHost(Random &random)
{
    m_model.destroy(-1);
    delete mainWindow();
    useTheDead(random);
}

void RandomAddOn::useTheDead(Random &random)
{
    for (int call = 0; call < 30; ++call)
        callSomething(random);
}

std::unique_ptr<LoopEnder> RandomAddOn::makeEnder()
{
    return std::make_unique<LoopEnder>([this] {
        Random random = stream();
        m_user.act(random);
        moment();
    });
}

void RandomAddOn::disturb(Random &random)
{
    const std::size_t choice = random.below(100);
    if (choice < 50) {
        const auto ender = makeEnder();
        for (int acts = random.between(1, 6); acts > 0; --acts)
            m_user.act(random);
    } else if (choice < 70) {
        const auto ender = makeEnder();
        QCoreApplication::processEvents();
    } else if (choice < 75) {
        orvane::host::overrideDotsPerInch(anyDouble(random), anyDouble(random));
    } else if (choice < 80) {
        orvane::host::overrideDotsPerInch(96, 96);
    } else if (choice < 84) {
        orvane::host::setBatchModeActive(choice == 80);
    } else if (choice < 92 && !m_isTextCallback) {
        // In a text's callback, the dialog may be just losing the activation; see the documentation.
        destroyDialog(random);
    }
}

void RandomAddOn::step()
{
    ++progress().step;
    Random random = stream();
    const bool areMessagesShown = random.oneIn(300);
    showMessages(areMessagesShown);
    const auto ender = areMessagesShown ? makeEnder() : nullptr;
    callSomething(random);
    if (random.oneIn(80))
        disturb(random);
    if (!mainWindow())
        m_model.destroy(-1);
    moment();
}

void RandomAddOn::compareWithToolkit()
{
    if (!mainWindow())
        return;
    std::vector<bool> isFound(std::size_t(m_model.size()));
    for (const QObject *const object : mainWindow()->findChildren<QObject *>()) {
        bool isNumber = false;
        const std::size_t id = object->objectName().toUInt(&isNumber);
        if (isNumber && id >= isFound.size())
            fail("there are more identifiers than objects were made");
        if (isNumber)
            isFound[id] = true;
    }
    for (int id = 0; id < m_model.size(); ++id) {
        if (isFound[std::size_t(id)] != m_model.isAlive(id))
            fail("object " + std::to_string(id) + (isFound[std::size_t(id)] ? " is alive" : " is gone"));
    }
}

} // namespace

void callAtRandom(std::uint64_t seed, std::int64_t steps)
{
    openMainWindow();
    // The first call decides whether there is a GUI: before anything can happen to it.
    ZelGUIDialogSetPosition(-2, 0, 0);
    {
        RandomAddOn round(seed, steps);
        addOn = &round;
        while (progress().step < steps)
            round.step();
        round.compareWithToolkit();
        delete mainWindow();
        // Without a GUI, nothing but neutral answers.
        for (int i = 0; i < 200; ++i)
            round.step();
    }
    checkLedger();
}

} // namespace torture
