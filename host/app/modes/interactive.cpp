// SPDX-License-Identifier: MIT
#include "modes.h"

#include "../exitcodes.h"
#include "recording.h"

#include <QApplication>
#include <QMap>
#include <QTimer>

#include <algorithm>

namespace {

/// Launches what --launch names: each time all entries of a name, in the order of their registration.
void launchChosen(const Session &session, Recorder *recorder)
{
    QMap<std::string, int> launched;
    for (const orvane::host::AddOn &entry : session.chosen) {
        const auto sameName = [&entry](const orvane::host::AddOn &other) { return other.name == entry.name; };
        const auto all = std::count_if(session.registered.begin(), session.registered.end(), sameName);
        int &number = launched[entry.name];
        number = number < all ? number + 1 : 1;
        if (recorder)
            recorder->noteLaunch(QString::fromStdString(entry.name), number);
        entry.launch();
    }
}

} // namespace

int runInteractively(const Options &options, const Session &session)
{
    std::unique_ptr<Recorder> recorder;
    if (!startRecording(options, session, recorder))
        return Failure;
    // A modal dialog needs the event loop around it.
    QTimer::singleShot(0, session.window.get(),
                       [session = &session, recorder = recorder.get()] { launchChosen(*session, recorder); });
    const int exitCode = QApplication::exec();
    return recorder && recorder->hasFailed() ? Failure : exitCode;
}
