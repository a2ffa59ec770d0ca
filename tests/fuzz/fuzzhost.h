// SPDX-License-Identifier: MIT
#ifndef TESTS_FUZZ_FUZZHOST_H
#define TESTS_FUZZ_FUZZHOST_H

#include <QMainWindow>
#include <QStringList>

/// The host around fuzz targets. An input gets a FuzzDialog of its own, or, where it only sets texts, widgets that
/// stay: they are what takes most of the time.
namespace FuzzHost {

/// The only window that outlives an input. Makes the toolkit's application at the first call.
QMainWindow &mainWindow();

/// What the host was asked to tell the user since the input began.
QStringList &messages();

/// Ends the process, which is what counts as a failure, unless what an add-on may rely on holds.
void require(bool holds, const char *what);

/// Behind an input: nothing handed out may be left over.
void endInput();

/// The object behind an identifier, or null.
template <typename T>
T *object(int id)
{
    return mainWindow().findChild<T *>(QString::number(id));
}

/// A byte order mark is text as well: the toolkit would drop it.
QString fromUtf8(const char *text);

/// The text of a field, released.
QString textOf(int field);

} // namespace FuzzHost

/// A dialog, destroyed behind an input together with whatever else the input has left.
class FuzzDialog
{
public:
    FuzzDialog();
    ~FuzzDialog();
    FuzzDialog(const FuzzDialog &) = delete;
    FuzzDialog &operator=(const FuzzDialog &) = delete;

    int id() const { return m_id; }

private:
    int m_id;
};

#endif
