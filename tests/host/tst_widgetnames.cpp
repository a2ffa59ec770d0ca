// SPDX-License-Identifier: MIT
#include "widgetnames.h"

#include "support/rows.h"
#include "support/zeltest.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QSpinBox>
#include <QTabWidget>

namespace {

enum class Kind { Label, HiddenLabel, Field, CheckBox, Bitmap, List, Slider };

/// A widget at its place in a window, and what users are expected to call it: its text, unless it says otherwise.
struct Item
{
    Kind kind;
    QRect rect;
    const char *text;
    const char *caption = nullptr;
};

QWidget *make(const Item &item, QWidget *parent)
{
    const QString text = QString::fromUtf8(item.text);
    switch (item.kind) {
    case Kind::Label:
    case Kind::HiddenLabel: {
        auto *const label = new QLabel(text, parent);
        label->setHidden(item.kind == Kind::HiddenLabel);
        return label;
    }
    case Kind::Field:
        return new QLineEdit(text, parent);
    case Kind::CheckBox:
        return new QCheckBox(text, parent);
    case Kind::Bitmap: {
        auto *const button = new QPushButton(parent);
        button->setToolTip(text);
        return button;
    }
    case Kind::List:
        return new QListWidget(parent);
    case Kind::Slider:
        return new QSlider(Qt::Horizontal, parent);
    }
    return nullptr;
}

} // namespace

using Items = QList<Item>;
Q_DECLARE_METATYPE(Items)

/// What users call widgets.
class tst_WidgetNames : public ZelTest
{
    Q_OBJECT

private Q_SLOTS:
    void ownTexts_data();
    void ownTexts();
    void labels_data();
    void labels();
    void markupIsNoText();
    void buddyComesFirst();
    void titleNamesWhatIsAloneInItsBox();
    void pagesAreCalledAsTheirTabs();
    void partsAreCalledAsTheirWhole();
};

void tst_WidgetNames::ownTexts_data()
{
    const Rows<QString, QString> row("text", "caption");
    row("plain", "Greet", "Greet");
    row("mnemonic", "Show &grid", "Show grid");
    row("ampersand", "Black && &white", "Black & white");
    row("ampersand at the end", "Odd&", "Odd");
    row("colon", "Lines: ", "Lines");
    row("colon inside", "Ratio 1:2", "Ratio 1:2");
    row("two lines", "Delete\nall", "Delete all");
    row("not Latin", "\xCE\x94p:", "\xCE\x94p");
    row("nothing but a colon", ":", "");
    row("none", "", "");
}

