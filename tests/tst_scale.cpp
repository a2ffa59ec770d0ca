// SPDX-License-Identifier: MIT
#include "support/rows.h"
#include "support/zeltest.h"

#include <QApplication>
#include <QFontMetrics>
#include <QLabel>
#include <QSlider>
#include <QStyle>
#include <QStyleOptionSlider>

#include <limits>

using namespace Callback;

namespace {

constexpr int kLeast = std::numeric_limits<int>::min();
constexpr int kGreatest = std::numeric_limits<int>::max();

} // namespace

/// Sliders with a numeric display.
class tst_Scale : public ZelTest
{
    Q_OBJECT

private Q_SLOTS:
    void startsAtItsMinimum();
    void setting_data();
    void setting();
    void keysReportValues();
    void dragReportsTheValueBefore();
    void displayFollowsWhatTheCallbackSets();
    void steppingEndsWithTheButton();
    void madeInItsOwnDragCallback();
    void numericDisplay();
    void extremeLimits_data();
    void extremeLimits();

private:
    int addScale(int dialog, int minimum, int maximum)
    {
        return ZelGUIScaleAdd(dialog, 100, 300, 2000, 150, minimum, maximum, 2, reportInt<Scale>, reportInt<Drag>);
    }
    /// The display of the dialog's only scale.
    QLabel *display(int id) const { return object<QWidget>(id)->parentWidget()->findChild<QLabel *>(); }
};

void tst_Scale::startsAtItsMinimum()
{
    const int id = addScale(createModal(), -5, 20);
    QCOMPARE(log(), QStringList({"Drag -5"}));
    QCOMPARE(ZelGUIScaleGetValue(id), -5);
    const auto *const slider = object<QSlider>(id);
    QCOMPARE(slider->orientation(), Qt::Horizontal);
    const QLabel *const label = display(id);
    const int lineHeight = QFontMetrics(slider->parentWidget()->font()).height();
    QCOMPARE(label->text(), QString("-5"));
    QCOMPARE(label->geometry(), QRect(slider->x(), slider->y() - lineHeight, slider->width(), lineHeight));
    QCOMPARE(ZelGUIScaleGetValue(ZelGUIScaleAdd(createModal(), 1, 1, 1, 1, 9, 3, 0, nullptr, nullptr)), 9);
}

void tst_Scale::setting_data()
{
    const Rows<int, int, int, int> row("minimum", "maximum", "value", "expected");
    row("within", 0, 100, 60, 60);
    row("above", 0, 100, 101, 100);
    row("below", 10, 100, kLeast, 10);
    row("limits the wrong way round", 50, 20, 40, 20);
    row("limits above the old ones", 200, 300, 0, 200);
}

void tst_Scale::setting()
{
    QFETCH(int, minimum);
    QFETCH(int, maximum);
    QFETCH(int, value);
    const int id = addScale(createModal(), 0, 100);
    ZelGUIScaleSetValue(id, 50);
    QCOMPARE(display(id)->text(), QString("50"));
    ZelGUIScaleSetLimits(id, minimum, maximum);
    ZelGUIScaleSetValue(id, value);
    QTEST(ZelGUIScaleGetValue(id), "expected");
    QCOMPARE(display(id)->text(), QString::number(ZelGUIScaleGetValue(id)));
    QCOMPARE(log(), QStringList({"Drag 0"}));
}

void tst_Scale::keysReportValues()
{
    const int id = addScale(launchModeless(), 0, 100);
    auto *const slider = shown<QSlider>(id);
    log().clear();
    QTest::keyClick(slider, Qt::Key_Right);
    QTest::keyClick(slider, Qt::Key_End);
    QTest::keyClick(slider, Qt::Key_End);
    QCOMPARE(log(), QStringList({"Scale 1", "Scale 100"}));
    QCOMPARE(display(id)->text(), QString("100"));
}

