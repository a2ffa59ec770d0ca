// SPDX-License-Identifier: MIT
#ifndef TESTS_SUPPORT_ENTRYPOINTS_H
#define TESTS_SUPPORT_ENTRYPOINTS_H

#include <QString>
#include <QVector>

#include <functional>

/// One function of the interface, called with an identifier and otherwise harmless arguments.
struct EntryPoint
{
    const char *name;
    /// The toolkit classes of the objects that it works on, separated by commas; empty: it looks no identifier up.
    const char *accepts;
    /// Its answer, written out together with its output arguments.
    std::function<QString(int id)> call;
    /// Its answer for an identifier that names nothing, and without a GUI where that differs.
    QString neutral;
    QString withoutGui = neutral;
};

/// All functions of the public header.
QVector<EntryPoint> entryPoints();

/// Their names, as the public header declares them.
QStringList declaredFunctions();

#endif
