// SPDX-License-Identifier: MIT
#include "support/zeltest.h"

#include <QLabel>

/// Labels, and the number formats that text fields share with them.
class tst_Label : public ZelTest
{
    Q_OBJECT

protected Q_SLOTS:
    void init();

private Q_SLOTS:
    void widthIsThatOfTheFirstText();
    void doubles_data();
    void doubles();
    void integers_data();
    void integers();

private:
    int m_label = -2;
};

void tst_Label::init()
{
    ZelTest::init();
    m_label = ZelGUILabelAdd(createModal(), 100, 100, "before");
}

void tst_Label::widthIsThatOfTheFirstText()
{
    const QLabel *const label = object<QLabel>(m_label);
    const int width = QLabel(QStringLiteral("before")).sizeHint().width();
    QCOMPARE(label->width(), width);
    ZelGUILabelSetText(m_label, "a much longer text in UTF-8: \xC3\xA4");
    QCOMPARE(label->text(), QString::fromUtf8("a much longer text in UTF-8: \xC3\xA4"));
    QCOMPARE(label->width(), width);
    ZelGUILabelSetText(m_label, nullptr);
    QCOMPARE(label->text(), QString());
}

void tst_Label::doubles_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QByteArray>("format");
    QTest::addColumn<QString>("text");
    const QString unchanged = QStringLiteral("before");
    QTest::newRow("fixed") << 3.14159 << QByteArray("%.2f") << "3.14";
    QTest::newRow("general") << 1e7 << QByteArray("%g") << "1e+07";
    QTest::newRow("upper case") << 1e7 << QByteArray("%G") << "1E+07";
    QTest::newRow("padded, signed") << 1.5 << QByteArray("%+08.2f") << "+0001.50";
    QTest::newRow("long is a double too") << 0.5 << QByteArray("%lf") << "0.500000";
    QTest::newRow("text and percent signs around") << 50.0 << QByteArray("100%% > %.0f %%") << "100% > 50 %";
    QTest::newRow("UTF-8 around") << 20.0
                                  << QByteArray("%g \xC2\xB0"
                                                "C")
                                  << QString::fromUtf8("20 \xC2\xB0"
                                                       "C");
    QTest::newRow("a point without digits") << 3.5 << QByteArray("%.f") << "4";
    QTest::newRow("widest") << 1.0 << QByteArray("%1000.0f") << QString(999, QLatin1Char(' ')) + QLatin1Char('1');
    const char *const bad[] = {"",       "%",       "text",          "%%",   "%d",    "%s",      "%n",
                               "%c",     "%*f",     "%.*f",          "%f%f", "%f %s", "%f%",     "%Lf",
                               "%1001f", "%.1001f", "%99999999999f", "%%f",  "%-",    "%5.5.5f", "%hhf"};
    for (const char *const format : bad)
        QTest::addRow("not a number format: \"%s\"", format) << 1.0 << QByteArray(format) << unchanged;
    QTest::newRow("null") << 1.0 << QByteArray() << unchanged;
}

void tst_Label::doubles()
{
    QFETCH(double, value);
    QFETCH(QByteArray, format);
    ZelGUILabelSetDouble(m_label, value, format.isNull() ? nullptr : format.constData());
    QTEST(object<QLabel>(m_label)->text(), "text");
}

void tst_Label::integers_data()
{
    QTest::addColumn<qint64>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("negative") << qint64(-5) << "-5";
    QTest::newRow("largest") << qint64(0x7fffffff) << "2147483647";
    QTest::newRow("wraps") << (qint64(1) << 32) + 1 << "1";
    QTest::newRow("wraps to negative") << (qint64(1) << 31) << "-2147483648";
    QTest::newRow("64-bit least") << std::numeric_limits<qint64>::min() << "0";
}

void tst_Label::integers()
{
    QFETCH(qint64, value);
    ZelGUILabelSetLgIndex(m_label, value);
    QTEST(object<QLabel>(m_label)->text(), "text");
}

ZELTEST_MAIN(tst_Label)
#include "tst_label.moc"
