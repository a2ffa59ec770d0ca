// SPDX-License-Identifier: MIT
#include "support/zeltest.h"

#include <QApplication>
#include <QLineEdit>

#include <cmath>
#include <limits>

using namespace Callback;

namespace {

QStringList messages;

constexpr qint64 kLeast = std::numeric_limits<qint64>::min();
constexpr qint64 kGreatest = std::numeric_limits<qint64>::max();

} // namespace

// Called in place of the host's.
extern "C" void ZelUtilDialogErrMsg(const char *message)
{
    messages << QString::fromUtf8(message);
}

/// The values of text fields, and what the user is told about wrong ones. What works on a text field works on the text
/// part of a spin text field: called with "spin", all of this is about those.
class tst_TextField : public ZelTest
{
    Q_OBJECT

public:
    explicit tst_TextField(bool isSpin) : m_isSpin(isSpin) {}

protected Q_SLOTS:
    void init();

private Q_SLOTS:
    void strings_data();
    void strings();
    void doubles_data();
    void doubles();
    void setDouble();
    void integers_data();
    void integers();
    void setInteger_data();
    void setInteger();
    void validateDouble_data();
    void validateDouble();
    void validateInteger_data();
    void validateInteger();

private:
    bool m_isSpin;
    int m_field = -2;
};

void tst_TextField::init()
{
    ZelTest::init();
    messages.clear();
    const int dialog = createModal();
    m_field = m_isSpin ? ZelGUISpinTextFieldAdd(dialog, 1, 1, 1000, 100, reportText<Text>, nullptr, nullptr)
                       : ZelGUITextFieldAdd(dialog, 1, 1, 1000, 100, reportText<Text>);
}

void tst_TextField::strings_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("emoji, combining character") << QByteArray("\xF0\x9F\x98\x80 e\xCC\x81");
    QTest::newRow("no-break space, U+2028") << QByteArray("a\xC2\xA0"
                                                          "b\xE2\x80\xA8"
                                                          "c");
    QTest::newRow("byte order marks") << QByteArray("\xEF\xBB\xBF\xEF\xBB\xBFx\xEF\xBB\xBF");
    QTest::newRow("line feed, tab") << QByteArray("a\nb\tc");
    QTest::newRow("as long as a line can be") << QByteArray(32767, 'x');
}

void tst_TextField::strings()
{
    QFETCH(QByteArray, text);
    ZelGUITextFieldSetString(m_field, text.constData());
    QCOMPARE(taken(ZelGUITextFieldGetString(m_field)), text);
    QCOMPARE(log(), QStringList());
}

void tst_TextField::doubles_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<double>("value");
    QTest::addColumn<bool>("isNumber");
    QTest::newRow("exponent") << QByteArray("2.5e3") << 2500.0 << true;
    QTest::newRow("negative, blanks around") << QByteArray(" -0.5 ") << -0.5 << true;
    QTest::newRow("empty") << QByteArray("") << 0.0 << false;
    QTest::newRow("no number") << QByteArray("abc") << 0.0 << false;
    QTest::newRow("more behind") << QByteArray("1.5x") << 0.0 << false;
    QTest::newRow("decimal comma") << QByteArray("1,5") << 0.0 << false;
    QTest::newRow("too large") << QByteArray("1e999") << 0.0 << false;
}

void tst_TextField::doubles()
{
    QFETCH(QByteArray, text);
    ZelGUITextFieldSetString(m_field, text.constData());
    double value = 77;
    QTEST(bool(ZelGUITextFieldGetDouble(m_field, &value)), "isNumber");
    QTEST(value, "value");
    QTEST(bool(ZelGUITextFieldGetDouble(m_field, nullptr)), "isNumber");
}

void tst_TextField::setDouble()
{
    ZelGUITextFieldSetDouble(m_field, 0.1, "%.3f");
    QCOMPARE(taken(ZelGUITextFieldGetString(m_field)), QByteArray("0.100"));
    ZelGUITextFieldSetDouble(m_field, 0.1, "%s");
    QCOMPARE(taken(ZelGUITextFieldGetString(m_field)), QByteArray("0.100"));
}

void tst_TextField::integers_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<qint64>("value");
    QTest::addColumn<bool>("isInteger");
    const auto row = [](const char *text, qint64 value, bool isInteger) {
        QTest::newRow(*text ? text : "empty") << QByteArray(text) << value << isInteger;
    };
    row("42", 42, true);
    row("  17 ", 17, true);
    row("-5", 5, true);
    row("abc7def", 7, true);
    row("3.9", 3, true);
    row("", 0, false);
    row("abc", 0, false);
    row("2147483647", 2147483647, true);
    row("2147483648", 0, false);
    row("MX", 0, true);
    row("mx", 0, true);
    row("MX-4", -4, true);
    row("\tMx -\n4 ", -4, true);
    row("3 MX-4", -4, true);
    row("mx-2147483648", 0, false);
    row("MX4", 0, false);
    row("MX+4", 0, false);
    row("4 MX", 0, false);
    row("MX-4-5", -4, true);
    row("\xD9\xA3", 0, false);
    row("\xD9\xA3 4", 0, false);
    row("MX\xC2\xA0-\xE2\x80\x83"
        "4",
        -4, true);
}

void tst_TextField::integers()
{
    QFETCH(QByteArray, text);
    ZelGUITextFieldSetString(m_field, text.constData());
    LgIndex value = 77;
    QTEST(bool(ZelGUITextFieldGetLgIndex(m_field, &value)), "isInteger");
    QTEST(qint64(value), "value");
    QTEST(bool(ZelGUITextFieldGetLgIndex(m_field, nullptr)), "isInteger");
}

