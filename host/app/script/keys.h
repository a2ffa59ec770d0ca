// SPDX-License-Identifier: MIT
#ifndef ZELHOST_SCRIPT_KEYS_H
#define ZELHOST_SCRIPT_KEYS_H

#include <QString>

/// A key and the modifiers that are held down with it.
struct KeyPress
{
    /// Qt::Key_unknown where the text names none.
    Qt::Key key = Qt::Key_unknown;
    Qt::KeyboardModifiers modifiers;
};

/// Reads "Tab", "Shift+Tab", "Ctrl+A".
KeyPress keyFromText(const QString &text);

/// The opposite.
QString textOfKey(const KeyPress &press);

#endif
