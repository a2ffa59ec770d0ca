// SPDX-License-Identifier: MIT
#include "support/rows.h"
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
    const Rows<double, QByteArray, QString> row("value", "format", "text");
    row("fixed", 3.14159, "%.2f", "3.14");
    row("general", 1e7, "%g", "1e+07");
    row("upper case", 1e7, "%G", "1E+07");
    row("padded, signed", 1.5, "%+08.2f", "+0001.50");
    row("long is a double too", 0.5, "%lf", "0.500000");
    row("text and percent signs around", 50.0, "100%% > %.0f %%", "100% > 50 %");
    row("UTF-8 around", 20.0, "%g \xC2\xB0.", "20 \xC2\xB0.");
    row("a point without digits", 3.5, "%.f", "4");
    row("halfway is away from zero", 2.5, "%.0f", "3");
    row("halfway below zero", -2.5, "%.0f", "-3");
    row("widest", 1.0, "%1000.0f", QString(999, QLatin1Char(' ')) + QLatin1Char('1'));
    // None for one number.
    const char *const bad[] = {"",       "%",       "text",          "%%",   "%d",    "%s",      "%n",
                               "%c",     "%*f",     "%.*f",          "%f%f", "%f %s", "%f%",     "%Lf",
                               "%1001f", "%.1001f", "%99999999999f", "%%f",  "%-",    "%5.5.5f", "%hhf"};
    for (const char *const format : bad)
        row(format, 1.0, format, "before");
    row("null", 1.0, QByteArray(), "before");
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
    const Rows<qint64, QString> row("value", "text");
    row("negative", -5, "-5");
    row("largest", 0x7fffffff, "2147483647");
    row("wraps", (qint64(1) << 32) + 1, "1");
    row("wraps to negative", (qint64(1) << 31), "-2147483648");
    row("64-bit least", std::numeric_limits<qint64>::min(), "0");
}

void tst_Label::integers()
{
    QFETCH(qint64, value);
    ZelGUILabelSetLgIndex(m_label, value);
    QTEST(object<QLabel>(m_label)->text(), "text");
}

ZELTEST_MAIN(tst_Label)
#include "tst_label.moc"
