// SPDX-License-Identifier: MIT
#ifndef ZELHOST_PICTUREFOLDER_H
#define ZELHOST_PICTUREFOLDER_H

#include "files.h"

#include <QDir>
#include <QPixmap>
#include <QSet>
#include <QString>

/// Where pictures go, each in a file of its own that is called after what it shows.
class PictureFolder
{
public:
    explicit PictureFolder(const QString &path) : m_directory(fromStart(path)) {}

    /// Makes the directory if it isn't there; false if nothing can be written to it.
    bool prepare() const;
    QString path() const { return m_directory.absolutePath(); }
    /// Saves a picture; returns its absolute file name, or nothing, after a message, if that fails.
    QString save(const QPixmap &picture, const QString &name);

private:
    QString fileFor(const QString &name);

    const QDir m_directory;
    QSet<QString> m_files;
};

/// A name that any file system takes: what may mean something to one becomes an underscore.
QString fileBaseName(const QString &name);

#endif
