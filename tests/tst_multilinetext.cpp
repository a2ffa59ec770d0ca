// SPDX-License-Identifier: MIT
#include "support/rows.h"
#include "support/zeltest.h"

#include <QContextMenuEvent>
#include <QFontInfo>
#include <QMenu>
#include <QPlainTextEdit>
#include <QScrollBar>

using namespace Callback;

/// Text of several lines.
class tst_MultiLineText : public ZelTest
{
    Q_OBJECT

private Q_SLOTS:
    void comesBackAsPutIn_data();
    void comesBackAsPutIn();
    void appending();
    void userChanges();
    void ownMenuStaysDuringTheReport_data();
    void ownMenuStaysDuringTheReport();
    void readOnly();
    void wrappingAndFont();
    void tooSmallForScrollBars_data();
    void tooSmallForScrollBars();
};

void tst_MultiLineText::comesBackAsPutIn_data()
{
    const Rows<QByteArray, QByteArray> row("text", "expected");
    const auto same = [&row](const char *name, const QByteArray &text) { row(name, text, text); };
    same("empty", "");
    same("empty lines at both ends", "\n\na\n\n");
    same("no-break space", "a\xC2\xA0z");
    same("line separator", "a\xE2\x80\xA8z");
    same("byte order mark", "\xEF\xBB\xBFz");
    same("combining character, emoji, tab", "e\xCC\x81 \xF0\x9F\x98\x80\t.");
    same("object replacement character", "\xEF\xBF\xBC");
    same("control characters", "\x01\x0B\x0C\x1B\x7F");
    same("a million lines", QByteArray("line\n").repeated(1000000));
    row("other line ends", "a\r\nb\rc\xE2\x80\xA9z", "a\nb\nc\nz");
}

void tst_MultiLineText::comesBackAsPutIn()
{
    QFETCH(QByteArray, text);
    const int id = ZelGUITextAdd(createModal(), 100, 100, 2000, 500, 0, reportText<Text>);
    ZelGUITextSetString(id, text.constData());
    QTEST(taken(ZelGUITextGetString(id)), "expected");
    QCOMPARE(log(), QStringList());
}

void tst_MultiLineText::appending()
{
    const int id = ZelGUITextAdd(createModal(), 100, 100, 2000, 500, 1, reportText<Text>);
    auto *const edit = object<QPlainTextEdit>(id);
    ZelGUITextSetString(id, "a");
    edit->selectAll();
    ZelGUITextAppendString(id, "b\n");
    ZelGUITextAppendString(id, "\xC3\xA9");
    QCOMPARE(taken(ZelGUITextGetString(id)), QByteArray("ab\n\xC3\xA9"));
    QVERIFY(!edit->textCursor().hasSelection());
    QVERIFY(edit->textCursor().atEnd());
    QCOMPARE(log(), QStringList());
}

void tst_MultiLineText::userChanges()
{
    const int id = ZelGUITextAdd(launchModeless(), 100, 100, 2000, 500, 0, reportText<Text>);
    ZelGUITextSetString(id, "x\xC2\xA0");
    auto *const edit = shown<QPlainTextEdit>(id);
    // Ignored: there is nothing to take back.
    answer(Text) = 0;
    QTest::keyClick(edit, Qt::Key_A);
    QTest::keyClick(edit, Qt::Key_Delete);
    QCOMPARE(log(), QStringList({QString::fromUtf8("Text ax\xC2\xA0"), QString::fromUtf8("Text a\xC2\xA0")}));
}

void tst_MultiLineText::ownMenuStaysDuringTheReport_data()
{
    const Rows<bool, bool> row("isInside", "isAround");
    row("alone", false, false);
    row("inside another's report", true, false);
    row("around another's report", false, true);
}

