// SPDX-License-Identifier: MIT
#include "host.h"
#include "randomsource.h"
#include "scenarios.h"
#include "user.h"

#include <zvsdkbase/hostcontrol.h>

#include <QApplication>
#include <QDialog>
#include <QScopedValueRollback>

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
    Model m_model{[] { return !mainWindow().isNull(); }};
    User m_user;
    int m_callbackDepth = 0;
    bool m_isTextCallback = false;
    const Function *m_silent = nullptr;
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

void RandomAddOn::callSomething(Random &random)
{
    const auto isLaunch = [](const Function *chosen) { return qstrcmp(chosen->name, "ZelGUIDialogLaunch") == 0; };
    const auto isTooMuch = [this](const Function *chosen) {
        return chosen->created != ObjectType::None && m_model.end() >= kMostObjects && mainWindow();
    };
    const Function *function = &random.of(functions());
    // Windows cost a thousand times what other calls do; and what creates has an end.
    if ((isLaunch(function) && !random.oneIn(15)) || isTooMuch(function))
        function = &random.of(functions());
    if (isTooMuch(function))
        return;
    RandomSource source(random, m_model, kCallbacks);
    Call call(*function, source);
    const auto ender = isLaunch(function) ? makeEnder() : nullptr;
    const QScopedValueRollback<const Function *> silence(m_silent, function->mayReport ? nullptr : function);
    const std::string fault = m_model.faultOf(call, [&call] { call.run(); });
    ++progress().calls;
    if (!fault.empty())
        fail(fault);
}

void RandomAddOn::destroyDialog(Random &random)
{
    const int id = RandomSource(random, m_model, kCallbacks).anyOf(orvane::interface::bit(ObjectType::Dialog));
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
        RandomSource source(random, m_model, kCallbacks);
        const double horizontal = source.number();
        orvane::host::overrideDotsPerInch(horizontal, source.number());
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
    std::vector<bool> isFound(std::size_t(m_model.end()));
    for (const QObject *const object : mainWindow()->findChildren<QObject *>()) {
        bool isNumber = false;
        const std::size_t id = object->objectName().toUInt(&isNumber);
        if (isNumber && id >= isFound.size())
            fail("there are more identifiers than objects were made");
        if (isNumber)
            isFound[id] = true;
    }
    for (int id = 0; id < m_model.end(); ++id) {
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
