// SPDX-License-Identifier: MIT
#include "recording.h"

bool startRecording(const Options &options, const Session &session, std::unique_ptr<Recorder> &recorder)
{
    if (options.recordFile.isEmpty())
        return true;
    QStringList names;
    for (const orvane::host::AddOn &addOn : session.registered)
        names.append(QString::fromStdString(addOn.name));
    recorder = std::make_unique<Recorder>(options.recordFile, *session.window, names);
    return recorder->start();
}
