// SPDX-License-Identifier: MIT
#include "accessiblenames.h"

#include "support/zeltest.h"

#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>

namespace {

template <typename T>
T *place(QWidget &parent, int y, const QString &label)
{
    auto *const text = new QLabel(label, &parent);
    text->setGeometry(10, y, 80, 20);
    auto *const widget = new T(&parent);
    widget->setGeometry(100, y, 80, 20);
    return widget;
}

} // namespace

/// Names that the host gives to controls.
class tst_AccessibleNames : public ZelTest
{
    Q_OBJECT

private Q_SLOTS:
    void controlsAreNamedWhenShown();
    void namesFollowTheirLabels();
    void namesOfOthersStay();
    void whatComesUpLaterIsNamed();
    void comboBoxesGetTheirLabel();
};

void tst_AccessibleNames::controlsAreNamedWhenShown()
{
    const AccessibleNames names(nullptr);
    QDialog dialog;
    const auto *const field = place<QLineEdit>(dialog, 10, QStringLiteral("Seeds:"));
    const auto *const spin = place<QSpinBox>(dialog, 40, QStringLiteral("Steps:"));
    auto *const button = new QPushButton(QStringLiteral("&Go"), &dialog);
    dialog.show();
    QCOMPARE(field->accessibleName(), QStringLiteral("Seeds"));
    QCOMPARE(spin->accessibleName(), QStringLiteral("Steps"));
    QCOMPARE(spin->findChild<QLineEdit *>()->accessibleName(), QStringLiteral("Steps"));
    // The toolkit takes a button's name from its text, which may change.
    QCOMPARE(button->accessibleName(), QString());
}

void tst_AccessibleNames::namesFollowTheirLabels()
{
    const AccessibleNames names(nullptr);
    QDialog dialog;
    const auto *const field = place<QLineEdit>(dialog, 10, QStringLiteral("Width (mm):"));
    dialog.show();
    dialog.hide();
    dialog.findChild<QLabel *>()->setText(QStringLiteral("Width (in):"));
    dialog.show();
    QCOMPARE(field->accessibleName(), QStringLiteral("Width (in)"));
}

void tst_AccessibleNames::namesOfOthersStay()
{
    const AccessibleNames names(nullptr);
    QDialog dialog;
    auto *const field = place<QLineEdit>(dialog, 10, QStringLiteral("Seeds:"));
    field->setAccessibleName(QStringLiteral("Set before"));
    dialog.show();
    QCOMPARE(field->accessibleName(), QStringLiteral("Set before"));
    dialog.hide();
    field->setAccessibleName(QString());
    dialog.show();
    QCOMPARE(field->accessibleName(), QStringLiteral("Seeds"));
    dialog.hide();
    field->setAccessibleName(QStringLiteral("Set after"));
    dialog.show();
    QCOMPARE(field->accessibleName(), QStringLiteral("Set after"));
}

void tst_AccessibleNames::whatComesUpLaterIsNamed()
{
    const AccessibleNames names(nullptr);
    QDialog dialog;
    dialog.resize(200, 200);
    dialog.show();
    auto *const field = place<QLineEdit>(dialog, 10, QStringLiteral("Seeds:"));
    auto *const page = new QWidget(&dialog);
    page->setGeometry(0, 50, 200, 100);
    const auto *const inner = place<QLineEdit>(*page, 10, QStringLiteral("Inner:"));
    QCOMPARE(field->accessibleName(), QString());
    dialog.findChild<QLabel *>()->show();
    field->show();
    page->show();
    QTRY_COMPARE(field->accessibleName(), QStringLiteral("Seeds"));
    QCOMPARE(inner->accessibleName(), QStringLiteral("Inner"));
}

void tst_AccessibleNames::comboBoxesGetTheirLabel()
{
    const AccessibleNames names(nullptr);
    QDialog dialog;
    auto *const box = place<QComboBox>(dialog, 10, QStringLiteral("Pattern:"));
    const auto *const other = place<QComboBox>(dialog, 40, QStringLiteral("P&V:"));
    dialog.show();
    const auto labels = dialog.findChildren<QLabel *>();
    QCOMPARE(labels[0]->buddy(), box);
    QCOMPARE(box->accessibleName(), QStringLiteral("Pattern"));
    // As a buddy's label, it would lose its ampersand.
    QVERIFY(!labels[1]->buddy());
    QCOMPARE(other->accessibleName(), QStringLiteral("P&V"));
}

ZELTEST_MAIN(tst_AccessibleNames)
#include "tst_accessiblenames.moc"
