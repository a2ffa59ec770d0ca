// SPDX-License-Identifier: MIT
// What users call widgets, and the names that the host therefore gives to controls.
#include "accessiblenames.h"
#include "widgetnames.h"

#include "support/zeltest.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QSlider>
#include <QSpinBox>
#include <QTabWidget>

namespace {

/// A widget of the kind that layouts.txt calls so.
QWidget *make(const QString &kind, const QString &text, QWidget *parent)
{
    const auto is = [&kind](const char *name) { return kind == QLatin1String(name); };
    if (is("label") || is("hidden")) {
        auto *const label = new QLabel(text, parent);
        label->setHidden(is("hidden"));
        return label;
    }
    if (is("check"))
        return new QCheckBox(text, parent);
    if (is("field"))
        return new QLineEdit(QStringLiteral("3"), parent);
    if (is("list"))
        return new QListWidget(parent);
    if (is("slider"))
        return new QSlider(Qt::Horizontal, parent);
    auto *const bitmap = is("bitmap") ? new QPushButton(parent) : nullptr;
    if (bitmap)
        bitmap->setToolTip(text);
    return bitmap;
}

/// A widget behind its label.
template <typename T>
T *place(QWidget &parent, int y, const char *label)
{
    (new QLabel(QString::fromLatin1(label), &parent))->setGeometry(10, y, 80, 20);
    auto *const widget = new T(&parent);
    widget->setGeometry(100, y, 80, 20);
    return widget;
}

} // namespace

class tst_Names : public ZelTest
{
    Q_OBJECT

private Q_SLOTS:
    void ownTexts();
    void layouts_data();
    void layouts();
    void markupIsNoText();
    void buddyComesFirst();
    void titleNamesWhatIsAloneInItsBox();
    void pagesAreCalledAsTheirTabs();
    void partsAreCalledAsTheirWhole();

    void controlsAreNamedWhenShown();
    void namesOfOthersStay();
    void whatComesUpLaterIsNamed();
    void comboBoxesGetTheirLabel();
};

void tst_Names::ownTexts()
{
    for (const auto &[utf8, expected] :
         std::initializer_list<std::pair<const char *, const char *>>{{"Greet", "Greet"},
                                                                      {"Show &grid", "Show grid"},
                                                                      {"Black && &white", "Black & white"},
                                                                      {"Odd&", "Odd"},
                                                                      {"Lines: ", "Lines"},
                                                                      {"Ratio 1:2", "Ratio 1:2"},
                                                                      {"Delete\nall", "Delete all"},
                                                                      {"\xCE\x94p:", "\xCE\x94p"},
                                                                      {":", ""},
                                                                      {"", ""}}) {
        const QString text = QString::fromUtf8(utf8);
        const QString caption = QString::fromUtf8(expected);
        QCOMPARE(captionOf(QPushButton(text)), caption);
        QCOMPARE(captionOf(QCheckBox(text)), caption);
        QCOMPARE(captionOf(QRadioButton(text)), caption);
        QCOMPARE(captionOf(QGroupBox(text)), caption);
        QCOMPARE(captionOf(QMenu(text)), caption);
        // What the user edits, or has chosen, is a value.
        QCOMPARE(captionOf(QLineEdit(text)), QString());
        QCOMPARE(captionOf(QPlainTextEdit(text)), QString());
        QComboBox combo;
        combo.addItem(text);
        QCOMPARE(captionOf(combo), QString());
    }
}

void tst_Names::layouts_data()
{
    QTest::addColumn<QStringList>("lines");
    QFile file(QStringLiteral(LAYOUTS));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QStringList blocks = QString::fromUtf8(file.readAll()).trimmed().split(QStringLiteral("\n\n"));
    for (const QString &block : blocks.mid(1)) {
        const QStringList lines = block.split(QStringLiteral("\n  "));
        QTest::newRow(qPrintable(lines[0])) << QStringList(lines.mid(1));
    }
}

void tst_Names::layouts()
{
    QFETCH(const QStringList, lines);
    static const QRegularExpression form(
        QStringLiteral("^(\\w+) (\\d+) (\\d+) (\\d+) (\\d+)(?: \"(.*?)\")?(?: = \"(.*)\")?$"));
    QWidget window;
    QList<QPair<QWidget *, QString>> expected;
    for (const QString &line : lines) {
        const QStringList parts = form.match(line).capturedTexts();
        auto *const widget = make(parts.value(1), parts.value(6), &window);
        QVERIFY2(widget, qPrintable(line));
        widget->setGeometry(parts[2].toInt(), parts[3].toInt(), parts[4].toInt(), parts[5].toInt());
        expected.append({widget, parts.value(parts.size() > 7 ? 7 : 6).remove(QLatin1Char(':'))});
    }
    // Its name doesn't depend on whether a window was shown already.
    for (int i = 0; i < 2; ++i, window.show()) {
        for (const auto &[widget, caption] : expected)
            QCOMPARE(captionOf(*widget), caption);
    }
}

void tst_Names::markupIsNoText()
{
    QCOMPARE(captionOf(QLabel(QStringLiteral("<b>Bold</b> &amp; <i>thin</i>:"))), QStringLiteral("Bold & thin"));
    QLabel plain(QStringLiteral("<b>"));
    plain.setTextFormat(Qt::PlainText);
    QCOMPARE(captionOf(plain), QStringLiteral("<b>"));
}

