// SPDX-License-Identifier: MIT
#ifndef ZELHOST_SCRIPT_FINDER_H
#define ZELHOST_SCRIPT_FINDER_H

#include "words.h"

#include <QStringList>
#include <QWidget>

/// What a step can be done to.
struct Kind
{
    /// For messages, without an article.
    const char *noun;
    bool (*accepts)(const QObject &object);
};

namespace Kinds {
extern const Kind Button;
extern const Kind Toggle;
extern const Kind RadioButton;
/// Option menus and radio boxes.
extern const Kind Choice;
extern const Kind Field;
extern const Kind MultiLineText;
extern const Kind List;
extern const Kind Scale;
extern const Kind Spin;
/// What users act on, without labels: their texts are the names of others.
extern const Kind Control;
extern const Kind Anything;
} // namespace Kinds

/// What was found, or the reason why not.
struct SearchResult
{
    QObject *object = nullptr;
    QString failure;

    template <typename T>
    T *as() const
    {
        return qobject_cast<T *>(object);
    }
};

/// Finds what has a name, or is labelled so, or stands in a frame with that title and has no name; or what has an
/// identifier. Of several, one that is visible; `Name [2]` is
/// the second of them in reading order.
SearchResult find(const QWidget &dialog, const Word &name, const Kind &kind);

/// The same, but only what a user can act on.
SearchResult findUsable(const QWidget &dialog, const Word &name, const Kind &kind);

/// What find() finds `object` by, such as its name in quotes or its identifier; empty if there is nothing.
QString nameFor(const QObject &object, const QWidget &dialog, const Kind &kind);

/// The buttons of a radio box, or the widget itself.
QList<QWidget *> widgetsOf(QObject *object);

/// Names of all that is visible, for messages.
QStringList namesOf(const QWidget &dialog, const Kind &kind);

/// Why users can't act on the widget now; empty if they can.
QString hindrance(const QWidget &widget);

#endif
