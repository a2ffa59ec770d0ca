// SPDX-License-Identifier: MIT
#include "picturefolder.h"

#include "files.h"
#include "messages.h"

#include <QFileInfo>

bool PictureFolder::prepare() const
{
    return m_directory.mkpath(QStringLiteral(".")) && QFileInfo(m_directory.absolutePath()).isWritable();
}

QString PictureFolder::save(const QPixmap &picture, const QString &name)
{
    QString file = m_directory.absoluteFilePath(fileFor(name));
    const QString failure = writePicture(file, picture);
    if (failure.isEmpty())
        return file;
    complain(QStringLiteral("%1: %2").arg(file, failure));
    return {};
}

QString PictureFolder::fileFor(const QString &name)
{
    const QString base = fileBaseName(name);
    QString file = base + QLatin1String(".png");
    for (int number = 2; m_files.contains(file); ++number)
        file = QStringLiteral("%1-%2.png").arg(base, QString::number(number));
    m_files.insert(file);
    return file;
}

QString fileBaseName(const QString &name)
{
    QString base;
    for (const QChar c : name) {
        const bool kept = (c >= QLatin1Char('a') && c <= QLatin1Char('z')) ||
                          (c >= QLatin1Char('A') && c <= QLatin1Char('Z')) ||
                          (c >= QLatin1Char('0') && c <= QLatin1Char('9')) || QLatin1String("-_. ").contains(c);
        base += kept ? c : QLatin1Char('_');
    }
    return base;
}
