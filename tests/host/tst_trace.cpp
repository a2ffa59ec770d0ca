// SPDX-License-Identifier: MIT
#include "hostrun.h"

#include "support/rows.h"

#include <QFile>

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

class TestTrace : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void linesTellTheCalls_data();
    void linesTellTheCalls();
    void addOnsAreNamed();
    void layerIsLoadedOnDemandOnly_data();
    void layerIsLoadedOnDemandOnly();
};

void TestTrace::linesTellTheCalls_data()
{
    const Rows<QString, QStringList, QString> row("addOn", "options", "expected");
    row("modal dialog that is closed", HELLO, {text("--render"), text("%1")}, "hello.txt");
    row("values of every kind, and an exception", module("traced"), command("--launch Traced"), "values.txt");
}

void TestTrace::linesTellTheCalls()
{
    QFETCH(const QString, addOn);
    QFETCH(QStringList, options);
    QFETCH(const QString, expected);
    const QTemporaryDir directory;
    options.replaceInStrings(text("%1"), directory.path());
    QFile file(text(TRACES) + QLatin1Char('/') + expected);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QStringList expectedLines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);

    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(text("LC_ALL"), text("C.UTF-8"));
    const Outcome outcome = runHost(QStringList{text("--trace"), addOn} + options, environment);
    for (int i = 0; i < std::max(expectedLines.size(), outcome.errors.size()); ++i)
        QCOMPARE(outcome.errors.value(i), expectedLines.value(i));
    QCOMPARE(outcome.exitCode, 0);
}

/// Several entries of one module, and two modules: each line is its own entry's.
void TestTrace::addOnsAreNamed()
{
    const QTemporaryDir directory;
    const Outcome outcome = runHost(command("--trace --launch Toggles --launch Hello --launch Scales --render")
                                    << directory.path() << text(GALLERY) << text(HELLO));
    QCOMPARE(outcome.exitCode, 0);
    QStringList names;
    for (const QString &line : outcome.errors) {
        const QString name = line.section(QLatin1Char(':'), 0, 0);
        if (names.isEmpty() || names.constLast() != name)
            names.append(name);
    }
    QCOMPARE(names, QStringList({text("Toggles"), text("Hello"), text("Scales")}));
}

void TestTrace::layerIsLoadedOnDemandOnly_data()
{
    const Rows<QStringList, bool> row("options", "isLoaded");
    row("no option", QStringList(), false);
    row("--trace", command("--trace"), true);
    row("--strict", command("--strict"), true);
}

void TestTrace::layerIsLoadedOnDemandOnly()
{
    QFETCH(const QStringList, options);
    QFETCH(const bool, isLoaded);
    const Outcome outcome = runHost(options + command("--batch --launch Maps %maps"));
    QCOMPARE(outcome.exitCode, 0);
    QCOMPARE(outcome.output.contains(QLatin1String("libzelgui-trace.so")), isLoaded);
    QVERIFY(!outcome.output.filter(QLatin1String("libzelgui.so")).isEmpty());
}

QTEST_GUILESS_MAIN(TestTrace)
#include "tst_trace.moc"
