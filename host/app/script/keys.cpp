// SPDX-License-Identifier: MIT
#include "keys.h"

#include <QKeySequence>

namespace {

// What a sequence is made of differs between the versions of the toolkit.
[[maybe_unused]] int combined(int key)
{
    return key;
}

template <typename Combination>
auto combined(Combination combination) -> decltype(combination.toCombined())
{
    return combination.toCombined();
}

} // namespace

KeyPress keyFromText(const QString &text)
{
    const QKeySequence sequence = QKeySequence::fromString(text, QKeySequence::PortableText);
    KeyPress press;
    if (sequence.count() != 1)
        return press;
    const int value = combined(sequence[0]);
    press.key = static_cast<Qt::Key>(value & ~static_cast<int>(Qt::KeyboardModifierMask));
    press.modifiers = Qt::KeyboardModifiers(QFlag(value & static_cast<int>(Qt::KeyboardModifierMask)));
    // The toolkit knows this key by another name.
    if (press.key == Qt::Key_Tab && press.modifiers & Qt::ShiftModifier)
        press.key = Qt::Key_Backtab;
    return press;
}

QString textOfKey(const KeyPress &press)
{
    const Qt::Key key = press.key == Qt::Key_Backtab ? Qt::Key_Tab : press.key;
    // The key pad's keys do what the others of their name do.
    const auto modifiers = press.modifiers & ~Qt::KeypadModifier;
    return QKeySequence(static_cast<int>(key) | static_cast<int>(modifiers)).toString(QKeySequence::PortableText);
}
