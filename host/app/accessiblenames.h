// SPDX-License-Identifier: MIT
#ifndef ZELHOST_ACCESSIBLENAMES_H
#define ZELHOST_ACCESSIBLENAMES_H

#include <QObject>
#include <QPointer>
#include <QWidget>

#include <vector>

/// Gives the controls of every window names for assistive technology as the window is shown, and the controls that come
/// up later as they do: what users would call them. What has a text or a name of its own keeps that.
class AccessibleNames : public QObject
{
    Q_OBJECT

public:
    /// Begins with the windows that the application shows from now on.
    explicit AccessibleNames(QObject *parent);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void namePending();

    /// Windows in which something has come up; named together, since many widgets may come up at once.
    std::vector<QPointer<QWidget>> m_pending;
};

#endif
