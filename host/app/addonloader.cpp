// SPDX-License-Identifier: MIT
#include "addonloader.h"

#include "files.h"

#include <QFileInfo>
#include <QLibrary>

QString loadAddOn(const QString &file)
{
    const QFileInfo info(fromStart(file));
    if (!info.exists())
        return QStringLiteral("%1: no such file").arg(file);
    if (!info.isFile())
        return QStringLiteral("%1: not a file").arg(file);

    QLibrary library(info.absoluteFilePath());
    // A missing function should show now, not in the middle of a dialog; and no entry may lose its code.
    library.setLoadHints(QLibrary::ResolveAllSymbolsHint | QLibrary::PreventUnloadHint);
    if (!library.load())
        return QStringLiteral("%1: cannot be loaded as an add-on: %2").arg(file, library.errorString());
    const auto initialize = reinterpret_cast<void (*)()>(library.resolve("ZelAddOnInit"));
    if (!initialize)
        return QStringLiteral("%1: not an add-on, it has no function ZelAddOnInit").arg(file);
    initialize();
    return {};
}
