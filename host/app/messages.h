// SPDX-License-Identifier: MIT
#ifndef ZELHOST_MESSAGES_H
#define ZELHOST_MESSAGES_H

#include <QString>

/// One line on the standard error, after the program's name.
void complain(const QString &message);

/// Keeps the toolkit from reporting what comes with running without a display, and from aborting where it can open
/// none: that ends the process with one more line and exit code 1. Its other messages still appear.
void tameToolkitMessages();

#endif
