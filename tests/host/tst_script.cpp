// SPDX-License-Identifier: MIT
// Scripts and recordings, as users of the host run them.
#include "hostrun.h"

#include "support/rows.h"

#include <QFile>

#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <QTest>

namespace {

struct Played
{
    int exitCode = -1;
    /// What the add-on printed: its calls.
    QString calls;
    QString errors;
};

} // namespace

class TestScript : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void badScriptsAreNotRun_data();
    void badScriptsAreNotRun();
    void stepsThatCannotBeDone_data();
    void stepsThatCannotBeDone();
    void callsOfSteps_data();
    void callsOfSteps();
    void hangsEndWithTheDialogsNames();
    void longWaitIsNoHang();
    void pictureOfADialog();
    void recordingDoesTheSame_data();
    void recordingDoesTheSame();
    void recordingIsReadable();

private:
    QString write(const QString &script) const;
    Played run(const QStringList &arguments) const;
    Played play(const QString &script) const;

    QTemporaryDir m_folder;
};

QString TestScript::write(const QString &script) const
{
    QFile file(m_folder.filePath(text("test.zelscript")));
    if (!file.open(QIODevice::WriteOnly) || file.write(script.toUtf8()) < 0)
        qFatal("no script");
    return file.fileName();
}

Played TestScript::run(const QStringList &arguments) const
{
    const Outcome outcome = runHost(QStringList(arguments) << module("scripted"));
    const auto joined = [](const QStringList &lines) {
        return lines.isEmpty() ? QString() : lines.join(QLatin1Char('\n')) + QLatin1Char('\n');
    };
    return {outcome.exitCode, joined(outcome.output), joined(outcome.errors)};
}

Played TestScript::play(const QString &script) const
{
    return run({text("--script"), write(script), text("--timeout"), text("120")});
}

void TestScript::badScriptsAreNotRun_data()
{
    const Rows<QString, QString> row("line", "words");
    row("unknown step", "pres OK", "no step pres; there is");
    row("nearest step", "chek X", "is it \"check\"?");
    row("too few words", "type Name", "expected: type NAME TEXT");
    row("too many words", "press OK now", "expected: press NAME");
    row("no quotation mark", "press \"OK", "quotation mark");
    row("no blank", "press \"OK\"now", "blank is missing");
    row("verb in quotes", "\"press\" OK", "no step \"press\"");
    row("dialog without step", "in Everything", "in TITLE STEP");
    for (const char *step : {"launch Everything", "wait 1", "patience 1", "expect message x", "expect dialog x",
                             "expect dialog closed", "expect dialog x closed"})
        row(step, text("in Everything ") + text(step), "\"in\" has no effect");
    row("comment without a blank", "press OK #now", "expected: press NAME");
    row("no number", "drag Opacity fast", "drag NAME NUMBER...");
    row("number in quotes", "drag Opacity \"5\"", "drag NAME NUMBER...");
    row("neither up nor down", "step Layer sideways", "up|down");
    row("unknown key", "key Hyper+Q", "key KEY...");
    row("bad duration", "wait soon", "wait SECONDS");
    row("negative duration", "patience -1", "patience SECONDS");
    row("expectation of nothing", "expect", "expect message TEXT");
    row("unknown state", "expect Name purple", "checked|unchecked");
}

void TestScript::badScriptsAreNotRun()
{
    QFETCH(const QString, line);
    QFETCH(const QString, words);
    const Played outcome = play(text("launch Complaint\n# comment\n\n") + line);
    QCOMPARE(outcome.exitCode, 1);
    QVERIFY2(outcome.errors.contains(text(".zelscript:4: ") + line), qPrintable(outcome.errors));
    QVERIFY2(outcome.errors.contains(words), qPrintable(outcome.errors));
    QCOMPARE(outcome.calls, QString());
}

