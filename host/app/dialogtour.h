// SPDX-License-Identifier: MIT
#ifndef ZELHOST_DIALOGTOUR_H
#define ZELHOST_DIALOGTOUR_H

#include "watchdog.h"

#include <zvsdkbase/hostcontrol.h>

#include <QBasicTimer>
#include <QDialog>
#include <QObject>
#include <QPointer>

#include <functional>
#include <vector>

/// Launches one entry after the other, has each one's dialog visited and closes it.
///
/// Launching usually blocks in the event loop of a modal dialog, so everything else happens in a poll that this inner
/// loop runs as well: wait until the dialog was painted, visit it, close all dialogs, the topmost first.
class DialogTour : public QObject
{
    Q_OBJECT

public:
    /// Is given the name of an entry and its dialog, once for each entry; false if that ends in an error. It must not
    /// call the add-on back.
    using Visitor = std::function<bool(const QString &entry, QDialog &dialog)>;

    DialogTour(Visitor visitor, double timeoutSeconds);

    /// Runs the event loop until all was visited; returns the program's exit code.
    int run(const std::vector<orvane::host::AddOn> &entries);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void timerEvent(QTimerEvent *event) override;

private:
    struct Shown
    {
        QPointer<QDialog> dialog;
        bool painted = false;
        /// While an attempt to close it runs, which may open a question of the add-on and wait for its answer.
        bool closing = false;
        int attempts = 0;
    };

    void launchNext();
    void finishEntry();
    Shown *find(const QDialog *dialog);
    void visit(QDialog *dialog);
    void close(QDialog *dialog);

    const Visitor m_visitor;
    Watchdog m_watchdog;
    QBasicTimer m_poll;
    std::vector<orvane::host::AddOn> m_entries;
    /// Of m_entries: the one at work, or the one to come.
    std::size_t m_index = 0;
    /// From the launch of an entry until its last dialog is gone.
    bool m_entryActive = false;
    /// While the add-on's function has not returned.
    bool m_launching = false;
    bool m_visited = false;
    /// Polls in a row that found the entry's function returned and no dialog.
    int m_quietPolls = 0;
    /// Visible dialogs in the order in which they came up, the topmost last.
    std::vector<Shown> m_shown;
    bool m_failed = false;
};

#endif
