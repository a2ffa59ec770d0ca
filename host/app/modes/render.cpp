// SPDX-License-Identifier: MIT
#include "modes.h"

#include "../exitcodes.h"
#include "../messages.h"
#include "../renderer.h"

#include <QApplication>
#include <QFileInfo>

int drawPictures(const Options &options, const Session &session)
{
    const QDir directory(options.pictureDirectory);
    if (!directory.mkpath(QStringLiteral(".")) || !QFileInfo(directory.absolutePath()).isWritable()) {
        complain(QStringLiteral("--render %1: not a directory that can be written to").arg(options.pictureDirectory));
        return Failure;
    }
    const std::vector<orvane::host::AddOn> &entries = options.launches.isEmpty() ? session.registered : session.chosen;
    if (entries.empty()) {
        complain(QStringLiteral("--render: the add-ons have registered nothing to draw"));
        return Failure;
    }
    // Only the renderer knows when the last dialog is closed.
    QApplication::setQuitOnLastWindowClosed(false);
    Renderer renderer(directory, options.timeoutSeconds.value_or(DefaultTimeoutSeconds));
    return renderer.run(entries);
}
