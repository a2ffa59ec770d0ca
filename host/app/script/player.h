// SPDX-License-Identifier: MIT
#ifndef ZELHOST_SCRIPT_PLAYER_H
#define ZELHOST_SCRIPT_PLAYER_H

#include "../watchdog.h"
#include "stage.h"

#include <QBasicTimer>
#include <QElapsedTimer>

/// Does the steps of a script, one after the other.
///
/// A step that opens a modal dialog returns only after that has closed, so the steps that follow are done by a poll,
/// which the dialog's event loop runs as well.
class Player : public QObject
{
    Q_OBJECT

public:
    /// `file` is for messages.
    Player(const QString &file, std::vector<Step> steps, Stage stage, double timeoutSeconds);

    /// Runs the event loop until all steps are done or one can't be; returns the program's exit code.
    int run();

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    void windowsChanged();
    bool isBusy() const;
    bool isSettled();
    void goOn();
    void doNextStep();
    void attempt(const Step &step);
    void finish();
    void watch();
    void remark();
    void end(int exitCode);

    const QString m_file;
    const std::vector<Step> m_steps;
    Stage m_stage;
    Watchdog m_watchdog;
    QBasicTimer m_poll;
    bool m_isQueued = false;
    std::size_t m_next = 0;
    /// While a step is being done; and how many event loops there were when it began.
    bool m_isActing = false;
    int m_actingLoops = 0;
    /// Polls in a row that have found the same window ready.
    int m_quietPolls = 0;
    QPointer<QWidget> m_lastTop;
    /// How long a step waits for what it needs.
    double m_patienceSeconds;
    /// Since the next step was first tried; invalid before that.
    QElapsedTimer m_waiting;
    bool m_hasEnded = false;
    int m_exitCode = 1;
};

#endif
