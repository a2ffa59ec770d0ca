// SPDX-License-Identifier: MIT
#include "modes.h"

#include <QApplication>
#include <QTimer>

int runInteractively(const Session &session)
{
    // A modal dialog needs the event loop around it.
    QTimer::singleShot(0, session.window.get(), [entries = session.chosen] {
        for (const orvane::host::AddOn &entry : entries)
            entry.launch();
    });
    return QApplication::exec();
}
