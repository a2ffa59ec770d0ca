// SPDX-License-Identifier: MIT
#include "modes.h"

#include "../dialogtour.h"
#include "../exitcodes.h"
#include "../looks/inspector.h"
#include "../looks/pages.h"
#include "../looks/report.h"
#include "../messages.h"
#include "../picturefolder.h"

#include <QFileInfo>

#include <algorithm>
#include <cstdio>

namespace {

void print(const Look &look)
{
    for (const Finding &finding : look.findings) {
        const QString line = QStringLiteral("%1: %2 %3").arg(titleOf(look), finding.widget, problemOf(finding));
        std::printf("%s\n", line.toLocal8Bit().constData());
    }
    // The watchdog ends the process without flushing.
    std::fflush(stdout);
}

/// False if a picture can't be written.
bool lookAt(const QString &entry, QDialog &dialog, PictureFolder &folder, std::vector<Look> &looks)
{
    bool saved = true;
    visitPages(dialog, [&](const QString &page) {
        Look look{entry, page, {}, inspect(dialog)};
        const QString name = page.isEmpty() ? entry : QStringLiteral("%1 - %2").arg(entry, page);
        look.picture = QFileInfo(folder.save(dialog.grab(), name)).fileName();
        saved = saved && !look.picture.isEmpty();
        print(look);
        looks.push_back(std::move(look));
    });
    return saved;
}

} // namespace

int inspectLooks(const Options &options, const Session &session)
{
    PictureFolder folder(options.inspectionDirectory);
    if (!folder.prepare()) {
        complain(QStringLiteral("--inspect %1: not a directory that can be written to").arg(folder.path()));
        return Failure;
    }
    const std::vector<orvane::host::AddOn> &entries = options.launches.isEmpty() ? session.registered : session.chosen;
    if (entries.empty()) {
        complain(QStringLiteral("--inspect: the add-ons have registered nothing to look at"));
        return Failure;
    }
    std::vector<Look> looks;
    const auto visit = [&](const QString &entry, QDialog &dialog) { return lookAt(entry, dialog, folder, looks); };
    const int exitCode = DialogTour(visit, options.timeoutSeconds.value_or(DefaultTimeoutSeconds)).run(entries);
    const QString report = folder.path() + QLatin1String("/report.json");
    if (!writeReport(report, looks)) {
        complain(QStringLiteral("%1: cannot be written").arg(report));
        return Failure;
    }
    const bool found = std::any_of(looks.begin(), looks.end(), [](const Look &look) { return !look.findings.empty(); });
    return exitCode == Success && found ? LookProblemsFound : exitCode;
}
