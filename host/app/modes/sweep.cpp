// SPDX-License-Identifier: MIT
#include "modes.h"

#include "../exitcodes.h"
#include "../files.h"
#include "../looks/combinations.h"
#include "../looks/contactsheet.h"
#include "../messages.h"
#include "../picturefolder.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QMap>
#include <QProcess>
#include <QThread>

#include <algorithm>
#include <cstdio>
#include <memory>

namespace {

/// Add-ons make each dialog once, for the circumstances of that moment. So every combination has a process of its own,
/// and as many run at once as there are processors.
class Sweep : public QObject
{
public:
    explicit Sweep(const Options &options)
        : m_options(options), m_directory(options.sweepDirectory), m_combinations(combinationsFor(options))
    {
        for (const Combination &combination : m_combinations)
            m_swept.push_back({titleOf(combination), {}});
    }

    /// False if a combination couldn't be looked at.
    bool run()
    {
        const int atOnce = std::max(1, QThread::idealThreadCount());
        for (int i = 0; i < atOnce; ++i)
            startNext();
        if (m_running > 0)
            m_loop.exec();
        complainOfFailures();
        return m_failures.isEmpty();
    }

    const std::vector<SweptCombination> &result() const { return m_swept; }

private:
    QStringList argumentsOf(std::size_t index) const
    {
        QStringList arguments = argumentsFor(m_combinations[index]);
        arguments << QStringLiteral("--inspect") << m_directory.absoluteFilePath(folderOf(index));
        arguments << QStringLiteral("--timeout")
                  << QString::number(m_options.timeoutSeconds.value_or(DefaultTimeoutSeconds));
        for (const QString &name : m_options.launches)
            arguments << QStringLiteral("--launch") << name;
        return arguments << QStringLiteral("--") << m_options.addOnFiles;
    }

    QString folderOf(std::size_t index) const { return fileBaseName(m_swept[index].title); }

    void startNext()
    {
        if (m_next == m_combinations.size())
            return;
        const std::size_t index = m_next++;
        auto *const process = new QProcess(this);
        connect(process, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), this,
                [this, process, index] { finish(*process, index); });
        connect(process, &QProcess::errorOccurred, this, [this, process, index](QProcess::ProcessError error) {
            // After every other error the process still finishes.
            if (error == QProcess::FailedToStart)
                finish(*process, index);
        });
        ++m_running;
        process->setStandardOutputFile(QProcess::nullDevice());
        process->start(QCoreApplication::applicationFilePath(), argumentsOf(index));
    }

    void finish(QProcess &process, std::size_t index)
    {
        takeResult(process, index);
        process.deleteLater();
        --m_running;
        startNext();
        if (m_running == 0)
            m_loop.quit();
    }

    void takeResult(QProcess &process, std::size_t index)
    {
        const bool ended = process.exitStatus() == QProcess::NormalExit &&
                           (process.exitCode() == Success || process.exitCode() == LookProblemsFound);
        const QString folder = folderOf(index);
        std::vector<Look> &looks = m_swept[index].looks;
        if (!ended || !readReport(m_directory.absoluteFilePath(folder + QLatin1String("/report.json")), looks)) {
            const QString errors = QString::fromLocal8Bit(process.readAllStandardError()).trimmed();
            m_failures[errors.isEmpty() ? process.errorString() : errors].append(m_swept[index].title);
        }
        for (Look &look : looks)
            look.picture = folder + QLatin1Char('/') + look.picture;
    }

    void complainOfFailures() const
    {
        for (auto failure = m_failures.begin(); failure != m_failures.end(); ++failure) {
            const auto others = failure.value().size() - 1;
            const QString more = others > 0 ? QStringLiteral(" and %1 more").arg(others) : QString();
            complain(QStringLiteral("%1%2: %3").arg(failure.value().constFirst(), more, failure.key()));
        }
    }

    const Options &m_options;
    const QDir m_directory;
    const std::vector<Combination> m_combinations;
    std::vector<SweptCombination> m_swept;
    std::size_t m_next = 0;
    int m_running = 0;
    /// Titles of combinations, by what went wrong.
    QMap<QString, QStringList> m_failures;
    QEventLoop m_loop;
};

bool writeSheet(const QString &file, const std::vector<SweptCombination> &swept)
{
    const QString failure = writeFile(file, contactSheet(swept).toUtf8());
    if (!failure.isEmpty())
        complain(QStringLiteral("%1: %2").arg(file, failure));
    return failure.isEmpty();
}

/// Returns how many there are.
int printFindings(const std::vector<SweptCombination> &swept)
{
    int count = 0;
    for (const SweptCombination &combination : swept) {
        for (const Look &look : combination.looks) {
            for (const Finding &finding : look.findings) {
                const QString line = QStringLiteral("%1 (%2): %3 %4")
                                         .arg(titleOf(look), combination.title, finding.widget, problemOf(finding));
                std::printf("%s\n", line.toLocal8Bit().constData());
                ++count;
            }
        }
    }
    return count;
}

} // namespace

int sweepLooks(const Options &options)
{
    const PictureFolder folder(options.sweepDirectory);
    if (!folder.prepare()) {
        complain(QStringLiteral("--sweep %1: not a directory that can be written to").arg(options.sweepDirectory));
        return Failure;
    }
    Sweep sweep(options);
    const bool complete = sweep.run();
    const int count = printFindings(sweep.result());
    if (!writeSheet(folder.path() + QLatin1String("/index.html"), sweep.result()) || !complete)
        return Failure;
    return count > 0 ? LookProblemsFound : Success;
}
