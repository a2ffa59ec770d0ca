// SPDX-License-Identifier: MIT
#include "hostrun.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <QTest>

namespace {

QProcessEnvironment withoutDisplay()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        environment.remove(QLatin1String(name));
    return environment;
}

} // namespace

class TestZelhost : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void badStartIsOneLine_data();
    void badStartIsOneLine();
    void helpAndVersionNeedNoDisplay_data();
    void helpAndVersionNeedNoDisplay();
    void startWithoutDisplay();
    void startOnUnusablePlatform();

    void batchLaunches();
    void windowLaunchesAndQuits();
    void launchesAreRecorded();
    void leaksAreReported();

    void picturesShowTheDialogs();
    void picturesOfLaunchedOnly();
    void dialogsAreClosed_data();
    void dialogsAreClosed();
    void badPictures_data();
    void badPictures();
};

void TestZelhost::badStartIsOneLine_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QStringList>("mentioned");
    const QString silent = module("silent");
    const auto row = [](const char *name, const QStringList &arguments, const QStringList &mentioned) {
        QTest::newRow(name) << arguments << mentioned;
    };
    const auto s = [](const char *text) { return QString::fromLatin1(text); };

    row("no add-on", {}, {s("no add-on")});
    row("missing file", {s("nowhere/missing.so")}, {s("nowhere/missing.so"), s("no such file")});
    row("directory", {QDir::tempPath()}, {QDir::tempPath(), s("not a file")});
    row("not a module", {s(NOT_A_MODULE)}, {s(NOT_A_MODULE), s("cannot be loaded")});
    row("no entry function", {module("noinit")}, {module("noinit"), s("ZelAddOnInit")});
    row("function of no library", {module("unresolved")}, {module("unresolved"), s("functionOfNoLibrary")});
    row("second of two", {silent, s("missing.so")}, {s("missing.so")});

    row("unknown option", {s("--colour"), silent}, {s("colour")});
    row("no value", {silent, s("--launch")}, {s("launch")});
    row("unknown entry", {s("--launch"), s("Loud"), silent}, {s("Loud"), s("\"Silent\"")});
    row("unknown entry in batch mode", {s("--batch"), s("--launch"), s("Loud"), silent}, {s("Loud"), s("\"Silent\"")});
    for (const char *value : {"96", "96,", "96,x", "0,96", "-96,96", "96,96,96", "nan,96", "inf,96", "1e999,96"})
        row(qPrintable(QStringLiteral("--dpi %1").arg(s(value))), {s("--dpi"), s(value), silent}, {s("--dpi")});
    for (const char *value : {"Sans", "Sans,", ",12", "Sans,0", "Sans,big", "Sans,nan", "Sans,1e9"})
        row(qPrintable(QStringLiteral("--font %1").arg(s(value))), {s("--font"), s(value), silent}, {s("--font")});
    for (const char *value : {"0", "-1", "soon", "inf", "1e300"}) {
        row(qPrintable(QStringLiteral("--timeout %1").arg(s(value))),
            {s("--render"), QDir::tempPath(), s("--timeout"), s(value), silent}, {s("--timeout")});
    }
    row("timeout without pictures", {s("--timeout"), s("5"), silent}, {s("--render")});
    for (const char *option : {"--report-leaks", "--strict", "--trace"})
        row(qPrintable(QStringLiteral("sweep with %1").arg(s(option))),
            {s("--sweep"), QDir::tempPath(), s(option), silent}, {s("--sweep"), s(option)});
    row("pictures and inspection", {s("--render"), QDir::tempPath(), s("--inspect"), QDir::tempPath(), silent},
        {s("--render"), s("--inspect")});
    row("batch with sweep", {s("--batch"), s("--sweep"), QDir::tempPath(), silent}, {s("--batch")});
    row("sweep into a file", {s("--sweep"), s(NOT_A_MODULE), silent}, {s("--sweep"), s(NOT_A_MODULE)});
    row("script that is missing", {s("--script"), s("nowhere/x"), silent}, {s("nowhere/x")});
    row("script in batch mode", {s("--script"), s("x"), s("--batch"), silent}, {s("--script")});
    row("script and pictures", {s("--script"), s("x"), s("--render"), QDir::tempPath(), silent}, {s("--script")});
    row("script and launch", {s("--script"), s("x"), s("--launch"), s("Silent"), silent}, {s("--script")});
    row("recording in batch mode", {s("--record"), s("x"), s("--batch"), silent}, {s("--record")});
    row("recording to nowhere", {s("--record"), s("/nowhere/x"), silent}, {s("/nowhere/x")});
    row("unknown style", {s("--style"), s("Rococo"), silent}, {s("Rococo"), s("Fusion")});
    row("batch with pictures", {s("--batch"), s("--render"), QDir::tempPath(), silent}, {s("--batch")});

    row("new add-on in a directory with files", {s("--new-addon"), s(MODULE_FOLDER)}, {s("not empty")});
    row("new add-on in a file", {s("--new-addon"), s(NOT_A_MODULE)}, {s("not a directory")});
    row("new add-on where nothing can be", {s("--new-addon"), s("/proc/new")}, {s("/proc/new")});
    row("new add-on, and one to run", {s("--new-addon"), s("new"), silent}, {s("--new-addon")});
    row("new add-on in no language", {s("--new-addon"), s("new"), s("--language"), s("c")}, {s("C++")});
    row("language of nothing", {s("--language"), s("C"), silent}, {s("--new-addon")});
}

