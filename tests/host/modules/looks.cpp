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

extern "C" void ZelAddOnInit(void);

namespace {

template <void fill(QDialog &)>
void show()
{
    QDialog dialog;
    dialog.resize(400, 300);
    fill(dialog);
    dialog.exec();
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

void good(QDialog &dialog)
{
    auto *const tabs = new QTabWidget(&dialog);
    tabs->setGeometry(10, 10, 380, 200);
    for (const char *const title : {"One", "Two"}) {
        auto *const page = new QWidget;
        tabs->addTab(page, QString::fromLatin1(title));
        place<QLabel>(*page, 10, 10, QStringLiteral("Value:"));
        place<QLineEdit>(*page, 100, 5, longText);
        auto *const box = new QGroupBox(QStringLiteral("Box"), page);
        box->setGeometry(10, 50, 350, 100);
        place<QCheckBox>(*box, 10, 40, longText);
        place<QCheckBox>(*page, 200, 90, QStringLiteral("Above the box"));
    }
    place<QPushButton>(dialog, 10, 250, longText);
    place<QPushButton>(dialog, 12, 252, QStringLiteral("Hidden"))->hide();
}

template <typename T, int width, int height>
void lacking(QDialog &dialog)
{
    place<T>(dialog, 10, 10, longText, {width, height});
}

void narrowComboBox(QDialog &dialog)
{
    auto *const box = new QComboBox(&dialog);
    box->setToolTip(QStringLiteral("Choice"));
    box->addItems({QStringLiteral("short"), longText});
    box->setGeometry(10, 10, box->sizeHint().width() - 60, box->sizeHint().height());
}

void narrowGroupBox(QDialog &dialog)
{
    auto *const box = new QGroupBox(longText, &dialog);
    box->setGeometry(10, 10, box->fontMetrics().horizontalAdvance(longText) - 20, 100);
}

void manyTabs(QDialog &dialog)
{
    auto *const tabs = new QTabWidget(&dialog);
    tabs->setGeometry(10, 10, 200, 100);
    tabs->setToolTip(QStringLiteral("Tabs"));
    for (int i = 0; i < 2; ++i)
        tabs->addTab(new QWidget, longText);
}

void manyMenus(QDialog &dialog)
{
    auto *const bar = new QMenuBar(&dialog);
    bar->setNativeMenuBar(false);
    bar->setToolTip(QStringLiteral("Menus"));
    for (int i = 0; i < 5; ++i)
        bar->addMenu(longText);
    bar->setGeometry(0, 0, 300, 30);
}

void manyButtons(QDialog &dialog)
{
    auto *const box = new QDialogButtonBox(&dialog);
    box->setStandardButtons(QDialogButtonBox::Ok | QDialogButtonBox::Cancel | QDialogButtonBox::Help);
    box->setFixedWidth(90);
}

void lowSpinBox(QDialog &dialog)
{
    auto *const box = new QSpinBox(&dialog);
    box->setToolTip(QStringLiteral("Count"));
    box->setGeometry(10, 10, 100, box->sizeHint().height() - 10);
}

void overlap(QDialog &dialog)
{
    const auto *const first = place<QPushButton>(dialog, 10, 10, QStringLiteral("First"));
    place<QPushButton>(dialog, 10, first->geometry().bottom() + 1 - 9, QStringLiteral("Second"));
}

void lineThroughText(QDialog &dialog)
{
    place<QLabel>(dialog, 10, 10, longText);
    auto *const line = new QFrame(&dialog);
    line->setFrameShape(QFrame::HLine);
    line->setToolTip(QStringLiteral("Line"));
    line->setGeometry(0, 18, 300, 1);
}

void beyondTheBox(QDialog &dialog)
{
    auto *const box = new QGroupBox(QStringLiteral("Box"), &dialog);
    const auto *const button = place<QPushButton>(*box, 30, 40, QStringLiteral("Far"));
    box->setGeometry(10, 10, button->geometry().right() + 1 - 12, 120);
}

void acrossTheBox(QDialog &dialog)
{
    auto *const box = new QGroupBox(QStringLiteral("Box"), &dialog);
    const auto *const button = place<QPushButton>(dialog, 30, 80, QStringLiteral("Across"));
    box->setGeometry(10, 10, 300, button->geometry().top() - 10 + 8);
}

void overTheTitle(QDialog &dialog)
{
    auto *const box = new QGroupBox(QStringLiteral("Box"), &dialog);
    box->setGeometry(10, 10, 300, 120);
    place<QPushButton>(*box, 5, 2, QStringLiteral("Over"));
}

void nameless(QDialog &dialog)
{
    place<QLineEdit>(dialog, 10, 10, longText)->setObjectName(QStringLiteral("17"));
}

/// On the second page of a form on the second page of a tab widget.
void innerPage(QDialog &dialog)
{
    auto *const tabs = new QTabWidget(&dialog);
    tabs->setGeometry(10, 10, 380, 200);
    tabs->addTab(new QWidget, QStringLiteral("First"));
    auto *const second = new QWidget;
    tabs->addTab(second, QStringLiteral("Second"));
    auto *const form = new QStackedWidget(second);
    form->setGeometry(10, 10, 300, 100);
    form->addWidget(new QWidget);
    form->addWidget(new QWidget);
    place<QLabel>(*form->widget(1), 10, 10, longText, {7, 0});
}

/// Says what it hears of.
void listening(QDialog &dialog)
{
    auto *const tabs = new QTabWidget(&dialog);
    tabs->setGeometry(10, 10, 380, 200);
    for (const char *const title : {"One", "Two"}) {
        auto *const page = new QWidget;
        tabs->addTab(page, QString::fromLatin1(title));
        auto *const field = place<QLineEdit>(*page, 10, 10, longText);
        field->setToolTip(QStringLiteral("Field"));
        QObject::connect(field, &QLineEdit::editingFinished, [] { std::puts("heard of the focus"); });
    }
    QObject::connect(tabs, &QTabWidget::currentChanged, [] { std::puts("heard of the page"); });
    tabs->widget(0)->findChild<QLineEdit *>()->setFocus();
    QObject::connect(&dialog, &QDialog::rejected, [tabs, &dialog] {
        std::printf("page %d, focus %d\n", tabs->currentIndex(),
                    dialog.focusWidget() == tabs->widget(0)->findChild<QLineEdit *>());
    });
}

} // namespace

void ZelAddOnInit(void)
{
    const auto add = [](const char *name, void (*launch)()) { ZelUtilAddOnRegister(name, "", launch); };
    add("Good", show<good>);
    add("Narrow label", show<lacking<QLabel, 7, 0>>);
    add("Low label", show<lacking<QLabel, 0, 5>>);
    add("Narrow button", show<lacking<QPushButton, 40, 0>>);
    add("Low button", show<lacking<QPushButton, 0, 20>>);
    add("Narrow check box", show<lacking<QCheckBox, 10, 0>>);
    add("Narrow radio button", show<lacking<QRadioButton, 10, 0>>);
    add("Narrow combo box", show<narrowComboBox>);
    add("Narrow group box", show<narrowGroupBox>);
    add("Many tabs", show<manyTabs>);
    add("Many menus", show<manyMenus>);
    add("Many buttons", show<manyButtons>);
    add("Low spin box", show<lowSpinBox>);
    add("Overlap", show<overlap>);
    add("Line through text", show<lineThroughText>);
    add("Beyond the box", show<beyondTheBox>);
    add("Across the box", show<acrossTheBox>);
    add("Over the title", show<overTheTitle>);
    add("Nameless", show<nameless>);
    add("Inner page", show<innerPage>);
    add("Listening", show<listening>);
}
