// SPDX-License-Identifier: MIT
// An add-on that acts as the user of a host: chooses each entry of the menu, closes the dialog that comes up with its
// first button, and ends the host; with exit code 1 if an entry shows no dialog.
#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QMainWindow>
#include <QMenuBar>
#include <QTimer>

#include <cstdio>

namespace {

const int PollMilliseconds = 10;
const int MostIdlePolls = 500;

class Visitor : public QObject
{
public:
    Visitor()
    {
        QObject::connect(&m_poll, &QTimer::timeout, this, &Visitor::look);
        m_poll.start(PollMilliseconds);
    }

private:
    static QList<QAction *> entries()
    {
        const QWidgetList windows = QApplication::topLevelWidgets();
        for (QWidget *window : windows) {
            if (const auto *mainWindow = qobject_cast<QMainWindow *>(window))
                return mainWindow->menuBar()->actions().constLast()->menu()->actions();
        }
        return {};
    }

    void look()
    {
        const QWidgetList windows = QApplication::topLevelWidgets();
        for (QWidget *window : windows) {
            const auto *dialog = qobject_cast<QDialog *>(window);
            if (!dialog || !dialog->isVisible())
                continue;
            m_shown = true;
            // Not from within the timer, which would stand still as long as an inner event loop runs.
            QAbstractButton *button = dialog->findChild<QDialogButtonBox *>()->buttons().constFirst();
            QMetaObject::invokeMethod(button, &QAbstractButton::click, Qt::QueuedConnection);
            return;
        }
        if (m_chosen > 0 && !m_shown) {
            if (++m_idlePolls > MostIdlePolls)
                end(1);
            return;
        }
        if (m_chosen == entries().size())
            end(m_chosen > 0 ? 0 : 1);
        else
            chooseNext();
    }

    void chooseNext()
    {
        QAction *entry = entries().at(m_chosen++);
        m_shown = false;
        m_idlePolls = 0;
        std::printf("%s\n", qPrintable(entry->text()));
        QMetaObject::invokeMethod(entry, &QAction::trigger, Qt::QueuedConnection);
    }

    void end(int exitCode)
    {
        m_poll.stop();
        QApplication::exit(exitCode);
    }

    QTimer m_poll;
    /// Entries chosen so far, the last of which has shown a dialog or not.
    int m_chosen = 0;
    bool m_shown = false;
    int m_idlePolls = 0;
};

} // namespace

extern "C" void ZelAddOnInit()
{
    static Visitor visitor;
}