void tst_TextField::setInteger_data()
{
    QTest::addColumn<qint64>("value");
    QTest::addColumn<int>("asMX");
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("plain") << qint64(7) << 0 << QByteArray("7");
    QTest::newRow("plain negative") << qint64(-7) << 0 << QByteArray("-7");
    QTest::newRow("plain zero") << qint64(0) << 0 << QByteArray("0");
    QTest::newRow("positive has no MX") << qint64(7) << 1 << QByteArray("7");
    QTest::newRow("maximum") << qint64(0) << 1 << QByteArray("Mx");
    QTest::newRow("offset") << qint64(-3) << 2 << QByteArray("Mx-3");
    QTest::newRow("least") << kLeast << 1 << QByteArray("Mx-9223372036854775808");
    QTest::newRow("greatest") << kGreatest << 0 << QByteArray("9223372036854775807");
}

void tst_TextField::setInteger()
{
    QFETCH(qint64, value);
    QFETCH(int, asMX);
    ZelGUITextFieldSetLgIndex(m_field, value, static_cast<ZelBoolean>(asMX));
    QTEST(taken(ZelGUITextFieldGetString(m_field)), "text");
    QCOMPARE(log(), QStringList());
}

void tst_TextField::validateDouble_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QString>("message");
    const auto row = [](const char *description, const char *text, double min, double max, const char *message,
                        const char *name = "Tolerance") {
        QTest::newRow(description) << QByteArray(text) << min << max << QByteArray(name) << QString::fromUtf8(message);
    };
    row("minimum", "0", 0, 1, "");
    row("maximum", "1", 0, 1, "");
    row("no number", "abc", 0, 1, "Invalid value specified for Tolerance.");
    row("empty", "", 0, 1, "Invalid value specified for Tolerance.");
    row("too large", "5", 0, 1, "Invalid value for Tolerance. Expected a value between 0 and 1.");
    row("six digits", "-1", 0.5, 1234567, "Invalid value for Tolerance. Expected a value between 0.5 and 1.23457e+06.");
    row("not a number is in no range", "nan", -1e300, 100000,
        "Invalid value for Tolerance. Expected a value between -1e+300 and 100000.");
    row("placeholder in the name", "5", 0, 1, "Invalid value for %2 of %1. Expected a value between 0 and 1.",
        "%2 of %1");
    row("Latin-1 name", "x", 0, 1, "Invalid value specified for \xC3\x84nderung.", "\xC4nderung");
}

void tst_TextField::validateDouble()
{
    QFETCH(QByteArray, text);
    QFETCH(double, min);
    QFETCH(double, max);
    QFETCH(QByteArray, name);
    QFETCH(QString, message);
    ZelGUITextFieldSetString(m_field, text.constData());
    QCOMPARE(bool(ZelGUITextFieldValidateDouble(m_field, name.constData(), min, max)), message.isEmpty());
    QCOMPARE(messages, message.isEmpty() ? QStringList() : QStringList(message));
    QCOMPARE(bool(ZelGUITextFieldValidateDouble(m_field, nullptr, min, max)), message.isEmpty());
    QCOMPARE(messages.size(), message.isEmpty() ? 0 : 1);
    QCOMPARE(taken(ZelGUITextFieldGetString(m_field)), text);
}

void tst_TextField::validateInteger_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<qint64>("min");
    QTest::addColumn<qint64>("max");
    QTest::addColumn<int>("allowMX");
    QTest::addColumn<QString>("message");
    const auto row = [](const char *text, const char *message, int allowMX = 1, qint64 min = 1, qint64 max = 10) {
        QTest::addRow("\"%s\", MX %d, from %lld to %lld", text, allowMX, min, max)
            << QByteArray(text) << min << max << allowMX << QString::fromUtf8(message);
    };
    const char *const range = "Invalid value for Count %2. Expected a value between 1 and 10.";
    row("", "Value not specified for Count %2.");
    row(" \t ", "Value not specified for Count %2.");
    row("5", "");
    row("5", "", 0);
    row("0", range);
    row("11", range);
    row("-5", "");
    row("x", "Invalid value specified for Count %2.");
    row("MX", "");
    row("MX-9", "");
    row("MX-10", "Invalid value for Count %2. Expected a value between 1 and 10 but MX-10 evaluates to 0");
    row("mx - 3", "");
    row("MX+3", "Invalid value specified for Count %2.");
    row("a mX b", "MX syntax may not be used for Count %2.", 0);
    row("MX", "Invalid value for Count %2. Expected a value between 20 and 10 but MX0 evaluates to 10", 1, 20);
    row("MX-5",
        "Invalid value for Count %2. Expected a value between 0 and -9223372036854775808 but MX-5 evaluates to "
        "-9223372036854775808",
        1, 0, kLeast);
    row("MX", "", 2, kLeast, kLeast);
    row("MX", "", 1, 1, kGreatest);
}

void tst_TextField::validateInteger()
{
    QFETCH(QByteArray, text);
    QFETCH(qint64, min);
    QFETCH(qint64, max);
    QFETCH(int, allowMX);
    QFETCH(QString, message);
    ZelGUITextFieldSetString(m_field, text.constData());
    const auto validate = [&](const char *name) {
        return bool(ZelGUITextFieldValidateLgIndex(m_field, name, min, max, static_cast<ZelBoolean>(allowMX)));
    };
    QCOMPARE(validate("Count %2"), message.isEmpty());
    QCOMPARE(messages, message.isEmpty() ? QStringList() : QStringList(message));
    QCOMPARE(validate(nullptr), message.isEmpty());
    QCOMPARE(messages.size(), message.isEmpty() ? 0 : 1);
}

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QStringList arguments = QCoreApplication::arguments();
    tst_TextField test(arguments.removeOne("spin"));
    return QTest::qExec(&test, arguments);
}

#include "tst_textfield.moc"