void tst_WidgetNames::ownTexts()
{
    QFETCH(const QString, text);
    QFETCH(const QString, caption);
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

void tst_WidgetNames::labels_data()
{
    const Rows<Items> row("items");
    const auto label = [](const QRect &rect, const char *text, const char *caption = nullptr) {
        return Item{Kind::Label, rect, text, caption};
    };
    const auto field = [](const QRect &rect, const char *caption) { return Item{Kind::Field, rect, "3", caption}; };
    const auto list = [](const QRect &rect, const char *caption) { return Item{Kind::List, rect, "", caption}; };
    const auto check = [](const QRect &rect) { return Item{Kind::CheckBox, rect, "On"}; };
    const auto bitmap = [](const QRect &rect, const char *toolTip, const char *caption) {
        return Item{Kind::Bitmap, rect, toolTip, caption};
    };
    const QRect line(10, 10, 50, 16);

    row("beside", {label(line, "Seeds:"), field({100, 8, 80, 20}, "Seeds")});
    row("ampersand", {label(line, "P&V:"), field({100, 8, 80, 20}, "P&V")});
    row("beside, longer than planned", {label({10, 10, 120, 16}, "Seeds:"), field({100, 8, 80, 20}, "Seeds")});
    row("beside the first line of many", {label(line, "Notes:"), list({100, 8, 80, 90}, "Notes")});
    row("one pixel in common is another line", {label(line, "Seeds:"), field({100, 25, 80, 20}, "")});
    row("above", {label(line, "Zones:"), list({10, 30, 90, 80}, "Zones")});
    row("above, but too far", {label(line, "Zones:"), list({10, 43, 90, 80}, "")});
    row("above, but further left", {label(line, "Zones:"), list({80, 30, 90, 80}, "")});
    row("below or right of it",
        {field({10, 10, 40, 20}, ""), label({60, 12, 30, 16}, "mm"), label({10, 34, 30, 16}, "hint")});
    row("beside wins over above",
        {label({100, 10, 50, 16}, "Heading"), label({10, 32, 50, 16}, "Seeds:"), field({100, 30, 80, 20}, "Seeds")});
    row("the nearer of two", {label(line, "From"), label({62, 10, 30, 16}, "x ="), field({100, 8, 80, 20}, "x =")});
    row("range", {label(line, "From:"), field({70, 8, 40, 20}, "From"), label({115, 10, 20, 16}, "to"),
                  field({140, 8, 40, 20}, "to")});
    row("one label, two fields", {label(line, "Size:"), field({70, 8, 40, 20}, "Size"), field({120, 8, 40, 20}, "")});
    row("form of two rows", {label(line, "A:"), field({100, 8, 80, 20}, "A"), label({10, 32, 50, 16}, "B:"),
                             field({100, 30, 80, 20}, "B")});
    row("last row of a form, check box below",
        {label(line, "A:"), field({100, 8, 80, 20}, "A"), check({10, 30, 80, 20})});
    row("two columns with labels above", {label(line, "Solver:"), label({110, 10, 50, 16}, "Zones:"),
                                          list({10, 30, 90, 80}, "Solver"), list({110, 30, 90, 80}, "Zones")});
    row("label above, check box in the other column",
        {label(line, "Solver:"), check({110, 8, 80, 20}), list({10, 30, 90, 80}, "Solver")});
    row("check boxes beside keep the label from what follows",
        {label(line, "Axes:"), check({70, 8, 40, 20}), field({120, 8, 80, 20}, "")});
    row("hidden label", {{Kind::HiddenLabel, line, "Old:"}, field({100, 8, 80, 20}, "")});
    row("empty label between",
        {label(line, "Seeds:"), label({65, 10, 20, 16}, " ", ""), field({100, 8, 80, 20}, "Seeds")});
    row("bitmaps", {label(line, "View:"), bitmap({70, 8, 20, 20}, "", "View"),
                    bitmap({95, 8, 20, 20}, "<b>Turn</b> left", "Turn left"), bitmap({120, 8, 20, 20}, "", "")});
    row("bitmap with its own name leaves the label unused",
        {label(line, "View:"), bitmap({70, 8, 20, 20}, "Turn:", "Turn"), field({100, 8, 80, 20}, "")});
    const Item slider{Kind::Slider, {100, 30, 80, 20}, "", "Number"};
    const Item display = label({100, 14, 80, 16}, "8", "Number");
    row("slider with display", {label({10, 32, 50, 16}, "Number:"), display, slider});
    row("label above a slider's display", {label({100, 6, 80, 20}, "Number:"), display, slider});
    row("number that isn't a slider's display",
        {label({100, 14, 50, 16}, "8"), {Kind::Slider, {100, 30, 80, 20}, "", "8"}});
}

void tst_WidgetNames::labels()
{
    QFETCH(const Items, items);
    QWidget window;
    QList<QWidget *> widgets;
    for (const Item &item : items) {
        widgets.append(make(item, &window));
        widgets.constLast()->setGeometry(item.rect);
    }
    const auto compareAll = [&items, &widgets] {
        for (int i = 0; i < items.size(); ++i) {
            const char *const caption = items[i].caption ? items[i].caption : items[i].text;
            QCOMPARE(captionOf(*widgets[i]), QString::fromUtf8(caption).remove(QLatin1Char(':')));
        }
    };
    compareAll();
    window.show();
    compareAll();
}

void tst_WidgetNames::markupIsNoText()
{
    QCOMPARE(captionOf(QLabel(QStringLiteral("<b>Bold</b> &amp; <i>thin</i>:"))), QStringLiteral("Bold & thin"));
    QLabel plain(QStringLiteral("<b>"));
    plain.setTextFormat(Qt::PlainText);
    QCOMPARE(captionOf(plain), QStringLiteral("<b>"));
}

void tst_WidgetNames::buddyComesFirst()
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

void tst_WidgetNames::titleNamesWhatIsAloneInItsBox()
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

void tst_WidgetNames::pagesAreCalledAsTheirTabs()
{
    QTabWidget tabs;
    auto *const page = new QWidget;
    tabs.addTab(new QWidget, QStringLiteral("Levels"));
    tabs.addTab(page, QStringLiteral("&Appearance"));
    QCOMPARE(captionOf(*page), QStringLiteral("Appearance"));
    QCOMPARE(captionOf(tabs), QString());
}

void tst_WidgetNames::partsAreCalledAsTheirWhole()
{
    QDialog window;
    window.setWindowTitle(QStringLiteral("Window"));
    const auto labeled = [&window](QWidget *widget, int y, const QString &text) {
        (new QLabel(text, &window))->setGeometry(0, y, 50, 20);
        widget->setParent(&window);
        widget->setGeometry(100, y, 100, 60);
        return text;
    };
    QSpinBox spin;
    QComboBox combo;
    combo.setEditable(true);
    QListWidget list;
    QTabWidget tabs;
    tabs.addTab(new QWidget, QStringLiteral("Page"));
    const QList<QPair<QWidget *, QString>> wholes{{&spin, labeled(&spin, 0, QStringLiteral("Spin"))},
                                                  {&combo, labeled(&combo, 100, QStringLiteral("Combo"))},
                                                  {&list, labeled(&list, 200, QStringLiteral("List"))},
                                                  {&tabs, labeled(&tabs, 300, QStringLiteral("Tabs"))}};
    // Makes the popup.
    QVERIFY(combo.view());
    for (const auto &[whole, caption] : wholes) {
        const auto parts = whole->findChildren<QWidget *>();
        QVERIFY(!parts.isEmpty());
        for (const QWidget *const part : parts) {
            const bool isPage = tabs.indexOf(const_cast<QWidget *>(part)) >= 0;
            QCOMPARE(captionOf(*part), isPage ? QStringLiteral("Page") : caption);
        }
    }
    // A window isn't a part of what it was opened from.
    QDialog inner(&list);
    inner.setWindowTitle(QStringLiteral("Inner"));
    QCOMPARE(captionOf(inner), QStringLiteral("Inner"));
}

ZELTEST_MAIN(tst_WidgetNames)
#include "tst_widgetnames.moc"
