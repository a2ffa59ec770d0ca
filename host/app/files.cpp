// SPDX-License-Identifier: MIT
#include "files.h"

#include <QBuffer>
#include <QDir>
#include <QPixmap>
#include <QSaveFile>

namespace {

const QDir &startDirectory()
{
    static const QDir directory = QDir::current();
    return directory;
}

} // namespace

void rememberStartDirectory()
{
    startDirectory();
}

QString fromStart(const QString &file)
{
    return startDirectory().absoluteFilePath(file);
}

QString writeFile(const QString &file, const QByteArray &content)
{
    QSaveFile output(fromStart(file));
    // Where the folder takes no new file, the old one is written to.
    output.setDirectWriteFallback(true);
    // commit() alone would overlook that the disk is full: it doesn't ask whether the last bytes have got there.
    if (output.open(QIODevice::WriteOnly) && output.write(content) == content.size() && output.flush() &&
        output.commit())
        return {};
    QString reason = output.errorString();
    output.cancelWriting();
    return reason;
}

QString writePicture(const QString &file, const QPixmap &picture)
{
    QBuffer png;
    png.open(QIODevice::WriteOnly);
    return picture.save(&png, "PNG") ? writeFile(file, png.data()) : QStringLiteral("there is no picture");
}
