// SPDX-License-Identifier: MIT
#include "support/rows.h"
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
    void geometry_data();
    void geometry();
    void largeContent();
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

void tst_Placement::geometry_data()
{
    QTest::addColumn<QPoint>("place");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QPoint>("position");
    QTest::addColumn<QSize>("fixed");
    const auto row = [](const char *name, int units, int across, int down) {
        QTest::newRow(name) << QPoint(units, units) << QSize(units, units) << QPoint(across, down)
                            << QSize(across, down);
    };
    row("smallest", 1, 0, 0);
    row("rounded up", 3, 0, 1);
    row("half a pixel rounds down", 50, 6, 12);
    row("line", 100, 11, 25);
    row("line and a half", 150, 17, 37);
    row("wide", 1000, 112, 250);
    const QPoint most(std::numeric_limits<int>::max(), std::numeric_limits<int>::max());
    QTest::newRow("larger than any dialog")
        << most << QSize(most.x(), most.y()) << QPoint(32767, 32767) << QSize(8192, 8192);
    QTest::newRow("x is zero") << QPoint(0, 50) << QSize(100, 100) << QPoint(0, 0) << QSize(11, 25);
    QTest::newRow("y is negative") << QPoint(50, -1) << QSize(100, 100) << QPoint(0, 0) << QSize(11, 25);
    // Without a size of its own, the toolkit chooses: -1 here.
    QTest::newRow("no width") << QPoint(50, 50) << QSize(0, 100) << QPoint(6, 12) << QSize(-1, 25);
    QTest::newRow("negative height") << QPoint(50, 50) << QSize(100, -7) << QPoint(6, 12) << QSize(11, -1);
    QTest::newRow("neither") << QPoint(50, 50) << QSize(0, 0) << QPoint(6, 12) << QSize(-1, -1);
}

void tst_Placement::geometry()
{
    QFETCH(QPoint, place);
    QFETCH(QSize, size);
    QFETCH(QSize, fixed);
    const QWidget *const widget = toggleAt(place.x(), place.y(), size.width(), size.height());
    QTEST(widget->pos(), "position");
    const auto orElse = [fixed](int otherwise) {
        return QSize(fixed.width() < 0 ? otherwise : fixed.width(), fixed.height() < 0 ? otherwise : fixed.height());
    };
    QCOMPARE(widget->maximumSize(), orElse(QWIDGETSIZE_MAX));
    QCOMPARE(widget->minimumSize(), orElse(0));
}

/// A style paints these into memory as a whole. Without a size of their own, they are as large as their content.
void tst_Placement::largeContent()
{
    const QByteArray longText(1000000, 'W');
    for (const int id : {ZelGUIButtonAdd(m_dialog, 1, 1, 0, 0, longText.constData(), nullptr),
                         ZelGUIOptionMenuAdd(m_dialog, 1, 1, 0, 0, longText.constData(), nullptr)})
        QCOMPARE(object<QWidget>(id)->sizeHint().width(), 8192);
    const int menu = ZelGUIMenuAdd(ZelGUIMenuBarAdd(m_dialog), "Menu");
    QVERIFY(ZelGUIButtonAdd(menu, 10000000, 10000000, 10000000, 10000000, "Far", nullptr) > 0);
    ZelGUISetVisibility(menu, 1);
    const QSize size = object<QWidget>(menu)->size();
    QVERIFY(qint64{size.width()} * size.height() <= qint64{8192} * 8192);
    ZelGUISetVisibility(menu, 0);
}

void tst_Placement::resolution_data()
{
    const Rows<double, double, int, int> row("horizontal", "vertical", "units", "width");
    const double infinity = std::numeric_limits<double>::infinity();
    row("one and a half", 144.0, 96.0, 1000, 169);
    row("a half", 48.0, 96.0, 1000, 56);
    row("any other order of factors gives more", 72.0, 100.0, 6821, 552);
    row("zero", 96.0, 0.0, 1000, 112);
    row("negative", -96.0, 96.0, 1000, 112);
    row("both negative", -144.0, -96.0, 1000, 112);
    row("infinite", infinity, infinity, 1000, 112);
    row("not a number", std::nan(""), 96.0, 1000, 112);
    row("ratio overflows", 1e300, 1e-300, 1000, 112);
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
    const Rows<QSize, QSize> row("units", "content");
    row("plain", {3000, 1000}, {337, 250});
    row("narrower than its margins", {100, 100}, {11, 25});
    row("beyond what window systems bear", {1 << 30, 1 << 30}, {8192, 8192});
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
