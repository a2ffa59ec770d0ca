// SPDX-License-Identifier: MIT
#include "support/rows.h"
#include "support/zeltest.h"

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

using namespace Callback;

using Add = int (*)(int dialog);
Q_DECLARE_METATYPE(Add)

/// Tool tips, focus, sensitivity and visibility reach all that a widget is made of.
class tst_AnyWidget : public ZelTest
{
    Q_OBJECT

private Q_SLOTS:
    void everyConstituent_data();
    void everyConstituent();
    void onlyOneIsTrue();
    void focusOfARejectingField();
};

void tst_AnyWidget::everyConstituent_data()
{
    const Rows<Add, int> row("add", "count");
    row(
        "label", [](int dialog) { return ZelGUILabelAdd(dialog, 100, 300, "Label"); }, 1);
    row(
        "toggle", [](int dialog) { return ZelGUIToggleAdd(dialog, 100, 300, 1000, 100, "Toggle", nullptr); }, 1);
    row(
        "radio box",
        [](int dialog) {
            return ZelGUIRadioBoxAdd(dialog, 100, 300, 1000, 300, "A", "B", "C", nullptr, nullptr, nullptr);
        },
        3);
    row(
        "scale", [](int dialog) { return ZelGUIScaleAdd(dialog, 100, 300, 1000, 100, 0, 9, 0, nullptr, nullptr); }, 2);
    row(
        "spin text field",
        [](int dialog) { return ZelGUISpinTextFieldAdd(dialog, 100, 300, 1000, 100, nullptr, nullptr, nullptr); }, 2);
    row(
        "frame", [](int dialog) { return ZelGUIFrameAdd(dialog, 100, 300, 1000, 100, "Frame"); }, 1);
}

void tst_AnyWidget::everyConstituent()
{
    QFETCH(Add, add);
    QFETCH(int, count);
    const int dialog = launchModeless();
    const auto before = object<QWidget>(dialog)->findChildren<QWidget *>();
    const int id = add(dialog);
    QList<QWidget *> parts;
    for (QWidget *const widget : object<QWidget>(dialog)->findChildren<QWidget *>()) {
        if (!before.contains(widget))
            parts << widget;
    }
    QCOMPARE(int(parts.size()), count);

    ZelGUISetToolTip(id, "\xC3\x84hnlich");
    ZelGUISetVisibility(id, 1);
    ZelGUISetSensitivity(id, 0);
    for (const QWidget *const part : parts) {
        QCOMPARE(part->toolTip(), QString::fromUtf8("\xC3\x84hnlich"));
        QVERIFY(part->isVisible());
        QVERIFY(!part->isEnabled());
    }
    ZelGUISetSensitivity(id, 1);
    ZelGUISetInputFocus(id);
    QCOMPARE(QApplication::focusWidget(), object<QWidget>(id) ? object<QWidget>(id) : parts.first());
    ZelGUISetVisibility(id, 0);
    for (const QWidget *const part : parts)
        QVERIFY(!part->isVisible());
}

void tst_AnyWidget::onlyOneIsTrue()
{
    const int id = ZelGUIToggleAdd(createModal(), 100, 300, 1000, 100, "Toggle", nullptr);
    ZelGUISetSensitivity(id, 2);
    QVERIFY(!object<QWidget>(id)->isEnabled());
    ZelGUISetVisibility(id, 2);
    QVERIFY(object<QWidget>(id)->isHidden());
}

// Each of the calls takes the focus away, so that an add-on's callback runs inside of them.
void tst_AnyWidget::focusOfARejectingField()
{
    const int dialog = createModeless();
    const int field = ZelGUITextFieldAdd(dialog, 100, 100, 1000, 100, reportText<Text>);
    const int other = ZelGUITextFieldAdd(dialog, 100, 300, 1000, 100, nullptr);
    ZelGUIDialogLaunch(dialog);
    QVERIFY(waitUntilActive(object<QDialog>(dialog)));
    ZelGUISetInputFocus(field);
    answer(Text) = 0;
    ZelGUISetInputFocus(other);
    QVERIFY(object<QWidget>(field)->hasFocus());
    answer(Text) = 1;
    ZelGUISetInputFocus(other);
    QVERIFY(object<QWidget>(other)->hasFocus());
    QCOMPARE(log(), QStringList({"Init", "Text ", "Text "}));
    ZelGUISetInputFocus(field);
    action(Text) = [&] { delete object<QDialog>(dialog); };
    ZelGUISetSensitivity(field, 0);
    ZelGUISetInputFocus(field);
    QCOMPARE(ZelGUIDialogIsUp(dialog), 0);
}

ZELTEST_MAIN(tst_AnyWidget)
#include "tst_anywidget.moc"
