// SPDX-License-Identifier: MIT
#include "support/rows.h"
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
    void pastedNullCharacter();
    void validateDouble_data();
    void validateDouble();
    void validateLgIndex();
    void tooLongNumber();

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
    const Rows<QByteArray> row("text");
    row("empty", "");
    row("emoji, combining character", "\xF0\x9F\x98\x80 e\xCC\x81");
    row("no-break space, U+2028", "x\xC2\xA0y\xE2\x80\xA8z");
    row("byte order marks", "\xEF\xBB\xBF\xEF\xBB\xBFx\xEF\xBB\xBF");
    row("line feed, tab", "a\nb\tc");
    row("as long as a line can be", QByteArray(32767, 'x'));
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
    const Rows<QByteArray, double, bool> row("text", "value", "isNumber");
    row("exponent", "2.5e3", 2500.0, true);
    row("negative, blanks around", " -0.5 ", -0.5, true);
    row("empty", "", 0.0, false);
    row("no number", "abc", 0.0, false);
    row("more behind", "1.5x", 0.0, false);
    row("decimal comma", "1,5", 0.0, false);
    row("too large", "1e999", 0.0, false);
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
    for (const char *const format : {"%.3f", "%'.3f", "%s"}) {
        ZelGUITextFieldSetDouble(m_field, 0.1, format);
        QCOMPARE(taken(ZelGUITextFieldGetString(m_field)), QByteArray("0.100"));
        ZelGUITextFieldSetString(m_field, QByteArray(format) == "%.3f" ? "?" : "0.100");
    }
}

/// To an add-on, a null character would be the end.
void tst_TextField::pastedNullCharacter()
{
    auto *const edit = m_isSpin ? object<QWidget>(m_field)->findChild<QLineEdit *>() : object<QLineEdit>(m_field);
    edit->insert(QString(QLatin1String("a\0b", 3)));
    QTest::keyClick(object<QWidget>(m_field), Qt::Key_Return);
    QCOMPARE(taken(ZelGUITextFieldGetString(m_field)), QByteArray("a\xEF\xBF\xBD"
                                                                  "b"));
    QCOMPARE(log(), QStringList(QString::fromUtf8("Text a\xEF\xBF\xBD"
                                                  "b")));
}

void tst_TextField::validateDouble_data()
{
    const char *const outside = "Invalid value for Tolerance. Expected a value between ";
    const Rows<QByteArray, QByteArray, double, double, QString> row("name", "text", "min", "max", "message");
    row("minimum", "Tolerance", "0", 0, 1, "");
    row("maximum", "Tolerance", "1", 0, 1, "");
    row("no number", "Tolerance", "abc", 0, 1, "Invalid value specified for Tolerance.");
    row("empty", "Tolerance", "", 0, 1, "Invalid value specified for Tolerance.");
    row("too large", "Tolerance", "5", 0, 1, outside + QString("0 and 1."));
    row("six digits", "Tolerance", "-1", 0.5, 1234567, outside + QString("0.5 and 1.23457e+06."));
    row("in no range", "Tolerance", "nan", -1e300, 100000, outside + QString("-1e+300 and 100000."));
    row("placeholder", "%2 of %1", "5", 0, 1, "Invalid value for %2 of %1. Expected a value between 0 and 1.");
    row("Latin-1 name", "\xC4nderung", "x", 0, 1, "Invalid value specified for \xC3\x84nderung.");
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

/// The field would cut the number to another one.
void tst_TextField::tooLongNumber()
{
    ZelGUITextFieldSetDouble(m_field, 12, QByteArray(32765, ' ') + "%.0f");
    ZelGUITextFieldSetDouble(m_field, 345, QByteArray(32765, ' ') + "%.0f");
    QCOMPARE(taken(ZelGUITextFieldGetString(m_field)).trimmed(), QByteArray("12"));
}

void tst_TextField::validateLgIndex()
{
    ZelGUITextFieldSetString(m_field, "5");
    QCOMPARE(ZelGUITextFieldValidateLgIndex(m_field, "Steps", 5, 5, 0), ZelBoolean(1));
    QCOMPARE(ZelGUITextFieldValidateLgIndex(m_field, "Steps", 6, 9, 0), ZelBoolean(0));
    QCOMPARE(ZelGUITextFieldValidateLgIndex(m_field, "Steps", 1, 4, 0), ZelBoolean(0));
    const QString outside = QStringLiteral("Invalid value for Steps. Expected a value between ");
    QCOMPARE(messages, QStringList({outside + "6 and 9.", outside + "1 and 4."}));
}

ZELTEST_SPIN_MAIN(tst_TextField)
#include "tst_textfield.moc"
