// SPDX-License-Identifier: MIT
#ifndef ZELHOST_SCRIPT_NEAREST_H
#define ZELHOST_SCRIPT_NEAREST_H

#include <QStringList>

/// The one that is most like `wanted`, with most letters in common; empty if none is.
QString nearestOf(const QString &wanted, const QStringList &names);

/// For the end of a message: what there is instead of what was wanted, and which of it may have been meant.
QString whatThereIs(const QString &wanted, const QStringList &names);

#endif
