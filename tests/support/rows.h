// SPDX-License-Identifier: MIT
#ifndef TESTS_SUPPORT_ROWS_H
#define TESTS_SUPPORT_ROWS_H

#include <QTest>

#include <type_traits>

/// The data rows of a test function:
///
///     const Rows<QByteArray, int> row("text", "length");
///     row("empty", "", 0);
///
/// C strings become texts as UTF-8.
template <typename... Columns>
class Rows
{
    struct Text : QString
    {
        Text(const char *utf8) : QString(QString::fromUtf8(utf8)) {}
        Text(const QString &text) : QString(text) {}
    };
    template <typename Column>
    using Cell = std::conditional_t<std::is_same_v<Column, QString>, Text, Column>;

public:
    template <typename... Names>
    explicit Rows(Names... names)
    {
        (QTest::addColumn<Columns>(names), ...);
    }

    void operator()(const char *name, const Cell<Columns> &...values) const
    {
        (QTest::newRow(name) << ... << static_cast<const Columns &>(values));
    }
};

#endif
