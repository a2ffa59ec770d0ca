// SPDX-License-Identifier: MIT
#ifndef TESTS_HOST_HOSTRUN_H
#define TESTS_HOST_HOSTRUN_H

#include <QByteArray>
#include <QProcessEnvironment>
#include <QStringList>

/// The file of one of the add-ons in modules/ or misuse/.
QString module(const char *name);

/// C strings are never decoded implicitly.
QString text(const char *utf8);

/// The words of a command, without a blank in any of them; "%silent" stands for the file of the add-on silent.
QStringList command(const QByteArray &line);

/// How a run of zelhost has ended, and what it has written.
struct Outcome
{
    int exitCode = -1;
    QStringList output;
    QStringList errors;
};

/// Ends zelhost by itself after four minutes, as a failure.
Outcome runHost(const QStringList &arguments,
                const QProcessEnvironment &environment = QProcessEnvironment::systemEnvironment());

#endif
