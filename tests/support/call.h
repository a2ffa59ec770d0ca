// SPDX-License-Identifier: MIT
#ifndef TESTS_SUPPORT_CALL_H
#define TESTS_SUPPORT_CALL_H

#include "entrypoints.h"

#include <memory>

/// A call with a harmless argument for each parameter: sensible data, callbacks that do nothing, outputs that can be
/// seen to be written, and identifiers of nothing.
class Call
{
public:
    explicit Call(const EntryPoint &entryPoint);
    ~Call();
    Call(const Call &) = delete;
    Call &operator=(const Call &) = delete;

    /// Null, empty data behind a pointer, or a number instead of the harmless argument.
    void setNull(int position);
    void setEmpty(int position);
    void setNumber(int position, int value) { m_arguments[position] = qint64{value}; }

    QString run() const { return m_entryPoint.call(m_arguments); }
    bool areOutputsUntouched() const;

private:
    struct Data;

    void *dataFor(const Parameter &parameter);

    const EntryPoint &m_entryPoint;
    QVector<Argument> m_arguments;
    std::unique_ptr<Data> m_data;
};

#endif
