// SPDX-License-Identifier: MIT
#ifndef ZELHOST_FILES_H
#define ZELHOST_FILES_H

#include <QByteArray>
#include <QString>

class QPixmap;

/// To be called before an add-on is loaded, which may change the process's directory.
void rememberStartDirectory();

/// A file that the command line or a script names: a relative name counts from where the program was started.
QString fromStart(const QString &file);

/// Writes a whole file, or leaves the one that was there. The answer is what went wrong; empty if nothing did.
QString writeFile(const QString &file, const QByteArray &content);
/// The same for a picture, as PNG.
QString writePicture(const QString &file, const QPixmap &picture);

#endif