void tst_Names::buddyComesFirst()
{
    QWidget window;
    auto *const field = new QLineEdit(&window);
    field->setGeometry(100, 10, 80, 20);
    (new QLabel(QStringLiteral("Nearer"), &window))->setGeometry(50, 10, 50, 20);
    auto *const buddy = new QLabel(QStringLiteral("&Seeds:"), &window);
    buddy->setGeometry(200, 100, 50, 20);
    QCOMPARE(captionOf(*field), QStringLiteral("Nearer"));
    buddy->setBuddy(field);
    QCOMPARE(captionOf(*field), QStringLiteral("Seeds"));
}

void tst_Names::titleNamesWhatIsAloneInItsBox()
{
    QGroupBox box(QStringLiteral("&Levels:"));
    const auto *const list = new QListWidget(&box);
    new QCheckBox(QStringLiteral("All"), &box);
    QCOMPARE(captionOf(*list), QStringLiteral("Levels"));
    auto *const field = new QLineEdit(&box);
    QCOMPARE(captionOf(*list), QString());
    field->setToolTip(QStringLiteral("Count"));
    QCOMPARE(captionOf(*list), QStringLiteral("Levels"));
    QCOMPARE(captionOf(*field), QStringLiteral("Count"));
}

void tst_Names::pagesAreCalledAsTheirTabs()
{
    QTabWidget tabs;
    auto *const page = new QWidget;
    tabs.addTab(new QWidget, QStringLiteral("Levels"));
    tabs.addTab(page, QStringLiteral("&Appearance"));
    QCOMPARE(captionOf(*page), QStringLiteral("Appearance"));
    QCOMPARE(captionOf(tabs), QString());
}

void tst_Names::partsAreCalledAsTheirWhole()
{
    QDialog window;
    window.setWindowTitle(QStringLiteral("Window"));
    const auto *const spin = place<QSpinBox>(window, 0, "Spin");
    auto *const combo = place<QComboBox>(window, 100, "Combo");
    combo->setEditable(true);
    // Makes the popup.
    QVERIFY(combo->view());
    auto *const list = place<QListWidget>(window, 200, "List");
    auto *const tabs = place<QTabWidget>(window, 300, "Tabs");
    tabs->addTab(new QWidget, QStringLiteral("Page"));
    for (const QWidget *const whole : std::initializer_list<const QWidget *>{spin, combo, list, tabs}) {
        const auto parts = whole->findChildren<QWidget *>();
        QVERIFY(!parts.isEmpty() && !captionOf(*whole).isEmpty());
        for (QWidget *const part : parts)
            QCOMPARE(captionOf(*part), tabs->indexOf(part) < 0 ? captionOf(*whole) : QStringLiteral("Page"));
    }
    // A window isn't a part of what it was opened from.
    QDialog inner(list);
    inner.setWindowTitle(QStringLiteral("Inner"));
    QCOMPARE(captionOf(inner), QStringLiteral("Inner"));
}

void tst_Names::controlsAreNamedWhenShown()
{
    const AccessibleNames names(nullptr);
    QDialog dialog;
    const auto *const field = place<QLineEdit>(dialog, 10, "Width (mm):");
    const auto *const spin = place<QSpinBox>(dialog, 40, "Steps:");
    const auto *const button = new QPushButton(QStringLiteral("&Go"), &dialog);
    dialog.show();
    QCOMPARE(field->accessibleName(), QStringLiteral("Width (mm)"));
    QCOMPARE(spin->accessibleName(), QStringLiteral("Steps"));
    QCOMPARE(spin->findChild<QLineEdit *>()->accessibleName(), QStringLiteral("Steps"));
    // The toolkit takes a button's name from its text, which may change.
    QCOMPARE(button->accessibleName(), QString());
    dialog.hide();
    dialog.findChild<QLabel *>()->setText(QStringLiteral("Width (in):"));
    dialog.show();
    QCOMPARE(field->accessibleName(), QStringLiteral("Width (in)"));
}

void tst_Names::namesOfOthersStay()
{
    const AccessibleNames names(nullptr);
    QDialog dialog;
    auto *const field = place<QLineEdit>(dialog, 10, "Seeds:");
    for (const char *const given : {"Set before", "", "Set after"}) {
        field->setAccessibleName(QString::fromLatin1(given));
        dialog.show();
        QCOMPARE(field->accessibleName(), QString::fromLatin1(*given ? given : "Seeds"));
        dialog.hide();
    }
}

void tst_Names::whatComesUpLaterIsNamed()
{
    const AccessibleNames names(nullptr);
    QDialog dialog;
    dialog.resize(200, 200);
    dialog.show();
    auto *const field = place<QLineEdit>(dialog, 10, "Seeds:");
    auto *const page = new QWidget(&dialog);
    page->setGeometry(0, 50, 200, 100);
    const auto *const inner = place<QLineEdit>(*page, 10, "Inner:");
    QCOMPARE(field->accessibleName(), QString());
    dialog.findChild<QLabel *>()->show();
    field->show();
    page->show();
    QTRY_COMPARE(field->accessibleName(), QStringLiteral("Seeds"));
    QCOMPARE(inner->accessibleName(), QStringLiteral("Inner"));
}

void tst_Names::comboBoxesGetTheirLabel()
{
    const AccessibleNames names(nullptr);
    QDialog dialog;
    auto *const box = place<QComboBox>(dialog, 10, "Pattern:");
    const auto *const other = place<QComboBox>(dialog, 40, "P&V:");
    dialog.show();
    const auto labels = dialog.findChildren<QLabel *>();
    QCOMPARE(labels[0]->buddy(), box);
    QCOMPARE(box->accessibleName(), QStringLiteral("Pattern"));
    // As a buddy's label, it would lose its ampersand.
    QVERIFY(!labels[1]->buddy());
    QCOMPARE(other->accessibleName(), QStringLiteral("P&V"));
}

ZELTEST_MAIN(tst_Names)
#include "tst_names.moc"
