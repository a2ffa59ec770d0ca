// SPDX-License-Identifier: MIT
#include "messages.h"

#include <cstdio>
#include <cstdlib>

namespace {

QtMessageHandler originalHandler = nullptr;

void handleMessage(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    const bool expected = message.startsWith(QLatin1String("This plugin does not support")) ||
                          message.startsWith(QLatin1String("QStandardPaths: XDG_RUNTIME_DIR not set"));
    if (type == QtFatalMsg && message.contains(QLatin1String("no Qt platform plugin could be initialized"))) {
        // The toolkit would abort the process now, with a core dump.
        complain(QStringLiteral("no display can be opened; with QT_QPA_PLATFORM=offscreen, --render DIR draws pictures "
                                "of the dialogs without one"));
        std::_Exit(1);
    }
    if (!expected)
        originalHandler(type, context, message);
}

} // namespace

void complain(const QString &message)
{
    // Reasons that come from the system may have several lines.
    const QString line = message.trimmed().replace(QLatin1Char('\n'), QLatin1Char(' '));
    std::fprintf(stderr, "zelhost: %s\n", line.toLocal8Bit().constData());
}

void tameToolkitMessages()
{
    originalHandler = qInstallMessageHandler(handleMessage);
}