void TestScript::stepsThatCannotBeDone_data()
{
    const Rows<QString, QString, QString> add("before", "step", "words");
    const auto row = [&add](const char *name, const char *step, const char *words, const char *before = "") {
        add(name, before, step, words);
    };
    row("nearest button", "press Complian", "is it \"Complain\"?");
    row("disabled", "press Frozen", "it is disabled");
    row("hidden", "press Ghost", "it is hidden");
    row("page not shown", "check Smooth", "page \"Shading\", which is not shown");
    row("two of a name", "check Twin", "2 have the name Twin");
    row("third of two", "check \"Twin [3]\"", "only 2");
    row("other kind", "type \"Show grid\" x", "no field is called");
    row("identifier of nothing", "press #999", "identifier #999");
    row("identifier of another kind", "press #2", "#2 is not a button");
    row("text of an item", "choose Kind \"RK 5\"", "is it \"RK 4\"?");
    row("position of an item", "choose Kind 5", "items are 1 to 4");
    row("row of a list", "select Zones Wings", "is it \"Wing\"?");
    row("two rows of a list for one", "select Solver 1 2", "only one item");
    row("row that is selected", "add Zones 2", "already selected", "select Zones 2\n");
    row("row that is not selected", "deselect Zones 3", "not selected", "select Zones 2\n");
    row("beyond the scale", "drag Opacity 1001", "from 0 to 1000");
    row("scale at its end", "page Opacity down", "at its end");
    row("no such line", "cursor Notes 9 1", "no such line");
    row("tab", "tab Shadings", "is it \"Shading\"?");
    row("menu", "menu Fiel/Export", "is it \"File\"?");
    row("menu entry", "menu File/Exprt", "is it \"Export\"?");
    row("menu instead of entry", "menu File/Export", "one of its entries");
    row("host's menu behind a modal dialog", "launch Modeless", "keeps users from the host's menu");
    row("other dialog", "in Nested press OK", "no dialog with the title");
    row("dialog without a title", "in \"\" press OK", "no dialog with the title \"\"");
    row("dialog behind a message", "in Everything press OK", "keeps users from", "press Complain\n");
    row("unexpected message", "press OK", "First complaint.\" is up, which no step has expected", "press Complain\n");
    row("unexpected dialog", "press OK", "\"Nested\" is up, which no step has launched", "press \"Open nested\"\n");
    row("other message", "expect message \"Third.\"", "First complaint.", "press Complain\n");
    row("no message", "expect message \"Third.\"", "the dialog \"Everything\" is up");
    row("not closed", "expect dialog closed", "\"Everything\" is up");
    row("other text", "expect Layer text 8", "it is \"7\"");
    row("other state", "expect Frozen enabled", "it is disabled");
    row("no such state", "expect Name checked", "can't be checked");
    row("other choice", "expect Side choice Right", "it is \"Left\"");
    row("other selection", "expect Zones selected 1 2", "what is selected is \"Slat\"", "select Zones 2\n");
    row("some selection", "expect Zones selected none", "what is selected is \"Slat\"", "select Zones 2\n");
    row("other number of items", "expect Zones items 40", "the list has 41");
    row("other item", "expect Solver item 1 Laminar", "it is \"Inviscid\"");
    row("other value", "expect Opacity value 7", "it is 0");
    row("other page", "expect tab Shading", "what is shown is \"Lines\"");
    row("other menu state", "expect menu View/Axes checked", "it is unchecked");
    row("no such label", "expect label Nane", "no label");
    row("picture to nowhere", "picture /nowhere/x.png", "cannot be written");
    row("unexpected message at the end", "click Layer", "at the end, the message", "type Name bad\n");
}

