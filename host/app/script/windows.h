// SPDX-License-Identifier: MIT
#ifndef ZELHOST_SCRIPT_WINDOWS_H
#define ZELHOST_SCRIPT_WINDOWS_H

#include <QObject>
#include <QPointer>
#include <QWidget>

#include <functional>
#include <vector>

/// The windows that are up beside the host's main window, in the order in which they lie upon each other.
class Windows : public QObject
{
    Q_OBJECT

public:
    explicit Windows(const QWidget &mainWindow);
    ~Windows() override;

    /// Called whenever a window comes up or goes, for as long as this exists.
    void onChange(std::function<void()> changed) { m_changed = std::move(changed); }

    /// The uppermost that the user can reach; null if there is none.
    QWidget *top() const;
    /// The uppermost with this title, even one that can't be reached.
    QWidget *titled(const QString &title) const;
    /// From the lowest to the uppermost.
    std::vector<QWidget *> all() const;

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    const QWidget &m_mainWindow;
    std::vector<QPointer<QWidget>> m_shown;
    std::function<void()> m_changed;
};

/// The modal dialog that keeps users from a window, or null.
QWidget *blockerOf(const QWidget &window);

/// Whether it is no dialog of an add-on, but a message to the user.
bool isMessage(const QWidget &window);

/// The message's text, or the window's title.
QString textOfWindow(const QWidget &window);

/// For messages about it, such as: the dialog "Title".
QString describeWindow(const QWidget &window);

#endif
