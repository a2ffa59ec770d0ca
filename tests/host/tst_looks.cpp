// SPDX-License-Identifier: MIT
#include "hostrun.h"

#include "support/rows.h"

#include <QDir>

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

/// What the host finds wrong with how dialogs look.
class tst_Looks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void faults_data();
    void faults();
    void everyPageHasItsPicture();
    void addOnHearsNothing();
    void goodOnesAreClean();
    void sweepShowsAndCounts();
    void sweepReportsWhatItCannotLookAt();

private:
    QTemporaryDir m_directory;
    Outcome m_inspection;
};

void tst_Looks::initTestCase()
{
    m_inspection = runHost(command("--style Fusion %looks --inspect") << m_directory.path());
    QCOMPARE(m_inspection.errors, QStringList());
    QCOMPARE(m_inspection.exitCode, 5);
}

void tst_Looks::faults_data()
{
    const Rows<QString> row("expected");
    row("Good", "");
    row("Narrow label", ": \"A text of some length\" has text that is too wide by 7 pixels");
    row("Low label", ": \"A text of some length\" has text that is too high by 5 pixels");
    row("Narrow button", ": \"A text of some length\" has text that is too wide by \\d+ pixels");
    row("Low button", ": \"A text of some length\" has text that is too high by \\d+ pixels");
    row("Narrow check box", ": \"A text of some length\" has text that is too wide by \\d+ pixels");
    row("Narrow radio button", ": \"A text of some length\" has text that is too wide by \\d+ pixels");
    row("Narrow combo box", ": \"Choice\" has text that is too wide by \\d+ pixels");
    row("Narrow group box", ": \"A text of some length\" has text that is too wide by \\d+ pixels");
    row("Many tabs", "(, page A text of some length: \"Tabs\" has text that is too wide by \\d+ pixels){2}");
    row("Many menus", ": \"Menus\" has text that is too wide by \\d+ pixels");
    row("Many buttons", "(: \"\\w+\" has text that is too wide by \\d+ pixels){2,3}");
    row("Low spin box", ": \"Count\" has text that is too high by \\d+ pixels");
    row("Overlap", ": \"First\" overlaps \"Second\" by 9 pixels");
    row("Line through text", ": \"A text of some length\" overlaps \"Line\" by 1 pixels");
    row("Beyond the box", ": \"Far\" leaves \"Box\" by 12 pixels");
    row("Across the box", ": \"Box\" overlaps \"Across\" by 8 pixels");
    row("Over the title", ": \"Over\" covers the title of \"Box\" by \\d+ pixels");
    row("Nameless", ": #17 has no name for assistive technology");
    row("Inner page", ", page Second, 2: \"A text of some length\" has text that is too wide by 7 pixels");
}

void tst_Looks::faults()
{
    QFETCH(const QString, expected);
    const QString entry = QString::fromLatin1(QTest::currentDataTag());
    QString found;
    for (const QString &line : m_inspection.output) {
        if (line.startsWith(entry + QLatin1Char(':')) || line.startsWith(entry + QLatin1Char(',')))
            found += line.mid(entry.size());
    }
    const QRegularExpression expression(QRegularExpression::anchoredPattern(expected));
    QVERIFY2(expression.match(found).hasMatch(), qPrintable(found));
}

void tst_Looks::everyPageHasItsPicture()
{
    const QDir pictures(m_directory.path());
    for (const char *const picture :
         {"Good - One.png", "Good - Two.png", "Inner page - First.png", "Inner page - Second.png",
          "Inner page - Second, 1.png", "Inner page - Second, 2.png", "Overlap.png"}) {
        const QString file = QString::fromLatin1(picture).replace(QLatin1Char(','), QLatin1Char('_'));
        QVERIFY2(pictures.exists(file), picture);
    }
}

void tst_Looks::addOnHearsNothing()
{
    const QStringList heard = m_inspection.output.filter(text("heard of"));
    // Closing the dialog takes the focus away.
    QVERIFY2(heard.filter(text("page")).isEmpty(), qPrintable(heard.join(QLatin1Char(' '))));
    QVERIFY2(heard.size() <= 1, qPrintable(heard.join(QLatin1Char(' '))));
    QVERIFY(m_inspection.output.contains(text("page 0, focus 1")));
}

void tst_Looks::goodOnesAreClean()
{
    const QTemporaryDir directory;
    const Outcome outcome = runHost(command("--launch Good %looks --inspect") << directory.path());
    QCOMPARE(outcome.exitCode, 0);
    QCOMPARE(outcome.output, QStringList());
}

void tst_Looks::sweepShowsAndCounts()
{
    const QTemporaryDir parent;
    const QDir directory(parent.filePath(text("a & b")));
    const Outcome outcome = runHost(command("--style Fusion --font Sans,10 --launch Good %looks --sweep")
                                    << directory.path() << text("--launch") << text("Narrow label"));
    QCOMPARE(outcome.errors, QStringList());
    QCOMPARE(outcome.exitCode, 5);
    // Two resolutions, of which these dialogs know nothing.
    QCOMPARE(outcome.output.size(), 2);
    QVERIFY(outcome.output[0].startsWith(QLatin1String("Narrow label (Fusion, Sans 10, 96x96 dpi): ")));

    QFile file(directory.filePath(text("index.html")));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QString html = QString::fromUtf8(file.readAll());
    QCOMPARE(html.count(QLatin1String("<section")), 3);
    QCOMPARE(html.count(QLatin1String("<section class=\"bad\"")), 1);
    QCOMPARE(html.count(QLatin1String("<figure class=\"bad\"")), 2);
    QVERIFY(!html.contains(QLatin1String("<script")));
    auto images = QRegularExpression(text("<img src=\"([^\"]*)\"")).globalMatch(html);
    int count = 0;
    for (; images.hasNext(); ++count) {
        const QString picture = QUrl::fromPercentEncoding(images.next().captured(1).toLatin1());
        QVERIFY2(directory.exists(picture), qPrintable(picture));
    }
    QCOMPARE(count, 6);
}

void tst_Looks::sweepReportsWhatItCannotLookAt()
{
    const QTemporaryDir directory;
    const Outcome outcome = runHost(command("--style Fusion --font Sans,10 %silent --sweep") << directory.path());
    QCOMPARE(outcome.exitCode, 1);
    const QString errors = outcome.errors.join(QLatin1Char('\n'));
    QVERIFY2(errors.contains(QLatin1String("x96 dpi and 1 more: ")), qPrintable(errors));
    QVERIFY2(errors.contains(QLatin1String("\"Silent\"")), qPrintable(errors));
}

QTEST_GUILESS_MAIN(tst_Looks)
#include "tst_looks.moc"