void TestScript::stepsThatCannotBeDone()
{
    QFETCH(const QString, before);
    QFETCH(const QString, step);
    QFETCH(const QString, words);
    const QString script = text("launch Everything\npatience 0\n") + before + step;
    const Played outcome = play(script);
    QCOMPARE(outcome.exitCode, 2);
    const int line = static_cast<int>(script.count(QLatin1Char('\n'))) + 1;
    const bool isAtEnd = words.startsWith(text("at the end"));
    const QString place = isAtEnd ? text(".zelscript: ") : text(".zelscript:%1: %2: ").arg(QString::number(line), step);
    QVERIFY2(outcome.errors.contains(place), qPrintable(outcome.errors));
    QVERIFY2(outcome.errors.contains(words), qPrintable(outcome.errors));
    QCOMPARE(outcome.errors.count(QLatin1Char('\n')), 1);
}

void TestScript::callsOfSteps_data()
{
    const Rows<QString, QString> row("steps", "calls");
    row("comment behind a step",
        "press Complain # twice\nexpect message \"First complaint.\"\npress OK #\n"
        "expect message \"Second complaint.\"\npress OK",
        "complain\n");
    row("field left by Tab", "type Name x\nkey Tab", "name x\n");
    row("field left for a button",
        "type Name x\npress Complain\nexpect message \"First complaint.\"\nkey Escape\n"
        "expect message \"Second complaint.\"\npress OK",
        "name x\ncomplain\n");
    row("arrows", "step Layer up 2\nstep Layer down", "layer up\nlayer up\nlayer down\n");
    row("what is checked stays", "check \"Show grid\"\ncheck \"Show grid\"", "grid 1\n");
    row("radio box by its label", "choose Side Both", "side 3\n");
    row("radio button by its text", "choose Right", "side 2\n");
    row("second of equal items", "choose Kind 3", "kind 3\n");
    row("scale between pixels", "drag Opacity 1 2", "dragged from 0\nopacity 1\ndragged from 1\nopacity 2\n");
    row("rows, one after the other", "select Zones 2 1", "zones 2\nzones 1 2\n");
    row("a range of rows", "select Zones 2 to 4", "zones 2\nzones 2 3 4\n");
    row("a row out of sight", "select Zones \"Far field\"", "zones 41\n");
    row("menu", "menu File/Export/Image//Table", "exported\n");
    row("bitmap buttons by place", "press #19\ncheck #20\nuncheck #20", "icon\nicon toggle 1\nicon toggle 0\n");
    row("mnemonic", "key Alt+G", "grid 1\n");
    row("text, letter by letter", "cursor Notes 1 1 2 4\ninsert Notes ab", "notes [a]\nnotes [ab]\n");
    row("nested modal dialogs",
        "press \"Open nested\"\nexpect dialog Nested\npress Complain\nexpect message \"First complaint.\"\npress OK\n"
        "expect message \"Second complaint.\"\npress OK\npress OK\nexpect dialog Everything",
        "open nested\ncomplain\nnested ok\nnested is over\n");
    row("press that a message interrupts",
        "type Name bad\npress \"Open nested\"\nexpect message \"This name is bad.\"\npress OK\nexpect Name focused",
        "name bad\n");
    row("Cancel in spite of a message",
        "type Name bad\npress Cancel\nexpect message \"This name is bad.\"\npress OK\n"
        "expect dialog closed",
        "name bad\ncancel\neverything is over\n");
}

void TestScript::callsOfSteps()
{
    QFETCH(const QString, steps);
    QFETCH(const QString, calls);
    const Played outcome = play(text("launch Everything\n") + steps);
    QVERIFY2(outcome.exitCode == 0, qPrintable(outcome.errors));
    // Making a scale tells its place; and a dialog that is up ends with the script.
    const QString over = text("everything is over\n");
    QCOMPARE(outcome.calls, text("dragged from 0\n") + calls + (calls.endsWith(over) ? QString() : over));
}

