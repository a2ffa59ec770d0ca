// SPDX-License-Identifier: MIT
#include "support/zeltest.h"

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

using namespace Callback;

/// Tool tips, focus, sensitivity and visibility reach all that a widget is made of.
class tst_AnyWidget : public ZelTest
{
    Q_OBJECT

private Q_SLOTS:
    void everyConstituent_data();
    void everyConstituent();
    void onlyOneIsTrue();
    void focusOfARejectingField();

private:
    int m_dialog = -2;
};

void tst_AnyWidget::everyConstituent_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<int>("count");
    for (const auto &[kind, count] : {std::pair("label", 1), std::pair("toggle", 1), std::pair("radio box", 3),
                                      std::pair("scale", 2), std::pair("spin text field", 2), std::pair("frame", 1)})
        QTest::newRow(kind) << QString::fromLatin1(kind) << count;
}

void tst_AnyWidget::everyConstituent()
{
    QFETCH(QString, kind);
    QFETCH(int, count);
    const int dialog = createModeless();
    ZelGUIDialogLaunch(dialog);
    QWidget *const window = object<QDialog>(dialog);
    QVERIFY(waitUntilActive(window));
    const auto before = window->findChildren<QWidget *>();
    const int id = kind == "label"    ? ZelGUILabelAdd(dialog, 100, 300, "Label")
                   : kind == "toggle" ? ZelGUIToggleAdd(dialog, 100, 300, 1000, 100, "Toggle", nullptr)
                   : kind == "radio box"
                       ? ZelGUIRadioBoxAdd(dialog, 100, 300, 1000, 300, "A", "B", "C", nullptr, nullptr, nullptr)
                   : kind == "scale" ? ZelGUIScaleAdd(dialog, 100, 300, 1000, 100, 0, 9, 0, nullptr, nullptr)
                   : kind == "frame" ? ZelGUIFrameAdd(dialog, 100, 300, 1000, 100, "Frame")
                                     : ZelGUISpinTextFieldAdd(dialog, 100, 300, 1000, 100, nullptr, nullptr, nullptr);
    QList<QWidget *> parts;
    for (QWidget *const widget : window->findChildren<QWidget *>()) {
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
    QWidget *const chief = kind == "spin text field" ? object<QWidget>(id) : parts.first();
    QCOMPARE(QApplication::focusWidget(), chief);
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
