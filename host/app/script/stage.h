// SPDX-License-Identifier: MIT
#ifndef ZELHOST_SCRIPT_STAGE_H
#define ZELHOST_SCRIPT_STAGE_H

#include "hands.h"
#include "step.h"
#include "windows.h"

#include <zvsdkbase/hostcontrol.h>

/// What steps act on.
struct Stage
{
    Windows *windows = nullptr;
    QWidget *mainWindow = nullptr;
    std::vector<orvane::host::AddOn> addOns;
    /// If set: told of a launch before it happens; the number counts entries of the same name.
    std::function<void(const QString &name, int number)> launched;
    Hands hands;
    /// Those that a step has launched or expected. Steps touch no others.
    std::vector<QPointer<QWidget>> expected;
    /// The dialog, not a message, that steps were about last.
    QPointer<QWidget> current;
    bool hasHadDialog = false;
    /// The next dialog to come up is the one that a step launches.
    bool isLaunching = false;

    bool isExpected(const QWidget *window) const;
    void expect(QWidget *window);
};

/// The window that a step is about, the host's own for menus where no dialog is up. Null, with a reason, where there is
/// none that the step may touch.
QWidget *windowFor(Stage &stage, const Step &step, QString &failure);

/// Does a step. Returns why it can't be done; then, nothing was done. May return long after it was done, when a dialog
/// that it has opened is closed.
QString perform(Stage &stage, const Step &step);

/// The steps that only look.
QString lookAt(Stage &stage, const Step &step);

#endif
