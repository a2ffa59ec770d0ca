// SPDX-License-Identifier: MIT
#include "support/rows.h"
#include "support/zeltest.h"

#include <QAbstractSpinBox>
#include <QLineEdit>

#include <limits>

using namespace Callback;

/// Steps of spin text fields. Their text is tested with that of text fields.
class tst_SpinTextField : public ZelTest
{
    Q_OBJECT

private Q_SLOTS:
    void stepsAreReported();
    void stepDouble_data();
    void stepDouble();
    void stepInteger_data();
    void stepInteger();

private:
    static int addSpin(int dialog)
    {
        return ZelGUISpinTextFieldAdd(dialog, 100, 100, 1000, 150, reportText<Text>, report<Up>, report<Down>);
    }
    QString textOf(int id) const { return object<QWidget>(id)->findChild<QLineEdit *>()->text(); }
};

void tst_SpinTextField::stepsAreReported()
{
    const int id = addSpin(launchModeless());
    auto *const spin = shown<QAbstractSpinBox>(id);
    ZelGUITextFieldSetString(id, "any text");
    for (const auto key : {Qt::Key_Up, Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown})
        QTest::keyClick(spin, key);
    QCOMPARE(log(), QStringList({"Up", "Down", "Up", "Down"}));
    QCOMPARE(textOf(id), QString("any text"));

    action(Up) = [id] { ZelGUITextFieldSetString(id, "stepped"); };
    QTest::keyClick(spin, Qt::Key_Up);
    QCOMPARE(textOf(id), QString("stepped"));

    // Silent, too, is what a host makes of a change by the add-on.
    log().clear();
    connect(spin->findChild<QLineEdit *>(), &QLineEdit::textChanged, spin, [spin] { spin->stepBy(1); });
    ZelGUITextFieldSetString(id, "set");
    QCOMPARE(log(), QStringList());
}

void tst_SpinTextField::stepDouble_data()
{
    const Rows<QByteArray, QByteArray, double, double, double, QString> row("text", "format", "increment", "min", "max",
                                                                            "result");
    row("within", "2.5", "%.2f", 0.25, 0.0, 3.0, "2.75");
    row("beyond the maximum", "2.5", "%g", 1.0, 0.0, 3.0, "3");
    row("below the minimum", "0.2", "%g", -0.5, 0.0, 1.0, "0");
    row("limits contradict, below", "1", "%g", 1.0, 9.0, 5.0, "9");
    row("limits contradict, above", "10", "%g", 1.0, 9.0, 5.0, "5");
    row("no number", "abc", "%g", 1.0, 0.0, 3.0, QString());
    row("bad format", "1", "%d", 1.0, 0.0, 3.0, QString());
}

void tst_SpinTextField::stepDouble()
{
    QFETCH(QByteArray, text);
    QFETCH(QByteArray, format);
    QFETCH(double, increment);
    QFETCH(double, min);
    QFETCH(double, max);
    QFETCH(QString, result);
    const int id = addSpin(createModal());
    ZelGUITextFieldSetString(id, text.constData());
    QCOMPARE(bool(ZelGUISpinTextFieldIncDouble(id, format.constData(), increment, min, max)), !result.isNull());
    QCOMPARE(textOf(id), result.isNull() ? QString::fromUtf8(text) : result);
    QCOMPARE(log(), QStringList());
}

void tst_SpinTextField::stepInteger_data()
{
    constexpr qint64 least = std::numeric_limits<qint64>::min();
    constexpr qint64 greatest = std::numeric_limits<qint64>::max();
    const Rows<QByteArray, qint64, qint64, qint64, QString> row("text", "increment", "min", "max", "result");
    row("within", "9", 1, 1, 10, "10");
    row("at the maximum", "10", 1, 1, 10, "10");
    row("an MX offset is an offset", "Mx-3", 1, 1, 10, "1");
    row("MX is zero, and written plain", "MX", -2, -5, 10, "-2");
    row("limits contradict, below", "1", 1, 9, 5, "9");
    row("limits contradict, above", "10", 1, 9, 5, "5");
    row("sum saturates upwards", "1", greatest, least, greatest, "9223372036854775807");
    row("sum saturates downwards", "MX-1", least, least, greatest, "-9223372036854775808");
    row("no integer", "abc", 1, 1, 10, QString());
}

void tst_SpinTextField::stepInteger()
{
    QFETCH(QByteArray, text);
    QFETCH(qint64, increment);
    QFETCH(qint64, min);
    QFETCH(qint64, max);
    QFETCH(QString, result);
    const int id = addSpin(createModal());
    ZelGUITextFieldSetString(id, text.constData());
    QCOMPARE(bool(ZelGUISpinTextFieldIncLgIndex(id, increment, min, max)), !result.isNull());
    QCOMPARE(textOf(id), result.isNull() ? QString::fromUtf8(text) : result);
    QCOMPARE(log(), QStringList());
}

ZELTEST_MAIN(tst_SpinTextField)
#include "tst_spintextfield.moc"
