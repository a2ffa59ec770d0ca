// SPDX-License-Identifier: MIT
#include "interfaceloader.h"

#include <zvsdkbase/hostcontrol.h>

#include <QFileInfo>
#include <QLibrary>

QString loadInterface(bool observed)
{
    // Linked or found by its name alone, zelgui would come first, and the layer would never be called.
    const QString name = observed ? QStringLiteral("libzelgui-trace.so") : QStringLiteral(ZELGUI_LIBRARY_NAME);
    const QString folder = QFile::decodeName(orvane::host::libraryFolder().c_str()) + QLatin1Char('/');
    // Installed, the host's libraries and the layer are in a folder inside the one that zelgui is in.
    const QString above = folder + QLatin1String("../") + name;
    const QString file = !observed && QFileInfo::exists(above) ? above : folder + name;
    if (observed && !QFileInfo::exists(file))
        return QStringLiteral("--trace, --strict: this zelhost was built without them, there is no %1").arg(file);
    QLibrary library(file);
    library.setLoadHints(QLibrary::ResolveAllSymbolsHint | QLibrary::ExportExternalSymbolsHint |
                         QLibrary::PreventUnloadHint);
    return library.load() ? QString() : QStringLiteral("%1: cannot be loaded: %2").arg(file, library.errorString());
}
