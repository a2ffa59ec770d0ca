// SPDX-License-Identifier: MIT
#ifndef TESTS_SUPPORT_DECLARED_H
#define TESTS_SUPPORT_DECLARED_H

#include <QStringList>

/// The names of all functions, as the public header declares them.
QStringList declaredFunctions();

#endif
