// SPDX-License-Identifier: MIT
#include "hostrun.h"

#include "support/rows.h"

#include <QDir>

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
    // %temp, %folder and %file are paths, too.
    const auto row = [](const QByteArray &name, const QByteArray &line, const QByteArray &mentioned) {
        QStringList arguments = line.isEmpty() ? QStringList() : command(line);
        arguments.replaceInStrings(module("temp"), QDir::tempPath());
        arguments.replaceInStrings(module("folder"), text(MODULE_FOLDER));
        arguments.replaceInStrings(module("file"), text(NOT_A_MODULE));
        QTest::newRow(name.constData()) << arguments << text(mentioned.constData()).split(QLatin1Char('|'));
    };
    const auto rowForEach = [row](const QByteArray &option, const QByteArray &others, const char *values) {
        for (const QByteArray &value : QByteArray(values).split(' '))
            row(option + ' ' + value, option + ' ' + value + others, option);
    };

    row("no add-on", "", "no add-on");
    row("missing file", "nowhere/missing.so", "nowhere/missing.so|no such file");
    row("directory", "%folder", MODULE_FOLDER "|not a file");
    row("not a module", "%file", NOT_A_MODULE "|cannot be loaded");
    row("no entry function", "%noinit", module("noinit").toUtf8() + "|ZelAddOnInit");
    row("function of no library", "%unresolved", module("unresolved").toUtf8() + "|functionOfNoLibrary");
    row("second of two", "%silent missing.so", "missing.so");

    row("unknown option", "--colour %silent", "colour");
    row("no value", "%silent --launch", "launch");
    row("unknown entry", "--launch Loud %silent", "Loud|\"Silent\"");
    row("unknown entry in batch mode", "--batch --launch Loud %silent", "Loud|\"Silent\"");
    rowForEach("--dpi", " %silent", "96 96, 96,x 0,96 -96,96 96,96,96 nan,96 inf,96 1e999,96");
    rowForEach("--font", " %silent", "Sans Sans, ,12 Sans,0 Sans,big Sans,nan Sans,1e9");
    rowForEach("--timeout", " --render %temp %silent", "0 -1 soon inf 1e300");
    row("timeout without pictures", "--timeout 5 %silent", "--render");
    for (const QByteArray option : {"--report-leaks", "--strict", "--trace"})
        row("sweep with " + option, "--sweep %temp " + option + " %silent", "--sweep|" + option);
    row("pictures and inspection", "--render %temp --inspect %temp %silent", "--render|--inspect");
    row("batch with sweep", "--batch --sweep %temp %silent", "--batch");
    row("sweep into a file", "--sweep %file %silent", "--sweep|" NOT_A_MODULE);
    row("script that is missing", "--script nowhere/x %silent", "nowhere/x");
    row("script in batch mode", "--script x --batch %silent", "--script");
    row("script and pictures", "--script x --render %temp %silent", "--script");
    row("script and launch", "--script x --launch Silent %silent", "--script");
    row("recording in batch mode", "--record x --batch %silent", "--record");
    row("recording to nowhere", "--record /nowhere/x %silent", "/nowhere/x");
    row("unknown style", "--style Rococo %silent", "Rococo|Fusion");
    row("batch with pictures", "--batch --render %temp %silent", "--batch");

    row("new add-on in a directory with files", "--new-addon %folder", "not empty");
    row("new add-on in a file", "--new-addon %file", "not a directory");
    row("new add-on where nothing can be", "--new-addon /proc/new", "/proc/new");
    row("new add-on, and one to run", "--new-addon new %silent", "--new-addon");
    row("new add-on in no language", "--new-addon new --language c", "C++");
    row("language of nothing", "--language C %silent", "--new-addon");
}

void TestZelhost::badStartIsOneLine()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const QStringList, mentioned);
    const Outcome outcome = runHost(arguments);
    QCOMPARE(outcome.exitCode, 1);
    QVERIFY2(outcome.errors.size() == 1, qPrintable(outcome.errors.join(QLatin1Char('\n'))));
    for (const QString &each : mentioned)
        QVERIFY2(outcome.errors[0].contains(each), qPrintable(outcome.errors[0]));
}

void TestZelhost::helpAndVersionNeedNoDisplay_data()
{
    QTest::addColumn<QString>("mentioned");
    QTest::newRow("--help") << text("--report-leaks");
    QTest::newRow("--version") << text("zelhost ");
}

void TestZelhost::helpAndVersionNeedNoDisplay()
{
    QFETCH(const QString, mentioned);
    const Outcome outcome = runHost({text(QTest::currentDataTag())}, withoutDisplay());
    QCOMPARE(outcome.exitCode, 0);
    QVERIFY(outcome.output.join(QLatin1Char('\n')).contains(mentioned));
    QVERIFY(outcome.errors.isEmpty());
}

void TestZelhost::startWithoutDisplay()
{
    QProcessEnvironment environment = withoutDisplay();
    const Outcome outcome = runHost(command("%silent"), environment);
    QCOMPARE(outcome.exitCode, 1);
    QCOMPARE(outcome.errors.size(), 1);
    QVERIFY(outcome.errors[0].contains(QLatin1String("--render")));

    environment.insert(text("QT_QPA_PLATFORM"), text("nonsense"));
    const Outcome unusable = runHost(command("%silent"), environment);
    QCOMPARE(unusable.exitCode, 1);
    QVERIFY(unusable.errors.constLast().contains(QLatin1String("--render")));
}

