// SPDX-License-Identifier: MIT
#include "hostrun.h"

#include <QProcess>

namespace {

QStringList lines(const QByteArray &text)
{
    return QString::fromLocal8Bit(text).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

} // namespace

QString module(const char *name)
{
    return QStringLiteral(MODULE_PATTERN).arg(QLatin1String(name));
}

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

QStringList command(const QByteArray &line)
{
    QStringList words;
    for (const QByteArray &word : line.split(' '))
        words << (word.startsWith('%') ? module(word.constData() + 1) : text(word.constData()));
    return words;
}

Outcome runHost(const QStringList &arguments, const QProcessEnvironment &environment)
{
    QProcess host;
    host.setProcessEnvironment(environment);
    host.start(QStringLiteral(ZELHOST_PROGRAM), arguments);
    Outcome outcome;
    if (host.waitForFinished(240000) && host.exitStatus() == QProcess::NormalExit)
        outcome.exitCode = host.exitCode();
    outcome.output = lines(host.readAllStandardOutput());
    outcome.errors = lines(host.readAllStandardError());
    return outcome;
}
