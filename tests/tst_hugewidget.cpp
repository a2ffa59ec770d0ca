// SPDX-License-Identifier: MIT
#include "support/zeltest.h"

#include <QProxyStyle>
#include <QStyleOption>

namespace {

/// Counts what it is asked to paint, and what of it is larger than any dialog.
class Style : public QProxyStyle
{
public:
    mutable int all = 0;
    mutable int hugeOnes = 0;

    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override
    {
        count(*option);
        QProxyStyle::drawControl(element, option, painter, widget);
    }
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                            const QWidget *widget) const override
    {
        count(*option);
        QProxyStyle::drawComplexControl(control, option, painter, widget);
    }

private:
    void count(const QStyleOption &option) const
    {
        ++all;
        if (qint64{option.rect.width()} * option.rect.height() > qint64{8192} * 8192)
            ++hugeOnes;
    }
};

} // namespace

/// What an add-on makes far too large must not take the host's memory when it is painted.
class tst_HugeWidget : public ZelTest
{
    Q_OBJECT

private Q_SLOTS:
    void isPaintedPlain_data();
    void isPaintedPlain();
    void menuAroundAFarWidget();
};

using Add = int (*)(int dialog, int size);
Q_DECLARE_METATYPE(Add)

void tst_HugeWidget::isPaintedPlain_data()
{
    QTest::addColumn<Add>("add");
    const auto row = [](const char *name, Add add) { QTest::newRow(name) << add; };
    row("button", [](int dialog, int size) { return ZelGUIButtonAdd(dialog, 1, 1, size, size, "Huge", nullptr); });
    row("bitmap button", [](int dialog, int size) {
        const unsigned char pixel[] = {1, 2, 3};
        return ZelGUIBitmapButtonAdd(dialog, 1, 1, size, size, 1, 1, pixel, 0, 0, 0, 0, nullptr);
    });
    row("option menu",
        [](int dialog, int size) { return ZelGUIOptionMenuAdd(dialog, 1, 1, size, size, "one,two", nullptr); });
    row("spin field", [](int dialog, int size) {
        return ZelGUISpinTextFieldAdd(dialog, 1, 1, size, size, nullptr, nullptr, nullptr);
    });
}

void tst_HugeWidget::isPaintedPlain()
{
    QFETCH(const Add, add);
    const int dialog = createModal();
    auto *const widget = object<QWidget>(add(dialog, 10000000));
    QVERIFY(widget);
    Style style;
    widget->setStyle(&style);

    QCOMPARE(widget->grab(QRect(0, 0, 1, 1)).toImage().pixelColor(0, 0), widget->palette().button().color());
    QCOMPARE(style.hugeOnes, 0);

    widget->setFixedSize(9000, 20);
    widget->grab(QRect(0, 0, 1, 1));
    QVERIFY(style.all > 0);
    widget->setStyle(nullptr);
}

void tst_HugeWidget::menuAroundAFarWidget()
{
    const int menu = ZelGUIMenuAdd(ZelGUIMenuBarAdd(createModal()), "Menu");
    QVERIFY(ZelGUIButtonAdd(menu, 10000000, 10000000, 10000000, 10000000, "Far", nullptr) > 0);
    ZelGUISetVisibility(menu, 1);
    const QSize size = object<QWidget>(menu)->size();
    QVERIFY2(qint64{size.width()} * size.height() <= qint64{8192} * 8192, qPrintable(QString::number(size.height())));
    ZelGUISetVisibility(menu, 0);
}

ZELTEST_MAIN(tst_HugeWidget)
#include "tst_hugewidget.moc"
