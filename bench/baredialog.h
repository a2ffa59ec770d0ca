// SPDX-License-Identifier: MIT
#ifndef BENCH_BAREDIALOG_H
#define BENCH_BAREDIALOG_H

#include "comparison.h"

#include <QAbstractItemView>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFontMetrics>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QSlider>

namespace bench {

inline void ignore() {}

/// A dialog made with bare calls. `Service` says of which classes its widgets are, and whether as much is done for each
/// as the library promises: an object's name, sizes by the font and the screen as they are for this widget, where
/// anyone else would compute pixels once, and texts out of the characters that a C function gets.
template <typename Service>
class BareDialog
{
public:
    explicit BareDialog(QWidget *parent) : m_dialog(new QDialog(parent))
    {
        name(m_dialog);
        measure(m_dialog);
        m_dialog->setWindowTitle(QStringLiteral("Mixed"));
        auto *const box = new QDialogButtonBox(QDialogButtonBox::Close, m_dialog);
        box->setFixedWidth(across(9000) - 12);
        box->move(6, down(5400) + 6);
        QObject::connect(box, &QDialogButtonBox::rejected, m_dialog, &ignore);
        m_dialog->setFixedSize(across(9000) + 8, down(5400) + box->sizeHint().height() + 12);
    }

    QDialog *dialog() const { return m_dialog; }

    void fill(int x, int y)
    {
        auto *const label = new QLabel(text(QStringLiteral("Label"), "Label"), m_dialog);
        measureAgain(label);
        label->move(across(x), down(y));
        label->setFixedWidth(label->sizeHint().width());
        name(label);

        auto *const field = place(new typename Service::Field(m_dialog), x + 600, y, 1000, 130);
        name(field);
        QObject::connect(field, &QLineEdit::returnPressed, m_dialog, &ignore);

        auto *const toggle = new typename Service::Toggle(m_dialog);
        toggle->setText(trimmed(text(QStringLiteral("Toggle"), "Toggle")));
        place(toggle, x, y + 150, 1000, 130);
        name(toggle);
        QObject::connect(toggle, &QCheckBox::toggled, m_dialog, &ignore);

        auto *const button = new typename Service::Button(m_dialog);
        button->setText(trimmed(text(QStringLiteral("Push"), "Push")));
        place(button, x + 1000, y + 150, 600, 143);
        button->setAutoDefault(false);
        name(button);
        QObject::connect(button, &QPushButton::clicked, m_dialog, &ignore);

        auto *const menu = new typename Service::Menu(m_dialog);
        place(menu, x, y + 300, 1000, 130);
        menu->addItems(items());
        name(menu);
        QObject::connect(menu, QOverload<int>::of(&QComboBox::currentIndexChanged), m_dialog, &ignore);

        auto *const list = place(new typename Service::List(m_dialog), x, y + 450, 800, 500);
        list->setSelectionMode(QAbstractItemView::ExtendedSelection);
        list->addItem(text(QStringLiteral("item"), "item"));
        name(list);
        QObject::connect(list, &QListWidget::itemSelectionChanged, m_dialog, &ignore);

        auto *const slider = new typename Service::Slider(Qt::Horizontal, m_dialog);
        slider->setRange(0, 100);
        slider->setTickInterval(1);
        place(slider, x + 900, y + 600, 700, 130);
        auto *const display = new QLabel(m_dialog);
        measureLineAgain(display);
        display->move(slider->x(), slider->y() - m_line);
        display->setFixedSize(slider->width(), m_line);
        display->setAlignment(Qt::AlignHCenter);
        display->setNum(0);
        name(slider);
        QObject::connect(slider, &QSlider::valueChanged, m_dialog, &ignore);
        QObject::connect(slider, &QSlider::actionTriggered, m_dialog, &ignore);

        auto *const group = new typename Service::Group(m_dialog);
        for (int i = 0; i < 2; ++i) {
            auto *const radio = place(new QRadioButton(m_dialog), x + 900, y + 750 + 100 * i, 700, 100);
            radio->setText(i == 0 ? text(QStringLiteral("one"), "one") : text(QStringLiteral("two"), "two"));
            group->addButton(radio, i + 1);
        }
        group->button(1)->setChecked(true);
        name(group);
        QObject::connect(group, &QButtonGroup::idClicked, m_dialog, &ignore);
    }

private:
    int across(int units) const { return int(units / 100.0 * m_line * m_ratio * 0.45 + 0.499); }
    int down(int units) const { return int(units / 100.0 * m_line + 0.499); }

    template <typename T>
    T *place(T *widget, int x, int y, int width, int height)
    {
        measureAgain(widget);
        widget->move(across(x), down(y));
        widget->setFixedSize(across(width), down(height));
        widget->setFocusPolicy(Qt::StrongFocus);
        return widget;
    }

    static QString text(const QString &text, const char *characters)
    {
        return Service::isFull ? QString::fromLatin1(characters) : text;
    }

    static QString trimmed(const QString &text) { return Service::isFull ? text.trimmed() : text; }

    static QStringList items()
    {
        if (!Service::isFull)
            return {QStringLiteral("first"), QStringLiteral("second"), QStringLiteral("third")};
        QStringList items = QString::fromLatin1("first,second,third").split(QLatin1Char(','));
        for (QString &item : items)
            item = trimmed(item);
        return items;
    }

    void measureAgain(const QWidget *widget)
    {
        if (Service::isFull)
            measure(widget);
    }

    void measureLineAgain(const QWidget *widget)
    {
        if (Service::isFull)
            m_line = QFontMetrics(widget->font()).height();
    }

    void measure(const QWidget *widget)
    {
        m_line = QFontMetrics(widget->font()).height();
        const QScreen *const screen = mainWindow()->screen();
        m_ratio = screen->logicalDotsPerInchX() / screen->logicalDotsPerInchY();
    }

    void name(QObject *object)
    {
        if (Service::isFull)
            object->setObjectName(QString::number(m_names++));
    }

    QDialog *m_dialog;
    int m_names = 100000;
    int m_line;
    double m_ratio;
};

template <typename Service>
QDialog *createFilled()
{
    BareDialog<Service> bare(mainWindow());
    for (int i = 0; i < 25; ++i)
        bare.fill(1 + i % 5 * 1700, 1 + i / 5 * 1000);
    return bare.dialog();
}

} // namespace bench

#endif
