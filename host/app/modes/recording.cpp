// SPDX-License-Identifier: MIT
#include "recording.h"

#include "../messages.h"

bool startRecording(const Options &options, const Session &session, std::unique_ptr<Recorder> &recorder)
{
    if (options.recordFile.isEmpty())
        return true;
    QStringList names;
    for (const orvane::host::AddOn &addOn : session.registered)
        names.append(QString::fromStdString(addOn.name));
    recorder = std::make_unique<Recorder>(options.recordFile, *session.window, names);
    if (recorder->start())
        return true;
    complain(QStringLiteral("--record %1: cannot be written").arg(options.recordFile));
    return false;
}
