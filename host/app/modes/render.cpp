// SPDX-License-Identifier: MIT
#include "modes.h"

#include "../dialogtour.h"
#include "../exitcodes.h"
#include "../messages.h"
#include "../picturefolder.h"

#include <cstdio>

int drawPictures(const Options &options, const Session &session)
{
    PictureFolder folder(options.pictureDirectory);
    if (!folder.prepare()) {
        complain(QStringLiteral("--render %1: not a directory that can be written to").arg(options.pictureDirectory));
        return Failure;
    }
    const std::vector<orvane::host::AddOn> &entries = options.launches.isEmpty() ? session.registered : session.chosen;
    if (entries.empty()) {
        complain(QStringLiteral("--render: the add-ons have registered nothing to draw"));
        return Failure;
    }
    const auto draw = [&folder](const QString &entry, QDialog &dialog) {
        const QString file = folder.save(dialog.grab(), entry);
        if (file.isEmpty())
            return false;
        std::printf("%s\n", file.toLocal8Bit().constData());
        // The watchdog ends the process without flushing.
        std::fflush(stdout);
        return true;
    };
    return DialogTour(draw, options.timeoutSeconds.value_or(DefaultTimeoutSeconds)).run(entries);
}