void TestZelhost::batchLaunches()
{
    const Outcome outcome = runHost(
        command("--batch --launch Silent --launch Silent --dpi 120,144.5 --report-leaks %silent"), withoutDisplay());
    QCOMPARE(outcome.exitCode, 0);
    const QString line = text("launched: batch 1, dpi 120,144.5");
    QCOMPARE(outcome.output, QStringList({line, line}));
    QCOMPARE(outcome.errors, QStringList());
}

void TestZelhost::windowLaunchesAndQuits()
{
    const Outcome outcome =
        runHost(command("--launch Silent --launch Quitting --dpi 96,96 --font Sans,14 %silent %quitting"));
    QCOMPARE(outcome.exitCode, 0);
    QCOMPARE(outcome.output, QStringList{text("launched: batch 0, dpi 96,96")});
    QCOMPARE(outcome.errors, QStringList());
}

void TestZelhost::launchesAreRecorded()
{
    const QTemporaryDir folder;
    const QString recording = folder.filePath(text("recorded"));
    const Outcome outcome = runHost(
        command("--launch Silent --launch Silent --launch Quitting %silent %silent %quitting --record") << recording);
    QCOMPARE(outcome.exitCode, 0);
    QFile file(recording);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(QString::fromUtf8(file.readAll()),
             text("launch \"Silent\" 1\nlaunch \"Silent\" 2\nlaunch \"Silent\" 1\nlaunch \"Silent\" 2\n"
                  "launch \"Quitting\"\n"));
}

void TestZelhost::leaksAreReported()
{
    const Outcome outcome = runHost(command("--batch --report-leaks %leaky"));
    QCOMPARE(outcome.exitCode, 3);
    QCOMPARE(outcome.errors.size(), 3);
    QVERIFY(outcome.errors[0].contains(QLatin1String("2 x \"forgotten\", 120 bytes")));
    QVERIFY(outcome.errors[1].contains(QLatin1String("1 x \"index set\"")));
    QVERIFY(outcome.errors[2].contains(QLatin1String("1 x \"string list\"")));
}

void TestZelhost::picturesShowTheDialogs()
{
    const QTemporaryDir directory;
    const QDir pictures(directory.filePath(text("new/directory")));
    const Outcome outcome = runHost(command("%dialogs --render") << pictures.path());
    QCOMPARE(outcome.errors, QStringList());
    QCOMPARE(outcome.exitCode, 0);

    const QList<QPair<QString, QColor>> expected = {{text("Modal.png"), Qt::red},
                                                    {text("Modeless.png"), Qt::green},
                                                    {text("Late.png"), Qt::blue},
                                                    {text("Complaining_ a_b.png"), Qt::yellow},
                                                    {text("Modal-2.png"), Qt::green}};
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
    const Outcome outcome = runHost(
        command("--launch Modeless --launch Late %silent %dialogs --render") << directory.path(), withoutDisplay());
    QCOMPARE(outcome.exitCode, 0);
    QCOMPARE(QDir(directory.path()).entryList(QDir::Files), QStringList({text("Late.png"), text("Modeless.png")}));
}

void TestZelhost::dialogsAreClosed_data()
{
    QTest::addColumn<QString>("entry");
    for (const char *entry : {"OK only", "Cancel only", "Other only", "Asking"})
        QTest::newRow(entry) << text(entry);
}

void TestZelhost::dialogsAreClosed()
{
    QFETCH(const QString, entry);
    const QTemporaryDir directory;
    const Outcome outcome = runHost(command("%closing --render") << directory.path() << text("--launch") << entry);
    QCOMPARE(outcome.errors, QStringList());
    QCOMPARE(outcome.exitCode, 0);
    QCOMPARE(QDir(directory.path()).entryList(QDir::Files), QStringList{entry + QLatin1String(".png")});
}

void TestZelhost::badPictures_data()
{
    const Rows<QByteArray, QString, QString> row("addOn", "directory", "mentioned");
    row("no dialog", "silent", "pictures", "\"Silent\"");
    row("loop without events", "stuck", "pictures", "\"Stuck\"");
    row("dialog stays open", "neverclosing", "pictures", "\"Never closing\"");
    row("event loop ended", "quitting", "pictures", "\"Quitting\"");
    row("directory in a file", "dialogs", "file/in", "file/in");
    row("directory is a file", "dialogs", "file", "file");
}

void TestZelhost::badPictures()
{
    QFETCH(const QByteArray, addOn);
    QFETCH(const QString, directory);
    QFETCH(const QString, mentioned);
    const QTemporaryDir parent;
    QFile file(parent.filePath(text("file")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    const Outcome outcome =
        runHost(command("--timeout 1.5 --render") << parent.filePath(directory) << module(addOn.constData()));
    QCOMPARE(outcome.exitCode, 1);
    QVERIFY2(outcome.errors.size() == 1, qPrintable(outcome.errors.join(QLatin1Char('\n'))));
    QVERIFY2(outcome.errors[0].contains(mentioned), qPrintable(outcome.errors[0]));
}

QTEST_GUILESS_MAIN(TestZelhost)
#include "tst_zelhost.moc"
