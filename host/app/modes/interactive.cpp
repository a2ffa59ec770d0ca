// SPDX-License-Identifier: MIT
#include "modes.h"

#include "../exitcodes.h"
#include "recording.h"

#include <QApplication>
#include <QTimer>

int runInteractively(const Options &options, const Session &session)
{
    std::unique_ptr<Recorder> recorder;
    if (!startRecording(options, session, recorder))
        return Failure;
    // A modal dialog needs the event loop around it.
    QTimer::singleShot(0, session.window.get(), [entries = session.chosen, recorder = recorder.get()] {
        for (const orvane::host::AddOn &entry : entries) {
            if (recorder)
                recorder->noteLaunch(QString::fromStdString(entry.name), 1);
            entry.launch();
        }
    });
    return QApplication::exec();
}
