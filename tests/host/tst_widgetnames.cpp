// SPDX-License-Identifier: MIT
#include "widgetnames.h"

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

/// A widget at its place in a window, and what users are expected to call it.
struct Item
{
    Kind kind;
    QRect rect;
    const char *text;
    const char *caption;
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
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("caption");
    const auto row = [](const char *name, const char *text, const char *caption) {
        QTest::newRow(name) << QString::fromUtf8(text) << QString::fromUtf8(caption);
    };
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
    QTest::addColumn<Items>("items");
    const auto label = [](const QRect &rect, const char *text, const char *caption) {
        return Item{Kind::Label, rect, text, caption};
    };
    const auto field = [](const QRect &rect, const char *caption) { return Item{Kind::Field, rect, "3", caption}; };
    const auto list = [](const QRect &rect, const char *caption) { return Item{Kind::List, rect, "", caption}; };
    const auto check = [](const QRect &rect) { return Item{Kind::CheckBox, rect, "On", "On"}; };
    const auto bitmap = [](const QRect &rect, const char *toolTip, const char *caption) {
        return Item{Kind::Bitmap, rect, toolTip, caption};
    };
    const QRect line(10, 10, 50, 16);

    QTest::newRow("beside") << Items{label(line, "Seeds:", "Seeds"), field({100, 8, 80, 20}, "Seeds")};
    QTest::newRow("ampersand") << Items{label(line, "P&V:", "P&V"), field({100, 8, 80, 20}, "P&V")};
    QTest::newRow("beside, longer than planned")
        << Items{label({10, 10, 120, 16}, "Seeds:", "Seeds"), field({100, 8, 80, 20}, "Seeds")};
    QTest::newRow("beside the first line of many")
        << Items{label(line, "Notes:", "Notes"), list({100, 8, 80, 90}, "Notes")};
    QTest::newRow("one pixel in common is another line")
        << Items{label(line, "Seeds:", "Seeds"), field({100, 25, 80, 20}, "")};
    QTest::newRow("above") << Items{label(line, "Zones:", "Zones"), list({10, 30, 90, 80}, "Zones")};
    QTest::newRow("above, but too far") << Items{label(line, "Zones:", "Zones"), list({10, 43, 90, 80}, "")};
    QTest::newRow("above, but further left") << Items{label(line, "Zones:", "Zones"), list({80, 30, 90, 80}, "")};
    QTest::newRow("below or right of it") << Items{field({10, 10, 40, 20}, ""), label({60, 12, 30, 16}, "mm", "mm"),
                                                   label({10, 34, 30, 16}, "hint", "hint")};
    QTest::newRow("beside wins over above")
        << Items{label({100, 10, 50, 16}, "Heading", "Heading"), label({10, 32, 50, 16}, "Seeds:", "Seeds"),
                 field({100, 30, 80, 20}, "Seeds")};
    QTest::newRow("the nearer of two") << Items{label(line, "From", "From"), label({62, 10, 30, 16}, "x =", "x ="),
                                                field({100, 8, 80, 20}, "x =")};
    QTest::newRow("range") << Items{label(line, "From:", "From"), field({70, 8, 40, 20}, "From"),
                                    label({115, 10, 20, 16}, "to", "to"), field({140, 8, 40, 20}, "to")};
    QTest::newRow("one label, two fields")
        << Items{label(line, "Size:", "Size"), field({70, 8, 40, 20}, "Size"), field({120, 8, 40, 20}, "")};
    QTest::newRow("form of two rows") << Items{label(line, "A:", "A"), field({100, 8, 80, 20}, "A"),
                                               label({10, 32, 50, 16}, "B:", "B"), field({100, 30, 80, 20}, "B")};
    QTest::newRow("last row of a form, check box below")
        << Items{label(line, "A:", "A"), field({100, 8, 80, 20}, "A"), check({10, 30, 80, 20})};
    QTest::newRow("two columns with labels above")
        << Items{label(line, "Solver:", "Solver"), label({110, 10, 50, 16}, "Zones:", "Zones"),
                 list({10, 30, 90, 80}, "Solver"), list({110, 30, 90, 80}, "Zones")};
    QTest::newRow("label above, check box in the other column")
        << Items{label(line, "Solver:", "Solver"), check({110, 8, 80, 20}), list({10, 30, 90, 80}, "Solver")};
    QTest::newRow("check boxes beside keep the label from what follows")
        << Items{label(line, "Axes:", "Axes"), check({70, 8, 40, 20}), field({120, 8, 80, 20}, "")};
    QTest::newRow("hidden label") << Items{Item{Kind::HiddenLabel, line, "Old:", "Old"}, field({100, 8, 80, 20}, "")};
    QTest::newRow("empty label between") << Items{label(line, "Seeds:", "Seeds"), label({65, 10, 20, 16}, " ", ""),
                                                  field({100, 8, 80, 20}, "Seeds")};
    QTest::newRow("bitmaps") << Items{label(line, "View:", "View"), bitmap({70, 8, 20, 20}, "", "View"),
                                      bitmap({95, 8, 20, 20}, "<b>Turn</b> left", "Turn left"),
                                      bitmap({120, 8, 20, 20}, "", "")};
    QTest::newRow("bitmap with its own name leaves the label unused")
        << Items{label(line, "View:", "View"), bitmap({70, 8, 20, 20}, "Turn:", "Turn"), field({100, 8, 80, 20}, "")};
    const Item slider{Kind::Slider, {100, 30, 80, 20}, "", "Number"};
    const Item display = label({100, 14, 80, 16}, "8", "Number");
    QTest::newRow("slider with display") << Items{label({10, 32, 50, 16}, "Number:", "Number"), display, slider};
    QTest::newRow("label above a slider's display")
        << Items{label({100, 6, 80, 20}, "Number:", "Number"), display, slider};
    QTest::newRow("number that isn't a slider's display")
        << Items{label({100, 14, 50, 16}, "8", "8"), Item{Kind::Slider, {100, 30, 80, 20}, "", "8"}};
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
        for (int i = 0; i < items.size(); ++i)
            QCOMPARE(captionOf(*widgets[i]), QString::fromUtf8(items[i].caption));
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