void tst_Scale::dragReportsTheValueBefore()
{
    const int id = addScale(launchModeless(), 0, 10);
    auto *const slider = shown<QSlider>(id);
    log().clear();
    QStyleOptionSlider option;
    option.initFrom(slider);
    option.minimum = 0;
    option.maximum = 10;
    const QPoint handle =
        slider->style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, slider).center();
    QTest::mousePress(slider, Qt::LeftButton, Qt::NoModifier, handle);
    dragTo(slider, handle + QPoint(slider->width() / 2, 0));
    dragTo(slider, handle + QPoint(2 * slider->width(), 0));
    QTest::mouseRelease(slider, Qt::LeftButton, Qt::NoModifier, handle + QPoint(2 * slider->width(), 0));
    QCOMPARE(log().size(), 4);
    QCOMPARE(log().at(0), QString("Drag 0"));
    QVERIFY(log().at(1).startsWith("Scale "));
    QCOMPARE(log().at(2), QString(log().at(1)).replace("Scale", "Drag"));
    QCOMPARE(log().at(3), QString("Scale 10"));
    QCOMPARE(display(id)->text(), QString("10"));
}

void tst_Scale::displayFollowsWhatTheCallbackSets()
{
    const int id = addScale(launchModeless(), 0, 100);
    action(Scale) = [id] { ZelGUIScaleSetValue(id, 30); };
    QTest::keyClick(shown<QSlider>(id), Qt::Key_End);
    QCOMPARE(display(id)->text(), QString("30"));
}

/// Something else got the release of the mouse: a message that the callback shows, say.
void tst_Scale::steppingEndsWithTheButton()
{
    const int id = addScale(launchModeless(), 0, 100);
    auto *const slider = shown<QSlider>(id);
    QTest::mousePress(slider, Qt::LeftButton, Qt::NoModifier, QPoint(slider->width() - 3, slider->height() / 2));
    QTest::mouseRelease(mainWindow(), Qt::LeftButton);
    QTest::qWait(700);
    QCOMPARE(log().filter("Scale"), QStringList("Scale 10"));
}

void tst_Scale::madeInItsOwnDragCallback()
{
    const int dialog = createModal();
    action(Drag) = [=] { addScale(dialog, 5, 10); };
    addScale(dialog, 0, 10);
    QCOMPARE(log(), QStringList("Drag 0"));
    QCOMPARE(object<QWidget>(dialog)->findChildren<QSlider *>().size(), 2);
}

void tst_Scale::numericDisplay()
{
    const int dialog = createModeless();
    const int id = addScale(dialog, 0, 10);
    ZelGUIScaleShowNumericDisplay(id, 2);
    ZelGUIDialogLaunch(dialog);
    QVERIFY(object<QWidget>(id)->isVisible());
    QVERIFY(!display(id)->isVisible());
    ZelGUIScaleShowNumericDisplay(id, 1);
    QVERIFY(display(id)->isVisible());
}

void tst_Scale::extremeLimits_data()
{
    const Rows<int, int, int> row("minimum", "maximum", "greatest");
    row("from the least to the greatest", kLeast, kGreatest, -1);
    row("2^31 apart", -1, kGreatest, kGreatest - 1);
    row("just below that", 0, kGreatest, kGreatest);
}

// A range of 2^31 is divided by when the slider is painted.
void tst_Scale::extremeLimits()
{
    QFETCH(int, minimum);
    QFETCH(int, maximum);
    const int dialog = launchModeless();
    const int limited = addScale(dialog, 0, 1);
    ZelGUIScaleSetLimits(limited, minimum, maximum);
    for (const int id : {addScale(dialog, minimum, maximum), limited}) {
        auto *const slider = shown<QSlider>(id);
        ZelGUIScaleSetValue(id, kGreatest);
        QTEST(ZelGUIScaleGetValue(id), "greatest");
        QVERIFY(!slider->grab().isNull());
        QTest::keyClick(slider, Qt::Key_Home);
        QCOMPARE(ZelGUIScaleGetValue(id), minimum);
    }
}

ZELTEST_MAIN(tst_Scale)
#include "tst_scale.moc"
