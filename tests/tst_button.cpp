// SPDX-License-Identifier: MIT
#include "support/rows.h"
#include "support/zeltest.h"

#include <QDialog>
#include <QPushButton>

using namespace Callback;

/// Push buttons and their colours.
class tst_Button : public ZelTest
{
    Q_OBJECT

protected Q_SLOTS:
    void init();

private Q_SLOTS:
    void label_data();
    void label();
    void height_data();
    void height();
    void enterPressesOnlyTheDefault();
    void color_data();
    void color();

private:
    int m_dialog = -2;
};

void tst_Button::init()
{
    ZelTest::init();
    m_dialog = launchModeless();
}

void tst_Button::label_data()
{
    const Rows<QByteArray, QString, QString> row("label", "added", "set");
    row("plain", "OK", "OK", "OK");
    row("blanks around", "  OK  ", "OK", "  OK  ");
    row("blanks inside", "\t\r\n\v\fa  b\n", "a  b", "\t\r\n\v\fa  b\n");
    row("white space only", " \t ", "", " \t ");
    row("mnemonic", "Save &As", "Save &As", "Save &As");
    row("Latin-1", "\xC4ndern", "\xC3\x84ndern", "\xC3\x84ndern");
}

void tst_Button::label()
{
    QFETCH(QByteArray, label);
    const int id = ZelGUIButtonAdd(m_dialog, 100, 100, 1000, 100, label.constData(), nullptr);
    QTEST(object<QPushButton>(id)->text(), "added");
    ZelGUIButtonSetText(id, label.constData());
    QTEST(object<QPushButton>(id)->text(), "set");
}

void tst_Button::height_data()
{
    const Rows<int, int> row("height", "asToggle");
    row("a line", 100, 110);
    row("truncated", 3, 3);
    row("largest", std::numeric_limits<int>::max(), std::numeric_limits<int>::max());
    row("left to the toolkit", 0, 0);
    row("least", std::numeric_limits<int>::min(), 0);
}

void tst_Button::height()
{
    QFETCH(int, height);
    QFETCH(int, asToggle);
    const int button = ZelGUIButtonAdd(m_dialog, 100, 100, 1000, height, "", nullptr);
    const int toggle = ZelGUIToggleAdd(m_dialog, 100, 100, 1000, asToggle, "", nullptr);
    QCOMPARE(object<QWidget>(button)->maximumHeight(), object<QWidget>(toggle)->maximumHeight());
}

void tst_Button::enterPressesOnlyTheDefault()
{
    const int first = ZelGUIButtonAdd(m_dialog, 100, 100, 1000, 100, "First", report<Push>);
    const int second = ZelGUIButtonAdd(m_dialog, 100, 300, 1000, 100, "Second", report<OtherPush>);
    object<QPushButton>(first)->show();
    object<QPushButton>(second)->show();
    object<QPushButton>(first)->setFocus();
    QTest::keyClick(object<QPushButton>(first), Qt::Key_Return);
    QCOMPARE(log(), QStringList());
    ZelGUIButtonSetDefault(-5, second);
    QTest::keyClick(object<QPushButton>(first), Qt::Key_Return);
    QCOMPARE(log(), QStringList({"OtherPush"}));
}

void tst_Button::color_data()
{
    const Rows<int, QColor, QString> row("color", "expected", "name");
    row("first", 0, {0, 0, 0}, "Black");
    row("red", 5, {255, 0, 0}, "Red");
    row("last", 15, {0, 255, 255}, "Aqua");
    row("none", -1, QColor(), "None");
}

void tst_Button::color()
{
    QFETCH(int, color);
    QFETCH(QColor, expected);
    const int id = ZelGUIButtonAdd(m_dialog, 100, 100, 1000, 200, "Text", nullptr);
    QPushButton *const button = object<QPushButton>(id);
    const QSize iconSize = button->iconSize();
    ZelGUIColoredButtonSetColor(id, 2);
    ZelGUIColoredButtonSetColor(id, color);
    QTEST(button->text(), "name");
    QCOMPARE(button->iconSize(), iconSize);
    QCOMPARE(button->icon().isNull(), !expected.isValid());
    if (expected.isValid()) {
        const QSize swatch(iconSize.width(), button->height() * 6 / 10);
        QCOMPARE(button->icon().availableSizes(), QList<QSize>({swatch}));
        QCOMPARE(button->icon().pixmap(swatch).toImage().pixelColor(0, 0), expected);
    }
}

ZELTEST_MAIN(tst_Button)
#include "tst_button.moc"
