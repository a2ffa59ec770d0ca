// SPDX-License-Identifier: MIT
// Dialogs that look well, and dialogs with one fault each.
#include <zvsdkbase/zelutil.h>

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QStackedWidget>
#include <QTabWidget>

#include <cstdio>
#include <type_traits>

extern "C" void ZelAddOnInit(void);

namespace {

/// Registers an entry that shows a dialog, which `fill` has put something into: a lambda, so each has its own type.
template <typename Fill>
void add(const char *name, Fill fill)
{
    static_assert(std::is_class_v<Fill>);
    static const Fill filling = fill;
    ZelUtilAddOnRegister(name, "", [] {
        QDialog dialog;
        dialog.resize(400, 300);
        filling(dialog);
        dialog.exec();
    });
}

/// Puts a widget where it has all the room that it asks for, and then takes some of it away.
template <typename T>
T *place(QWidget &parent, int x, int y, const QString &text, const QSize &lacking = {0, 0})
{
    auto *const widget = new T(text, &parent);
    widget->move(x, y);
    widget->ensurePolished();
    widget->resize(widget->sizeHint() - lacking);
    return widget;
}

const QString longText = QStringLiteral("A text of some length");

/// Registers an entry whose only widget has less room than it asks for.
template <typename T, int width, int height>
void addLacking(const char *name)
{
    add(name, [](QDialog &dialog) { place<T>(dialog, 10, 10, longText, {width, height}); });
}

template <typename T>
T *placeIn(QDialog &dialog, const QRect &rect, const QString &toolTip = QString())
{
    auto *const widget = new T(&dialog);
    widget->setGeometry(rect);
    widget->setToolTip(toolTip);
    return widget;
}

/// Tabs with a page for each title.
QTabWidget *placeTabs(QDialog &dialog, const QStringList &titles, int width = 380)
{
    auto *const tabs = placeIn<QTabWidget>(dialog, {10, 10, width, 200}, QStringLiteral("Tabs"));
    for (const QString &title : titles)
        tabs->addTab(new QWidget, title);
    return tabs;
}

QGroupBox *placeBox(QWidget &parent, const QRect &rect, const QString &title = QStringLiteral("Box"))
{
    auto *const box = new QGroupBox(title, &parent);
    box->setGeometry(rect);
    return box;
}

const auto fillWell = [](QDialog &dialog) {
    const auto *const tabs = placeTabs(dialog, {QStringLiteral("One"), QStringLiteral("Two")});
    for (QWidget *const page : {tabs->widget(0), tabs->widget(1)}) {
        place<QLabel>(*page, 10, 10, QStringLiteral("Value:"));
        place<QLineEdit>(*page, 100, 5, longText);
        place<QCheckBox>(*placeBox(*page, {10, 50, 350, 100}), 10, 40, longText);
        place<QCheckBox>(*page, 200, 90, QStringLiteral("Above the box"));
    }
    place<QPushButton>(dialog, 10, 250, longText);
    place<QPushButton>(dialog, 12, 252, QStringLiteral("Hidden"))->hide();
};

void addNarrow()
{
    addLacking<QLabel, 7, 0>("Narrow label");
    addLacking<QLabel, 0, 5>("Low label");
    addLacking<QPushButton, 40, 0>("Narrow button");
    addLacking<QPushButton, 0, 20>("Low button");
    addLacking<QCheckBox, 10, 0>("Narrow check box");
    addLacking<QRadioButton, 10, 0>("Narrow radio button");
    add("Narrow combo box", [](QDialog &dialog) {
        auto *const box = placeIn<QComboBox>(dialog, {10, 10, 0, 0}, QStringLiteral("Choice"));
        box->addItems({QStringLiteral("short"), longText});
        box->resize(box->sizeHint() - QSize(60, 0));
    });
    add("Narrow group box", [](QDialog &dialog) {
        placeBox(dialog, {10, 10, dialog.fontMetrics().horizontalAdvance(longText) - 20, 100}, longText);
    });
    add("Many tabs", [](QDialog &dialog) { placeTabs(dialog, {longText, longText}, 200); });
    add("Many menus", [](QDialog &dialog) {
        auto *const bar = placeIn<QMenuBar>(dialog, {0, 0, 300, 30}, QStringLiteral("Menus"));
        bar->setNativeMenuBar(false);
        for (int i = 0; i < 5; ++i)
            bar->addMenu(longText);
    });
    add("Many buttons", [](QDialog &dialog) {
        auto *const box = new QDialogButtonBox(&dialog);
        box->setStandardButtons(QDialogButtonBox::Ok | QDialogButtonBox::Cancel | QDialogButtonBox::Help);
        box->setFixedWidth(70);
    });
    add("Low spin box", [](QDialog &dialog) {
        auto *const box = placeIn<QSpinBox>(dialog, {10, 10, 100, 0}, QStringLiteral("Count"));
        box->resize(100, box->sizeHint().height() - 10);
    });
}

void addOverlapping()
{
    add("Overlap", [](QDialog &dialog) {
        const auto *const first = place<QPushButton>(dialog, 10, 10, QStringLiteral("First"));
        place<QPushButton>(dialog, 10, first->geometry().bottom() + 1 - 9, QStringLiteral("Second"));
    });
    add("Line through text", [](QDialog &dialog) {
        place<QLabel>(dialog, 10, 10, longText);
        placeIn<QFrame>(dialog, {0, 18, 300, 1}, QStringLiteral("Line"))->setFrameShape(QFrame::HLine);
    });
    add("Beyond the box", [](QDialog &dialog) {
        auto *const box = placeBox(dialog, {});
        const auto *const button = place<QPushButton>(*box, 30, 40, QStringLiteral("Far"));
        box->setGeometry(10, 10, button->geometry().right() + 1 - 12, 120);
    });
    add("Across the box", [](QDialog &dialog) {
        auto *const box = placeBox(dialog, {});
        const auto *const button = place<QPushButton>(dialog, 30, 80, QStringLiteral("Across"));
        box->setGeometry(10, 10, 300, button->geometry().top() - 10 + 8);
    });
    add("Over the title", [](QDialog &dialog) {
        place<QPushButton>(*placeBox(dialog, {10, 10, 300, 120}), 5, 2, QStringLiteral("Over"));
    });
}

/// Says what it hears of.
const auto listen = [](QDialog &dialog) {
    auto *const tabs = placeTabs(dialog, {QStringLiteral("One"), QStringLiteral("Two")});
    for (QWidget *const page : {tabs->widget(0), tabs->widget(1)}) {
        auto *const field = place<QLineEdit>(*page, 10, 10, longText);
        field->setToolTip(QStringLiteral("Field"));
        QObject::connect(field, &QLineEdit::editingFinished, [] { std::puts("heard of the focus"); });
    }
    QObject::connect(tabs, &QTabWidget::currentChanged, [] { std::puts("heard of the page"); });
    auto *const first = tabs->widget(0)->findChild<QLineEdit *>();
    first->setFocus();
    QObject::connect(&dialog, &QDialog::rejected, [tabs, first, &dialog] {
        std::printf("page %d, focus %d\n", tabs->currentIndex(), dialog.focusWidget() == first);
    });
};

} // namespace

void ZelAddOnInit(void)
{
    add("Good", fillWell);
    addNarrow();
    addOverlapping();
    add("Nameless",
        [](QDialog &dialog) { place<QLineEdit>(dialog, 10, 10, longText)->setObjectName(QStringLiteral("17")); });
    // On the second page of a form on the second page of a tab widget.
    add("Inner page", [](QDialog &dialog) {
        auto *const form =
            new QStackedWidget(placeTabs(dialog, {QStringLiteral("First"), QStringLiteral("Second")})->widget(1));
        form->setGeometry(10, 10, 300, 100);
        form->addWidget(new QWidget);
        form->addWidget(new QWidget);
        place<QLabel>(*form->widget(1), 10, 10, longText, {7, 0});
    });
    add("Listening", listen);
}
