// SPDX-License-Identifier: MIT
#ifndef ZELHOST_SCRIPT_TRANSCRIPT_H
#define ZELHOST_SCRIPT_TRANSCRIPT_H

#include <QPointer>
#include <QStringList>
#include <QWidget>

#include <vector>

/// The script that a recording becomes. The file is written anew with every step: what the host may not survive is what
/// one would like to play back.
class Transcript
{
public:
    explicit Transcript(const QString &file) : m_file(file) {}

    /// False if the file can't be written.
    bool write();
    /// Whether a step is missing in the file; somebody has been told then.
    bool hasFailed() const { return m_hasFailed; }

    void addLaunch(const QString &name, int number, bool isOnlyOne);
    /// Adds a step of a dialog, with what has to come before it: that the dialog was expected, or which one is meant.
    void add(QWidget *window, const QString &step);

    /// What a step of this window, which is about to be written, has to begin with: nothing, or which dialog is meant.
    /// Adds that the dialog was expected, where that has to come before the step.
    QString turnTo(QWidget *window);

    /// Of the step that is added next.
    int size() const { return static_cast<int>(m_lines.size()); }
    void insert(int index, const QString &step);
    void replace(int index, const QString &step);
    void remove(int index);
    QString last() const { return m_lines.isEmpty() ? QString() : m_lines.constLast(); }

    void windowShown(QWidget *window);
    void windowHidden(QWidget *window);

private:
    bool isExpected(const QWidget *window) const;
    QWidget *top() const;

    const QString m_file;
    bool m_hasFailed = false;
    QStringList m_lines;
    std::vector<QPointer<QWidget>> m_expected;
    /// As they will lie upon each other when the script is played.
    std::vector<QPointer<QWidget>> m_order;
    bool m_isLaunching = false;
};

#endif
