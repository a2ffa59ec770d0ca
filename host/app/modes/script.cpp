// SPDX-License-Identifier: MIT
#include "modes.h"

#include "../exitcodes.h"
#include "../files.h"
#include "../messages.h"
#include "../script/language.h"
#include "../script/player.h"
#include "recording.h"

#include <QFile>

int playScript(const Options &options, const Session &session)
{
    QFile file(fromStart(options.scriptFile));
    if (!file.open(QIODevice::ReadOnly)) {
        complain(QStringLiteral("--script %1: %2").arg(options.scriptFile, file.errorString()));
        return Failure;
    }
    std::vector<Step> steps;
    const QString failure = readSteps(QString::fromUtf8(file.readAll()), steps);
    if (!failure.isEmpty()) {
        complain(QStringLiteral("%1:%2").arg(options.scriptFile, failure));
        return Failure;
    }
    std::unique_ptr<Recorder> recorder;
    if (!startRecording(options, session, recorder))
        return Failure;
    Windows windows(*session.window);
    Stage stage;
    stage.windows = &windows;
    stage.mainWindow = session.window.get();
    stage.addOns = session.registered;
    if (recorder)
        stage.launched = [&recorder](const QString &name, int number) { recorder->noteLaunch(name, number); };
    Player player(options.scriptFile, std::move(steps), std::move(stage),
                  options.timeoutSeconds.value_or(DefaultTimeoutSeconds));
    const int exitCode = player.run();
    return exitCode == Success && recorder && recorder->hasFailed() ? Failure : exitCode;
}