/// The toolkit goes on with the menu in which the user has chosen, though it is to be deleted.
void tst_MultiLineText::ownMenuStaysDuringTheReport()
{
    QFETCH(bool, isInside);
    QFETCH(bool, isAround);
    const int dialog = launchModeless();
    auto *const edit = shown<QPlainTextEdit>(ZelGUITextAdd(dialog, 100, 100, 2000, 500, 0, reportText<Text>));
    auto *const other = shown<QPlainTextEdit>(ZelGUITextAdd(dialog, 100, 700, 2000, 500, 0, reportText<OtherText>));
    QTest::keyClick(edit, Qt::Key_A);
    QPointer<QMenu> menu;
    bool isMenuThere = false;
    const auto processEvents = [] {
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();
    };
    action(Text) = [&] {
        if (isAround)
            QTest::keyClick(other, Qt::Key_B);
        processEvents();
        isMenuThere = menu;
    };
    const auto chooseUndo = [&] {
        QContextMenuEvent ask(QContextMenuEvent::Keyboard, QPoint(2, 2), edit->mapToGlobal(QPoint(2, 2)));
        QApplication::sendEvent(edit->viewport(), &ask);
        menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        QVERIFY(menu);
        const QPoint undo = menu->actionGeometry(menu->actions().first()).center();
        QTest::mouseClick(menu->windowHandle(), Qt::LeftButton, {}, undo);
    };
    log().clear();
    if (isInside) {
        action(OtherText) = chooseUndo;
        QTest::keyClick(other, Qt::Key_B);
    } else {
        action(OtherText) = processEvents;
        chooseUndo();
    }
    QVERIFY(log().contains(QStringLiteral("Text ")));
    QVERIFY(isMenuThere);
    QTRY_VERIFY(!menu);
}

void tst_MultiLineText::readOnly()
{
    for (const int readOnly : {0, 1, 2}) {
        const int id = ZelGUITextAdd(createModal(), 1, 1, 2000, 500, static_cast<ZelBoolean>(readOnly), nullptr);
        QCOMPARE(object<QPlainTextEdit>(id)->isReadOnly(), readOnly == 1);
    }
}

void tst_MultiLineText::wrappingAndFont()
{
    const int id = ZelGUITextAdd(createModal(), 1, 1, 2000, 500, 0, reportText<Text>);
    auto *const edit = object<QPlainTextEdit>(id);
    const auto lineWrap = edit->lineWrapMode();
    ZelGUITextAllowWordWrap(id, 0);
    QCOMPARE(edit->wordWrapMode(), QTextOption::NoWrap);
    ZelGUITextAllowWordWrap(id, 2);
    QCOMPARE(edit->wordWrapMode(), QTextOption::WordWrap);
    QCOMPARE(edit->lineWrapMode(), lineWrap);

    const QSize size = edit->size();
    ZelGUITextUseFixedPitchFont(id, 1);
    QCOMPARE(edit->font().family(), QString("Courier"));
    QVERIFY(QFontInfo(edit->font()).fixedPitch());
    ZelGUITextUseFixedPitchFont(id, 0);
    QCOMPARE(edit->font(), edit->parentWidget()->font());
    QCOMPARE(edit->size(), size);
    QCOMPARE(log(), QStringList());
}

void tst_MultiLineText::tooSmallForScrollBars_data()
{
    const Rows<QSize> row("size");
    row("nothing", {1, 1});
    row("narrow", {100, 2000});
    row("flat", {4000, 50});
    row("barely room", {200, 100});
    row("small", {400, 200});
}

// Showing a scroll bar leaves no room for the text, which hides the scroll bar, which makes room.
void tst_MultiLineText::tooSmallForScrollBars()
{
    QFETCH(QSize, size);
    const int id = ZelGUITextAdd(launchModeless(), 100, 100, size.width(), size.height(), 0, nullptr);
    ZelGUITextAllowWordWrap(id, 1);
    ZelGUITextSetString(id, "some text that is wider and\nhigher\nthan\nthe widget\nhas room for");
    auto *const edit = shown<QPlainTextEdit>(id);
    int changes = 0;
    for (QScrollBar *const bar : {edit->verticalScrollBar(), edit->horizontalScrollBar()})
        connect(bar, &QScrollBar::rangeChanged, this, [&changes] { ++changes; });
    for (int pass = 0; pass < 50; ++pass)
        QApplication::processEvents();
    QVERIFY2(changes < 30, qPrintable(QString::number(changes)));
}

ZELTEST_MAIN(tst_MultiLineText)
#include "tst_multilinetext.moc"
