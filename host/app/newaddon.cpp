// SPDX-License-Identifier: MIT
#include "newaddon.h"

#include "exitcodes.h"
#include "messages.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <cstdio>
#include <utility>
#include <vector>

namespace {

using Replacements = std::vector<std::pair<QString, QString>>;

/// What is left of a directory's name is safe in C, in CMake and in the shell: words of letters and digits.
QStringList wordsOf(const QString &directoryName)
{
    static const QRegularExpression others(QStringLiteral("[^A-Za-z0-9]+"));
    QStringList words = directoryName.split(others, Qt::SkipEmptyParts);
    // Names that CMake keeps for targets of its own.
    static const QStringList reserved = {
        QStringLiteral("all"),  QStringLiteral("clean"),   QStringLiteral("preinstall"), QStringLiteral("help"),
        QStringLiteral("test"), QStringLiteral("install"), QStringLiteral("package"),    QStringLiteral("zelhost"),
    };
    if (words.isEmpty() || (words.size() == 1 && reserved.contains(words[0].toLower())))
        words.append(QStringLiteral("addon"));
    return words;
}

QString title(const QStringList &words)
{
    QString text = words.join(QLatin1Char(' '));
    text[0] = text[0].toUpper();
    return text;
}

QString quotedForShell(QString text)
{
    static const QRegularExpression special(QStringLiteral("[^A-Za-z0-9_./+-]"));
    if (!text.contains(special))
        return text;
    return QLatin1Char('\'') + text.replace(QLatin1Char('\''), QLatin1String("'\\''")) + QLatin1Char('\'');
}

/// Empty, or why nothing can be written there.
QString prepare(const QDir &directory)
{
    const QFileInfo info(directory.absolutePath());
    if (info.exists() && !info.isDir())
        return QStringLiteral("not a directory");
    if (info.exists() && !directory.isEmpty(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot))
        return QStringLiteral("the directory is not empty; nothing was written");
    if (!directory.mkpath(QStringLiteral(".")))
        return QStringLiteral("cannot be created");
    return {};
}

bool writeFile(const QString &templateName, const QString &fileName, const Replacements &replacements)
{
    QFile source(QStringLiteral(":/newaddon/") + templateName);
    if (!source.open(QIODevice::ReadOnly))
        return false;
    QString text = QString::fromUtf8(source.readAll());
    for (const auto &[placeholder, replacement] : replacements)
        text.replace(placeholder, replacement);
    QFile file(fileName);
    const QByteArray bytes = text.toUtf8();
    return file.open(QIODevice::WriteOnly | QIODevice::NewOnly) && file.write(bytes) == bytes.size() && file.flush();
}

/// Where CMake would have to be told to look for the package; empty for where it looks by itself, and if unknown.
QString installationPrefix()
{
    static const QRegularExpression programInPrefix(QStringLiteral("^(.*)/bin/[^/]+$"));
    const QString program = QFileInfo(QStringLiteral("/proc/self/exe")).canonicalFilePath();
    const QString prefix = programInPrefix.match(program).captured(1);
    return prefix == QLatin1String("/usr") || prefix == QLatin1String("/usr/local") ? QString() : prefix;
}

void sayHowToGoOn(const QString &directory, const QString &name, const QString &entry, const QString &program)
{
    const QString build = directory + QLatin1String("/build");
    QString configure = QStringLiteral("cmake -S %1 -B %2").arg(quotedForShell(directory), quotedForShell(build));
    const QString prefix = installationPrefix();
    if (!prefix.isEmpty())
        configure += QStringLiteral(" -DCMAKE_PREFIX_PATH=") + quotedForShell(prefix);
    const QStringList lines = {
        QStringLiteral("A new add-on is in %1. Build it, test it and try it:").arg(directory),
        configure,
        QStringLiteral("cmake --build %1").arg(quotedForShell(build)),
        QStringLiteral("ctest --test-dir %1").arg(quotedForShell(build)),
        QStringLiteral("%1 --launch %2 %3")
            .arg(quotedForShell(program), quotedForShell(entry),
                 quotedForShell(build + QLatin1Char('/') + name + QLatin1String(".so"))),
    };
    std::printf("%s\n", lines.join(QLatin1String("\n  ")).toLocal8Bit().constData());
}

} // namespace

int writeNewAddOn(const QString &directory, AddOnLanguage language, const QString &program)
{
    const QDir target(directory);
    const QString failure = prepare(target);
    if (!failure.isEmpty()) {
        complain(QStringLiteral("--new-addon %1: %2").arg(directory, failure));
        return Failure;
    }

    const QStringList words = wordsOf(QDir(target.absolutePath()).dirName());
    const QString name = words.join(QLatin1Char('-')).toLower();
    const bool isC = language == AddOnLanguage::C;
    const QString source = name + QLatin1String(isC ? ".c" : ".cpp");
    const Replacements replacements = {
        {QStringLiteral("@name@"), name},
        {QStringLiteral("@title@"), title(words)},
        {QStringLiteral("@source@"), source},
        {QStringLiteral("@language@"), isC ? QStringLiteral("C") : QStringLiteral("CXX")},
    };
    const Replacements files = {
        {QStringLiteral("CMakeLists.txt.in"), QStringLiteral("CMakeLists.txt")},
        {isC ? QStringLiteral("addon.c.in") : QStringLiteral("addon.cpp.in"), source},
        {QStringLiteral("dialog.script.in"), QStringLiteral("dialog.script")},
        {QStringLiteral("README.md.in"), QStringLiteral("README.md")},
        {QStringLiteral("gitignore.in"), QStringLiteral(".gitignore")},
    };
    for (const auto &[templateName, fileName] : files) {
        if (!writeFile(templateName, target.absoluteFilePath(fileName), replacements)) {
            complain(QStringLiteral("--new-addon %1: %2 cannot be written").arg(directory, fileName));
            return Failure;
        }
    }
    sayHowToGoOn(directory, name, title(words), program);
    return Success;
}
