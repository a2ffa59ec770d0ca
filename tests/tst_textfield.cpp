// SPDX-License-Identifier: MIT
#include "support/zeltest.h"

#include <QApplication>
#include <QLineEdit>

using namespace Callback;

namespace {

QStringList messages;

} // namespace

// Called in place of the host's.
extern "C" void ZelUtilDialogErrMsg(const char *message)
{
    messages << QString::fromUtf8(message);
}

/// Texts and floating-point values of text fields; the models are about integers and sets. What works on a text field
/// works on the text part of a spin text field: called with "spin", all of this is about those.
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
    void validateDouble_data();
    void validateDouble();

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

ZELTEST_SPIN_MAIN(tst_TextField)
#include "tst_textfield.moc"
