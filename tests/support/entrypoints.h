// SPDX-License-Identifier: MIT
#ifndef TESTS_SUPPORT_ENTRYPOINTS_H
#define TESTS_SUPPORT_ENTRYPOINTS_H

#include <QString>
#include <QStringList>
#include <QVector>

#include <functional>
#include <variant>

/// What a parameter takes: its type; and for numbers, whether they are identifiers.
enum class Kind {
    Id,
    Int,
    Byte,
    LgIndex,
    Double,
    Text,
    Pixels,
    Positions,
    Set,
    StringList,
    OutInt,
    OutInts,
    OutByte,
    OutLgIndex,
    OutDouble,
    OutSet,
    VoidCallback,
    IntCallback,
    TextCallback
};

inline bool isPointer(Kind kind)
{
    return kind > Kind::Double;
}
inline bool isCallback(Kind kind)
{
    return kind >= Kind::VoidCallback;
}
inline bool isOutput(Kind kind)
{
    return kind >= Kind::OutInt && kind <= Kind::OutSet;
}

struct Parameter
{
    Kind kind;
    /// As the public header has it.
    QString name;
    /// For identifiers: the toolkit classes of the objects that are taken, or the names of kinds of object that share
    /// their class with others; empty if none is looked up.
    QStringList accepts;
};

/// Integers of every size, doubles, data of every type, and callbacks.
using Argument = std::variant<qint64, double, void *, void (*)()>;

/// One function of the interface.
struct EntryPoint
{
    const char *name;
    QVector<Parameter> parameters;
    /// Calls it with one argument for each parameter. The answer is written out; memory behind it is released.
    std::function<QString(const QVector<Argument> &)> call;
    /// The answer where an identifier names nothing, and without a GUI where that differs.
    QString neutral;
    QString withoutGui = neutral;

    QVector<int> positionsOf(const std::function<bool(Kind)> &isMeant) const;
    QVector<int> identifiers() const
    {
        return positionsOf([](Kind kind) { return kind == Kind::Id; });
    }
};

/// All that this table has of the public header.
const QVector<EntryPoint> &entryPoints();

#endif