void TestScript::hangsEndWithTheDialogsNames()
{
    const QString script =
        write(text("launch Everything\npress \"Open nested\"\nexpect dialog Nested\npress OK\npress Hang"));
    const Played outcome = run({text("--script"), script, text("--timeout"), text("5")});
    QCOMPARE(outcome.exitCode, 1);
    for (const char *mentioned : {".zelscript:5: press Hang", "has not finished", "the dialog \"Everything\""})
        QVERIFY2(outcome.errors.contains(text(mentioned)), qPrintable(outcome.errors));
    QVERIFY2(!outcome.errors.contains(text("Nested")), qPrintable(outcome.errors));
}

void TestScript::longWaitIsNoHang()
{
    const QString script = write(text("launch Everything\nwait 6"));
    const Played outcome = run({text("--script"), script, text("--timeout"), text("5")});
    QVERIFY2(outcome.exitCode == 0, qPrintable(outcome.errors));
}

void TestScript::pictureOfADialog()
{
    const QString first = m_folder.filePath(text("first.png"));
    const QString second = m_folder.filePath(text("second.png"));
    const Played outcome = play(text("launch Everything\npicture %1\ntab Shading\npicture %2").arg(first, second));
    QVERIFY2(outcome.exitCode == 0, qPrintable(outcome.errors));
    const QImage before(first);
    const QImage after(second);
    QVERIFY(!before.isNull());
    QCOMPARE(after.size(), before.size());
    QVERIFY(after != before);
}

void TestScript::recordingDoesTheSame_data()
{
    const Rows<QString, QString> row("script", "call");
    QFile everything(text(EVERYTHING_SCRIPT));
    QVERIFY(everything.open(QIODevice::ReadOnly));
    row("everything", QString::fromUtf8(everything.readAll()), "nested ok");
    row("menu of a dialog that nothing else was done in",
        text("launch Everything\npress \"Open nested\"\nexpect dialog Nested\nchoose Mood Bright\npress OK"), "mood 2");
    row("menu left in a dialog that nothing else was done in",
        text("launch Everything\npress \"Open nested\"\nexpect dialog Nested\nclick Mood\nkey Escape\npress OK"),
        "nested ok");
    row("menu of the lower one of two dialogs",
        text("launch Modeless\nlaunch Second\nin Modeless choose Mood Bright\nin Second press Close\nclose"), "mood 2");
}

void TestScript::recordingDoesTheSame()
{
    QFETCH(const QString, script);
    QFETCH(const QString, call);
    const QString recording = m_folder.filePath(text("recorded.zelscript"));
    const Played original = run({text("--script"), write(script), text("--record"), recording});
    QVERIFY2(original.exitCode == 0, qPrintable(original.errors));
    const Played replayed = run({text("--script"), recording});
    QVERIFY2(replayed.exitCode == 0, qPrintable(replayed.errors));
    QCOMPARE(replayed.calls, original.calls);
    QVERIFY(original.calls.contains(call));
}

void TestScript::recordingIsReadable()
{
    const QString recording = m_folder.filePath(text("recorded.zelscript"));
    const QString script = write(text("launch Everything\ntype Name x\npress #14\nin Nested press Complain\n"
                                      "expect message \"First complaint.\"\nkey Return\n"
                                      "expect message \"Second complaint.\"\nkey Return\npress Cancel\n"
                                      "expect dialog Everything\nchoose Side 2\ncheck \"Twin [2]\"\nclose"));
    const Played outcome = run({text("--script"), script, text("--record"), recording});
    QVERIFY2(outcome.exitCode == 0, qPrintable(outcome.errors));
    QFile file(recording);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    QCOMPARE(
        lines.join(QLatin1Char('\n')),
        text("launch \"Everything\"\ntype \"Name\" \"x\"\npress \"Open nested\"\nexpect dialog \"Nested\"\n"
             "press \"Complain\"\nexpect message \"First complaint.\"\nkey \"Return\"\n"
             "expect message \"Second complaint.\"\nkey \"Return\"\npress \"Cancel\"\nchoose \"Right\"\ncheck #22\n"
             "close"));
}

QTEST_GUILESS_MAIN(TestScript)
#include "tst_script.moc"
