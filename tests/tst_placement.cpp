// SPDX-License-Identifier: MIT
#include "support/zeltest.h"

#include <zvsdkbase/hostcontrol.h>

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>

#include <cmath>
#include <limits>

/// Where widgets are put and how large they become. Expected pixels are worked out by hand for a font 25 pixels high.
class tst_Placement : public ZelTest
{
    Q_OBJECT

protected Q_SLOTS:
    void initTestCase();
    void cleanup();

private Q_SLOTS:
    void pixels_data();
    void pixels();
    void zeroKeepsTheToolkitsChoice_data();
    void zeroKeepsTheToolkitsChoice();
    void resolution_data();
    void resolution();
    void dialogFrame_data();
    void dialogFrame();
    void focusPolicy();

private:
    QWidget *toggleAt(int x, int y, int width, int height) const
    {
        return object<QWidget>(ZelGUIToggleAdd(m_dialog, x, y, width, height, "Toggle", nullptr));
    }

    int m_dialog = -2;
};

void tst_Placement::initTestCase()
{
    ZelTest::initTestCase();
    QFont font = QApplication::font();
    for (int size = 8; size < 40 && QFontMetrics(font).height() != 25; ++size)
        font.setPixelSize(size);
    QCOMPARE(QFontMetrics(font).height(), 25);
    QApplication::setFont(font);
    m_dialog = createModal();
}

void tst_Placement::cleanup()
{
    orvane::host::overrideDotsPerInch(96, 96);
    ZelTest::cleanup();
}

void tst_Placement::pixels_data()
{
    QTest::addColumn<int>("units");
    QTest::addColumn<int>("across");
    QTest::addColumn<int>("down");
    QTest::newRow("smallest") << 1 << 0 << 0;
    QTest::newRow("rounded up") << 3 << 0 << 1;
    QTest::newRow("half a pixel rounds down") << 50 << 6 << 12;
    QTest::newRow("line") << 100 << 11 << 25;
    QTest::newRow("line and a half") << 150 << 17 << 37;
    QTest::newRow("wide") << 1000 << 112 << 250;
    QTest::newRow("beyond what window systems bear") << std::numeric_limits<int>::max() << 32767 << 32767;
}

void tst_Placement::pixels()
{
    QFETCH(int, units);
    QFETCH(int, across);
    QFETCH(int, down);
    const QWidget *const widget = toggleAt(units, units, units, units);
    QCOMPARE(widget->minimumSize(), QSize(across, down));
    QCOMPARE(widget->maximumSize(), QSize(across, down));
    QCOMPARE(widget->pos(), QPoint(across, down));
}

void tst_Placement::zeroKeepsTheToolkitsChoice_data()
{
    QTest::addColumn<QRect>("units");
    QTest::addColumn<QPoint>("position");
    QTest::addColumn<QSize>("fixed");
    const QSize none(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    QTest::newRow("x is zero") << QRect(0, 50, 100, 100) << QPoint(0, 0) << QSize(11, 25);
    QTest::newRow("y is negative") << QRect(50, -1, 100, 100) << QPoint(0, 0) << QSize(11, 25);
    QTest::newRow("no width") << QRect(50, 50, 0, 100) << QPoint(6, 12) << QSize(none.width(), 25);
    QTest::newRow("negative height") << QRect(50, 50, 100, -7) << QPoint(6, 12) << QSize(11, none.height());
    QTest::newRow("neither") << QRect(50, 50, 0, 0) << QPoint(6, 12) << none;
}

void tst_Placement::zeroKeepsTheToolkitsChoice()
{
    QFETCH(QRect, units);
    const QWidget *const widget = toggleAt(units.x(), units.y(), units.width(), units.height());
    QTEST(widget->pos(), "position");
    QTEST(widget->maximumSize(), "fixed");
}

void tst_Placement::resolution_data()
{
    QTest::addColumn<double>("horizontal");
    QTest::addColumn<double>("vertical");
    QTest::addColumn<int>("units");
    QTest::addColumn<int>("width");
    const double infinity = std::numeric_limits<double>::infinity();
    QTest::newRow("one and a half") << 144.0 << 96.0 << 1000 << 169;
    QTest::newRow("a half") << 48.0 << 96.0 << 1000 << 56;
    QTest::newRow("any other order of factors gives more") << 72.0 << 100.0 << 6821 << 552;
    QTest::newRow("zero") << 96.0 << 0.0 << 1000 << 112;
    QTest::newRow("negative") << -96.0 << 96.0 << 1000 << 112;
    QTest::newRow("both negative") << -144.0 << -96.0 << 1000 << 112;
    QTest::newRow("infinite") << infinity << infinity << 1000 << 112;
    QTest::newRow("not a number") << std::nan("") << 96.0 << 1000 << 112;
    QTest::newRow("ratio overflows") << 1e300 << 1e-300 << 1000 << 112;
}

void tst_Placement::resolution()
{
    QFETCH(double, horizontal);
    QFETCH(double, vertical);
    QFETCH(int, units);
    orvane::host::overrideDotsPerInch(horizontal, vertical);
    const QWidget *const widget = toggleAt(1, 1, units, 1000);
    QTEST(widget->maximumWidth(), "width");
    QCOMPARE(widget->maximumHeight(), 250);
}

void tst_Placement::dialogFrame_data()
{
    QTest::addColumn<QSize>("units");
    QTest::addColumn<QSize>("content");
    QTest::newRow("plain") << QSize(3000, 1000) << QSize(337, 250);
    QTest::newRow("narrower than its margins") << QSize(100, 100) << QSize(11, 25);
    QTest::newRow("beyond what window systems bear") << QSize(1 << 30, 1 << 30) << QSize(8192, 8192);
}

void tst_Placement::dialogFrame()
{
    QFETCH(QSize, units);
    QFETCH(QSize, content);
    const int id = ZelGUIDialogCreateModal(ZELGUI_MAIN_WINDOW, units.width(), units.height(), "", nullptr, nullptr,
                                           nullptr, nullptr, nullptr);
    const QDialog *const dialog = object<QDialog>(id);
    const auto *const box = dialog->findChild<QDialogButtonBox *>();
    QCOMPARE(dialog->minimumSize(), dialog->maximumSize());
    QCOMPARE(dialog->size(), QSize(content.width() + 8, content.height() + box->sizeHint().height() + 12));
    QCOMPARE(box->pos(), QPoint(6, content.height() + 6));
    QCOMPARE(box->maximumWidth(), qMax(0, content.width() - 12));
}

void tst_Placement::focusPolicy()
{
    QCOMPARE(object<QWidget>(ZelGUIButtonAdd(m_dialog, 1, 1, 100, 100, "", nullptr))->focusPolicy(), Qt::StrongFocus);
    QCOMPARE(toggleAt(1, 1, 100, 100)->focusPolicy(), Qt::StrongFocus);
    QCOMPARE(object<QLabel>(ZelGUILabelAdd(m_dialog, 1, 1, "Label"))->focusPolicy(), Qt::NoFocus);
    QCOMPARE(object<QDialog>(m_dialog)->focusPolicy(), Qt::NoFocus);
}

ZELTEST_MAIN(tst_Placement)
#include "tst_placement.moc"