void TestZelhost::badStartIsOneLine()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const QStringList, mentioned);
    const Outcome outcome = runHost(arguments);
    QCOMPARE(outcome.exitCode, 1);
    QVERIFY2(outcome.errors.size() == 1, qPrintable(outcome.errors.join(QLatin1Char('\n'))));
    for (const QString &text : mentioned)
        QVERIFY2(outcome.errors[0].contains(text), qPrintable(outcome.errors[0]));
}

void TestZelhost::helpAndVersionNeedNoDisplay_data()
{
    QTest::addColumn<QString>("option");
    QTest::addColumn<QString>("mentioned");
    QTest::newRow("help") << QStringLiteral("--help") << QStringLiteral("--report-leaks");
    QTest::newRow("version") << QStringLiteral("--version") << QStringLiteral("zelhost ");
}

void TestZelhost::helpAndVersionNeedNoDisplay()
{
    QFETCH(const QString, option);
    QFETCH(const QString, mentioned);
    const Outcome outcome = runHost({option}, withoutDisplay());
    QCOMPARE(outcome.exitCode, 0);
    QVERIFY(outcome.output.join(QLatin1Char('\n')).contains(mentioned));
    QVERIFY(outcome.errors.isEmpty());
}

void TestZelhost::startWithoutDisplay()
{
    const Outcome outcome = runHost({module("silent")}, withoutDisplay());
    QCOMPARE(outcome.exitCode, 1);
    QCOMPARE(outcome.errors.size(), 1);
    QVERIFY(outcome.errors[0].contains(QLatin1String("--render")));
}

void TestZelhost::startOnUnusablePlatform()
{
    QProcessEnvironment environment = withoutDisplay();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("nonsense"));
    const Outcome outcome = runHost({module("silent")}, environment);
    QCOMPARE(outcome.exitCode, 1);
    QVERIFY(outcome.errors.constLast().contains(QLatin1String("--render")));
}

void TestZelhost::batchLaunches()
{
    const Outcome outcome = runHost({QStringLiteral("--batch"), QStringLiteral("--launch"), QStringLiteral("Silent"),
                                     QStringLiteral("--launch"), QStringLiteral("Silent"), QStringLiteral("--dpi"),
                                     QStringLiteral("120,144.5"), QStringLiteral("--report-leaks"), module("silent")},
                                    withoutDisplay());
    QCOMPARE(outcome.exitCode, 0);
    const QString line = QStringLiteral("launched: batch 1, dpi 120,144.5");
    QCOMPARE(outcome.output, QStringList({line, line}));
    QCOMPARE(outcome.errors, QStringList());
}

void TestZelhost::windowLaunchesAndQuits()
{
    const Outcome outcome =
        runHost({QStringLiteral("--launch"), QStringLiteral("Silent"), QStringLiteral("--launch"),
                 QStringLiteral("Quitting"), QStringLiteral("--dpi"), QStringLiteral("96,96"), QStringLiteral("--font"),
                 QStringLiteral("Sans,14"), module("silent"), module("quitting")});
    QCOMPARE(outcome.exitCode, 0);
    QCOMPARE(outcome.output, QStringList{QStringLiteral("launched: batch 0, dpi 96,96")});
    QCOMPARE(outcome.errors, QStringList());
}

void TestZelhost::launchesAreRecorded()
{
    const QTemporaryDir folder;
    const QString recording = folder.filePath(QStringLiteral("recorded"));
    const QString silent = QStringLiteral("Silent");
    const QString launch = QStringLiteral("--launch");
    const Outcome outcome =
        runHost({QStringLiteral("--record"), recording, launch, silent, launch, silent, launch,
                 QStringLiteral("Quitting"), module("silent"), module("silent"), module("quitting")});
    QCOMPARE(outcome.exitCode, 0);
    QFile file(recording);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(QString::fromUtf8(file.readAll()),
             QStringLiteral("launch \"Silent\" 1\nlaunch \"Silent\" 2\nlaunch \"Silent\" 1\nlaunch \"Silent\" 2\n"
                            "launch \"Quitting\"\n"));
}

