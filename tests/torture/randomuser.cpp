// SPDX-License-Identifier: MIT
#include "host.h"
#include "scenarios.h"
#include "user.h"

#include <zvsdkbase/hostcontrol.h>

#include <QApplication>
#include <QBasicTimer>
#include <QLibrary>
#include <QWidget>

namespace torture {

namespace {

/// Even windows that open others when they are closed are done by then.
constexpr int kMostDismissals = 200;

/// Acts from inside whatever event loop is running: those of modal dialogs, menus and drags too.
class Session : public QObject
{
public:
    Session(std::uint64_t seed, std::int64_t steps, int entry) : m_seed(seed), m_steps(steps), m_entry(entry)
    {
        m_timer.start(0, this);
    }
    bool isDone() const { return m_isDone; }

protected:
    void timerEvent(QTimerEvent *) override
    {
        // Started anew, since a timer doesn't fire in a loop within its own event.
        m_timer.stop();
        m_timer.start(0, this);
        if (progress().step < m_steps)
            step();
        else
            close();
        moment();
    }

private:
    void step()
    {
        ++progress().step;
        Random random(m_seed, std::uint64_t(progress().step));
        if (isHostInReach() && mainWindow() && (QApplication::activeWindow() == mainWindow() || random.oneIn(50)))
            launch(random);
        else
            m_user.act(random);
    }

    /// The host's menu can't be used behind a modal dialog.
    static bool isHostInReach() { return !QApplication::activeModalWidget() && !QApplication::activePopupWidget(); }

    void launch(Random &random)
    {
        const auto entries = orvane::host::registeredAddOns();
        const std::size_t any = random.below(entries.size());
        entries[m_entry == kAllEntries ? any : std::size_t(m_entry)].launch();
    }

    void close()
    {
        if (!m_user.dismiss())
            m_isDone = true;
        else if (++m_dismissals > kMostDismissals)
            fail("a window can't be closed");
    }

    const std::uint64_t m_seed;
    const std::int64_t m_steps;
    const int m_entry;
    QBasicTimer m_timer;
    User m_user;
    int m_dismissals = 0;
    bool m_isDone = false;
};

} // namespace

int loadExamples()
{
    for (const QString &file : QStringLiteral(TORTURE_ADDONS).split(QLatin1Char(':'))) {
        QLibrary library(file);
        library.setLoadHints(QLibrary::ResolveAllSymbolsHint | QLibrary::PreventUnloadHint);
        if (const auto initialize = reinterpret_cast<void (*)()>(library.resolve("ZelAddOnInit")))
            initialize();
        else
            fail(library.errorString().toStdString());
    }
    return static_cast<int>(orvane::host::registeredAddOns().size());
}

void useAtRandom(std::uint64_t seed, std::int64_t steps, int entry)
{
    openMainWindow();
    {
        const Session session(seed, steps, entry);
        while (!session.isDone())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    delete mainWindow();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    checkLedger();
}

} // namespace torture
