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
    // Reasons that come from the system may have several lines. Names and texts of add-ons may hold anything, also what
    // a terminal would obey.
    QString line;
    const QString text = message.trimmed().replace(QLatin1Char('\n'), QLatin1Char(' '));
    for (const QChar character : text) {
        if (character.category() == QChar::Other_Control)
            line += QStringLiteral("\\x%1").arg(character.unicode(), 2, 16, QLatin1Char('0'));
        else
            line += character;
    }
    std::fprintf(stderr, "zelhost: %s\n", line.toLocal8Bit().constData());
}

void tameToolkitMessages()
{
    originalHandler = qInstallMessageHandler(handleMessage);
}