void TestZelhost::leaksAreReported()
{
    const Outcome outcome = runHost({QStringLiteral("--batch"), QStringLiteral("--report-leaks"), module("leaky")});
    QCOMPARE(outcome.exitCode, 3);
    QCOMPARE(outcome.errors.size(), 3);
    QVERIFY(outcome.errors[0].contains(QLatin1String("2 x \"forgotten\", 120 bytes")));
    QVERIFY(outcome.errors[1].contains(QLatin1String("1 x \"index set\"")));
    QVERIFY(outcome.errors[2].contains(QLatin1String("1 x \"string list\"")));
}

void TestZelhost::picturesShowTheDialogs()
{
    const QTemporaryDir directory;
    const QDir pictures(directory.filePath(QStringLiteral("new/directory")));
    const Outcome outcome = runHost({QStringLiteral("--render"), pictures.path(), module("dialogs")});
    QCOMPARE(outcome.errors, QStringList());
    QCOMPARE(outcome.exitCode, 0);

    const QList<QPair<QString, QColor>> expected = {{QStringLiteral("Modal.png"), Qt::red},
                                                    {QStringLiteral("Modeless.png"), Qt::green},
                                                    {QStringLiteral("Late.png"), Qt::blue},
                                                    {QStringLiteral("Complaining_ a_b.png"), Qt::yellow},
                                                    {QStringLiteral("Modal-2.png"), Qt::green}};
    QStringList files;
    for (const auto &[name, color] : expected) {
        files.append(pictures.absoluteFilePath(name));
        const QImage image(files.constLast());
        QCOMPARE(image.size(), QSize(200, 100));
        QCOMPARE(image.pixelColor(100, 50), color);
    }
    QCOMPARE(outcome.output, files);
    QCOMPARE(pictures.entryList(QDir::Files).size(), files.size());
}

void TestZelhost::picturesOfLaunchedOnly()
{
    const QTemporaryDir directory;
    const Outcome outcome =
        runHost({QStringLiteral("--render"), directory.path(), QStringLiteral("--launch"), QStringLiteral("Modeless"),
                 QStringLiteral("--launch"), QStringLiteral("Late"), module("silent"), module("dialogs")},
                withoutDisplay());
    QCOMPARE(outcome.exitCode, 0);
    QCOMPARE(QDir(directory.path()).entryList(QDir::Files),
             QStringList({QStringLiteral("Late.png"), QStringLiteral("Modeless.png")}));
}

void TestZelhost::dialogsAreClosed_data()
{
    QTest::addColumn<QString>("entry");
    for (const char *entry : {"OK only", "Cancel only", "Other only", "Asking"})
        QTest::newRow(entry) << QString::fromLatin1(entry);
}

void TestZelhost::dialogsAreClosed()
{
    QFETCH(const QString, entry);
    const QTemporaryDir directory;
    const Outcome outcome =
        runHost({QStringLiteral("--render"), directory.path(), QStringLiteral("--launch"), entry, module("closing")});
    QCOMPARE(outcome.errors, QStringList());
    QCOMPARE(outcome.exitCode, 0);
    QCOMPARE(QDir(directory.path()).entryList(QDir::Files), QStringList{entry + QLatin1String(".png")});
}

void TestZelhost::badPictures_data()
{
    QTest::addColumn<QString>("addOn");
    QTest::addColumn<QString>("directory");
    QTest::addColumn<QString>("mentioned");
    const QString fine = QStringLiteral("pictures");
    QTest::newRow("no dialog") << module("silent") << fine << QStringLiteral("\"Silent\"");
    QTest::newRow("loop without events") << module("stuck") << fine << QStringLiteral("\"Stuck\"");
    QTest::newRow("dialog stays open") << module("neverclosing") << fine << QStringLiteral("\"Never closing\"");
    QTest::newRow("event loop ended") << module("quitting") << fine << QStringLiteral("\"Quitting\"");
    QTest::newRow("directory in a file") << module("dialogs") << QStringLiteral("file/in") << QStringLiteral("file/in");
    QTest::newRow("directory is a file") << module("dialogs") << QStringLiteral("file") << QStringLiteral("file");
}

void TestZelhost::badPictures()
{
    QFETCH(const QString, addOn);
    QFETCH(const QString, directory);
    QFETCH(const QString, mentioned);
    const QTemporaryDir parent;
    QFile file(parent.filePath(QStringLiteral("file")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    const Outcome outcome = runHost({QStringLiteral("--render"), parent.filePath(directory),
                                     QStringLiteral("--timeout"), QStringLiteral("1.5"), addOn});
    QCOMPARE(outcome.exitCode, 1);
    QVERIFY2(outcome.errors.size() == 1, qPrintable(outcome.errors.join(QLatin1Char('\n'))));
    QVERIFY2(outcome.errors[0].contains(mentioned), qPrintable(outcome.errors[0]));
}

QTEST_GUILESS_MAIN(TestZelhost)
#include "tst_zelhost.moc"
