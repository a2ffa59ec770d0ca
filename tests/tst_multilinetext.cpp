// SPDX-License-Identifier: MIT
#include "support/rows.h"
#include "support/zeltest.h"

#include <QAccessible>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QFontInfo>
#include <QInputMethodEvent>
#include <QMenu>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QScrollBar>

using namespace Callback;

namespace {

void compose(QPlainTextEdit &edit, const QString &preedit, const QString &text)
{
    QInputMethodEvent event(preedit, {});
    event.setCommitString(text);
    QApplication::sendEvent(&edit, &event);
}

/// The answer is the position in the text where the drop shows that it would put something: moving there may scroll.
int dropText(const QPlainTextEdit &edit, const QPoint &place, const QString &text)
{
    QMimeData data;
    data.setText(text);
    QWindow *const window = edit.window()->windowHandle();
    const QPoint inWindow = edit.viewport()->mapTo(edit.window(), place);
    QDragEnterEvent enter(inWindow, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window, &enter);
    QDragMoveEvent move(inWindow, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window, &move);
    const int position = edit.cursorForPosition(place).position();
    QDropEvent drop(inWindow, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window, &drop);
    return position;
}

} // namespace

/// Text of several lines.
class tst_MultiLineText : public ZelTest
{
    Q_OBJECT

private Q_SLOTS:
    void comesBackAsPutIn_data();
    void comesBackAsPutIn();
    void appending_data();
    void appending();
    void reports_data();
    void reports();
    void changesDuringTheReport();
    void drops_data();
    void drops();
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

void tst_MultiLineText::appending_data()
{
    const Rows<int, QByteArray> row("wrapping", "text");
    row("lines", -1, QByteArray("line\n").repeated(50));
    row("a long line", -1, QByteArray("words ").repeated(500));
    row("a long line between words", 1, QByteArray("words ").repeated(500));
    row("a long line, not wrapped", 0, QByteArray("words ").repeated(500));
}

void tst_MultiLineText::appending()
{
    QFETCH(int, wrapping);
    QFETCH(QByteArray, text);
    const int dialog = createModeless();
    const int id = ZelGUITextAdd(dialog, 100, 100, 1500, 300, 1, reportText<Text>);
    auto *const edit = object<QPlainTextEdit>(id);
    if (wrapping >= 0)
        ZelGUITextAllowWordWrap(id, static_cast<ZelBoolean>(wrapping));
    ZelGUITextSetString(id, "a");
    // Before the text is first shown, while it is, while it is not, and as it is scrolled.
    for (const bool isVisible : {false, true, false, true}) {
        if (isVisible)
            ZelGUIDialogLaunch(dialog);
        const QByteArray old = taken(ZelGUITextGetString(id));
        edit->verticalScrollBar()->setValue(0);
        edit->selectAll();
        ZelGUITextAppendString(id, "b\n");
        ZelGUITextAppendString(id, text.constData());
        QVERIFY(!edit->textCursor().hasSelection());
        QVERIFY(edit->textCursor().atEnd());
        QCOMPARE(taken(ZelGUITextGetString(id)), old + "b\n" + text);
        if (!isVisible)
            ZelGUIDialogLaunch(dialog);
        QCoreApplication::processEvents();
        QVERIFY(edit->viewport()->rect().contains(edit->cursorRect()));
        ZelGUIDialogDrop(dialog);
    }
    QCOMPARE(log().filter(QStringLiteral("Text")), QStringList());
}

/// Ways of a user's to change a text, "one two" with "two" selected, as a rule to "one X".
struct Way
{
    std::function<void(QPlainTextEdit &)> change;
    QByteArray text = "one X";
};
Q_DECLARE_METATYPE(Way)

void tst_MultiLineText::reports_data()
{
    const Rows<Way> row("way");
    row("key", {[](QPlainTextEdit &edit) { QTest::keyClicks(&edit, QStringLiteral("X")); }});
    row("Delete", {[](QPlainTextEdit &edit) { QTest::keyClick(&edit, Qt::Key_Delete); }, "one "});
    row("undone", {[](QPlainTextEdit &edit) { QTest::keyClick(&edit, Qt::Key_Z, Qt::ControlModifier); }, ""});
    row("undone in its menu",
        {[](QPlainTextEdit &edit) {
             QContextMenuEvent ask(QContextMenuEvent::Keyboard, {2, 2}, edit.mapToGlobal(QPoint(2, 2)));
             QApplication::sendEvent(edit.viewport(), &ask);
             auto *const menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
             const QPoint undo = menu->actionGeometry(menu->actions().first()).center();
             QTest::mouseClick(menu->windowHandle(), Qt::LeftButton, {}, undo);
         },
         ""});
    row("pasted", {[](QPlainTextEdit &edit) {
            QApplication::clipboard()->setText(QStringLiteral("X"));
            QTest::keyClick(&edit, Qt::Key_V, Qt::ControlModifier);
        }});
    row("pasted by a host", {[](QPlainTextEdit &edit) {
            QApplication::clipboard()->setText(QStringLiteral("X"));
            edit.paste();
        }});
    row("composed", {[](QPlainTextEdit &edit) { compose(edit, {}, QStringLiteral("X")); }});
    row("Delete while composing", {[](QPlainTextEdit &edit) {
                                       const auto deed = std::exchange(action(Text), nullptr);
                                       edit.moveCursor(QTextCursor::Start);
                                       compose(edit, QStringLiteral("preedit"), {});
                                       log().clear();
                                       action(Text) = deed;
                                       QTest::keyClick(&edit, Qt::Key_Delete);
                                   },
                                   "ne two"});
    row("dropped", {[](QPlainTextEdit &edit) { dropText(edit, {1, 1}, QStringLiteral("X")); }, "Xone two"});
    row("dropped low", {[](QPlainTextEdit &edit) {
                            dropText(edit, edit.viewport()->rect().bottomRight(), QStringLiteral("X").repeated(500));
                        },
                        "one two" + QByteArray("X").repeated(500)});
    const auto access = [](QPlainTextEdit &edit) {
        return QAccessible::queryAccessibleInterface(&edit)->editableTextInterface();
    };
    row("inserted by assistive technology",
        {[=](QPlainTextEdit &edit) { access(edit)->insertText(7, QStringLiteral("X")); }, "one twoX"});
    row("replaced by assistive technology",
        {[=](QPlainTextEdit &edit) { access(edit)->replaceText(4, 7, QStringLiteral("X")); }});
    row("set by assistive technology", {[](QPlainTextEdit &edit) {
                                            QAccessible::queryAccessibleInterface(&edit)->setText(QAccessible::Value,
                                                                                                  QStringLiteral("X"));
                                        },
                                        "X"});
}

// Once for each event, and when the toolkit is done with it: an add-on may do to the text what it likes.
void tst_MultiLineText::reports()
{
    QFETCH(Way, way);
    const int dialog = launchModeless();
    const int id = ZelGUITextAdd(dialog, 100, 100, 1500, 300, 0, reportText<Text>);
    auto *const edit = shown<QPlainTextEdit>(id);
    const std::function<void()> deeds[] = {
        [] {},
        [=] { ZelGUITextSetString(id, "new\ntext\nof\nfour lines"); },
        [=] { ZelGUITextSetString(id, ""); },
        [=] { ZelGUITextAppendString(id, "\nmore\nand more"); },
        [=] { ZelGUISetVisibility(id, 0); },
        [=] { ZelGUISetSensitivity(id, 0); },
        [] { QCoreApplication::processEvents(); },
        [=] { ZelGUIDialogDrop(dialog); },
    };
    for (const auto &deed : deeds) {
        edit->setEnabled(true);
        edit->show();
        ZelGUITextSetString(id, "");
        edit->setFocus();
        QTest::keyClicks(edit, QStringLiteral("one two"));
        edit->moveCursor(QTextCursor::PreviousWord, QTextCursor::KeepAnchor);
        log().clear();
        action(Text) = deed;
        way.change(*edit);
        QCoreApplication::processEvents();
        action(Text) = nullptr;
        QCOMPARE(log(), QStringList("Text " + QString::fromUtf8(way.text)));
    }
}

// What is typed while the report runs is reported as well, but not from inside it.
void tst_MultiLineText::changesDuringTheReport()
{
    const int id = ZelGUITextAdd(launchModeless(), 100, 100, 1500, 300, 0, reportText<Text>);
    auto *const edit = shown<QPlainTextEdit>(id);
    action(Text) = [=] {
        QTest::keyClicks(edit, QStringLiteral("bc").mid(0, int(3 - taken(ZelGUITextGetString(id)).size())));
        edit->selectAll();
        QCoreApplication::processEvents();
        log() << QStringLiteral("over");
    };
    QTest::keyClick(edit, Qt::Key_A);
    QTRY_COMPARE(log(), QStringList({"Text a", "over", "Text abc", "over"}));
}

void tst_MultiLineText::drops_data()
{
    const Rows<QByteArray, QByteArray> row("text", "dropped");
    const QByteArray lines = "one\ntwo\nthree\nfour\nfive\nsix";
    const QByteArray longLine = QByteArray("long line ").repeated(60);
    row("lines into nothing", "", lines);
    row("a long line into nothing", "", longLine);
    row("lines into lines", lines, lines);
    row("a long line into lines", lines, longLine);
    row("a long line into a long line", longLine, longLine);
    row("lines into a long line", longLine, lines);
    row("nothing", lines, "");
}

// The toolkit would look at lines that are not laid out.
void tst_MultiLineText::drops()
{
    QFETCH(QByteArray, text);
    QFETCH(QByteArray, dropped);
    const int id = ZelGUITextAdd(launchModeless(), 100, 100, 1000, 300, 0, nullptr);
    auto *const edit = shown<QPlainTextEdit>(id);
    for (const auto end : {QTextCursor::Start, QTextCursor::End}) {
        // In the middle of lines: at their edges, a pixel that is rounded decides.
        const int line = edit->fontMetrics().height();
        for (int height = line * 2 / 3; height < edit->viewport()->height(); height += line) {
            ZelGUITextSetString(id, text.constData());
            edit->moveCursor(end);
            const QPoint place(height % 90, height);
            const int position = dropText(*edit, place, QString::fromUtf8(dropped));
            QCOMPARE(taken(ZelGUITextGetString(id)), QByteArray(text).insert(position, dropped));
            QVERIFY(edit->viewport()->rect().intersects(edit->cursorRect()));
            edit->undo();
            QCOMPARE(taken(ZelGUITextGetString(id)), text);
        }
    }
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
    // Where the bar is as wide as the text, it is for the style to say: -1.
    const Rows<QSize, int> row("size", "hasBar");
    row("nothing", {1, 1}, 0);
    row("narrow", {100, 2000}, 0);
    row("flat", {4000, 50}, 1);
    row("barely room", {200, 100}, -1);
    row("small", {400, 200}, 1);
    row("two lines", {2000, 200}, 1);
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
    QFETCH(int, hasBar);
    QVERIFY(hasBar < 0 || edit->verticalScrollBar()->isVisible() == (hasBar == 1));
}

ZELTEST_MAIN(tst_MultiLineText)
#include "tst_multilinetext.moc"
