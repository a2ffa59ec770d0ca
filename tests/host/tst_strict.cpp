// SPDX-License-Identifier: MIT
#include "hostrun.h"

#include <QTemporaryDir>
#include <QTest>

namespace {

QString misuse(const char *name)
{
    return module((QByteArray("misuse_") + name).constData());
}

/// What happens again needs two launches; all else should be found at the first.
QStringList launches(const QString &file, const char *entry)
{
    const QStringList once = {QString::fromLatin1(entry)};
    return file.contains(QLatin1String("again")) ? once + once : once;
}

} // namespace

/// Each add-on of misuse/ breaks one rule, and has a valid twin.
class TestStrict : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void misuseIsNamed_data();
    void misuseIsNamed();
    void validUseIsNot_data() { misuseIsNamed_data(); }
    void validUseIsNot();
    void everyDialogOfTheExamplesIsClean();
    void withoutGuiIdentifiersMeanNothing_data();
    void withoutGuiIdentifiersMeanNothing();
    void otherErrorsKeepTheirExitCode_data();
    void otherErrorsKeepTheirExitCode();

private:
    /// Has each of the entries shown and closed.
    static Outcome runEntries(const QString &file, const QStringList &entries, const QStringList &options = {});
};

Outcome TestStrict::runEntries(const QString &file, const QStringList &entries, const QStringList &options)
{
    const QTemporaryDir directory;
    QStringList arguments = command("--strict --render") << directory.path() << file;
    for (const QString &entry : entries)
        arguments += {text("--launch"), entry};
    return runHost(arguments + options);
}

void TestStrict::misuseIsNamed_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QStringList>("expected");
    const auto row = [](const char *file, std::initializer_list<const char *> expected) {
        QStringList lines;
        for (const char *const line : expected)
            lines << text(line);
        QTest::newRow(file) << misuse(file) << lines;
    };

    row("unknown",
        {"ZelGUILabelSetText: labelId 99 names nothing that was created; pass what ZelGUILabelAdd",
         "ZelGUILabelAdd: parentId -1 is the main window instead of a dialog or a page",
         "ZelGUISetSensitivity: id is ZELGUI_INVALID_ID, so it names nothing; pass what a creating function"});
    row("wrongkind", {"ZelGUIListGetItemCount: listId 1 is a label instead of a list; pass what ZelGUIListAdd"});
    row("destroyed", {"ZelGUILabelSetText: labelId 1 is a label that was destroyed"});
    row("utf8", {"ZelGUIButtonAdd: label \"Süß\" is UTF-8, but read as Latin-1; convert it to Latin-1",
                 "ZelGUIListSetItems: items \"Spaß\" is UTF-8, but read as Latin-1; convert it to Latin-1"});
    row("latin1", {"ZelGUILabelAdd: text \"Süß\" is not UTF-8, but read as UTF-8; convert it to UTF-8"});
    row("format", {"ZelGUILabelSetDouble: format \"%d\" is none for one number; use exactly one",
                   "ZelGUILabelSetDouble: format \"%.2f of %.2f\" is none for one number; use exactly one"});
    row("position", {"ZelGUIListSetSelectedItem: position 1 is none of 0 items; there is none to name yet",
                     "ZelGUIListGetString: position 0 is none of 1 items; positions count from 1",
                     "ZelGUIListSetSelectedItems: positions 2 is none of 1 items; positions count from 1",
                     "ZelGUIOptionMenuSet: position 4 is none of 3 items; positions count from 1",
                     "ZelGUIRadioBoxSetToggle: position 4 is none of 3 items; positions count from 1"});
    row("unreleased", {"ZelGUIListGetSelectedItems: 1 of its results not released; pass each to ZelUtilStringDealloc",
                       "ZelGUITextFieldGetSet: 1 of its results not released; pass each to ZelUtilSetDealloc",
                       "ZelGUITextFieldGetString: 2 of its results not released; pass each to ZelUtilStringDealloc",
                       "ZelUtilStringListAlloc: 1 of its results not released; pass each to ZelUtilStringListDealloc"});
    row("releasedtwice", {"ZelUtilStringDealloc: this was released before; release a thing once",
                          "ZelUtilStringDealloc: this is not what the function releases; pass what the host"});
    row("createdagain", {"ZelGUIDialogCreateModeless: creates a dialog again that is there already, as 0; create"});
    row("addedagain", {"ZelGUILabelAdd: creates a label again that is there already, as 1; create it once, with"});
    row("outside", {"ZelGUIButtonAdd: 1 reaches ", "ZelGUIListAdd: 3 reaches "});
}

void TestStrict::misuseIsNamed()
{
    QFETCH(const QString, file);
    QFETCH(const QStringList, expected);
    const Outcome outcome = runEntries(file, launches(file, "Wrong"));
    for (int i = 0; i < std::max(outcome.errors.size(), expected.size()); ++i) {
        const QString line = text("zelhost: misuse: Wrong: ") + expected.value(i);
        QVERIFY2(outcome.errors.value(i).startsWith(line) && i < expected.size(), qPrintable(outcome.errors.value(i)));
    }
    QCOMPARE(outcome.exitCode, 4);
}

void TestStrict::validUseIsNot()
{
    QFETCH(const QString, file);
    const Outcome outcome = runEntries(file, launches(file, "Valid"));
    QCOMPARE(outcome.errors, QStringList());
    QCOMPARE(outcome.exitCode, 0);
}

void TestStrict::everyDialogOfTheExamplesIsClean()
{
    const Outcome outcome = runEntries(text(HELLO), {}, {text(GALLERY), text(STREAMLINES), text(CONTOURS)});
    QCOMPARE(outcome.errors, QStringList());
    QCOMPARE(outcome.exitCode, 0);
}

void TestStrict::withoutGuiIdentifiersMeanNothing_data()
{
    QTest::addColumn<QString>("file");
    for (const char *file : {"unknown", "wrongkind", "position", "createdagain", "addedagain", "outside"})
        QTest::newRow(file) << misuse(file);
}

void TestStrict::withoutGuiIdentifiersMeanNothing()
{
    QFETCH(const QString, file);
    const Outcome outcome = runHost(command("--strict --batch --launch Wrong --launch Wrong") << file);
    QCOMPARE(outcome.errors, QStringList());
    QCOMPARE(outcome.exitCode, 0);
}

void TestStrict::otherErrorsKeepTheirExitCode_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<int>("exitCode");
    QTest::newRow("leaks give way") << QStringList{text("--report-leaks")} << 4;
    QTest::newRow("an add-on without dialog") << command("%silent --launch Silent") << 1;
}

void TestStrict::otherErrorsKeepTheirExitCode()
{
    QFETCH(const QStringList, options);
    QFETCH(const int, exitCode);
    const Outcome outcome = runEntries(misuse("unreleased"), {text("Wrong")}, options);
    QCOMPARE(outcome.exitCode, exitCode);
}

QTEST_GUILESS_MAIN(TestStrict)
#include "tst_strict.moc"
