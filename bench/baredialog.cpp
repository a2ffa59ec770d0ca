// SPDX-License-Identifier: MIT
#include "comparison.h"
#include "mixeddialog.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QEvent>
#include <QFontMetrics>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QSlider>

namespace bench {

namespace {

void ignore() {}

/// How much is done for a widget.
enum class Service {
    /// Pixels are computed once, as anyone would.
    Lean,
    /// As the library promises: an object's name, and sizes by the font and the screen as they are for this widget.
    Full
};

/// A bare dialog's window.
class BareDialog
{
public:
    BareDialog(QWidget *parent, Service service) : m_dialog(new QDialog(parent)), m_service(service)
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
        auto *const label = new QLabel(QStringLiteral("Label"), m_dialog);
        measureAgain(label);
        label->move(across(x), down(y));
        label->setFixedWidth(label->sizeHint().width());
        name(label);

        auto *const field = place(new QLineEdit(m_dialog), x + 600, y, 1000, 130);
        name(field);
        QObject::connect(field, &QLineEdit::returnPressed, m_dialog, &ignore);
        QObject::connect(field, &QLineEdit::textChanged, m_dialog, &ignore);

        auto *const toggle = place(new QCheckBox(QStringLiteral("Toggle"), m_dialog), x, y + 150, 1000, 130);
        name(toggle);
        QObject::connect(toggle, &QCheckBox::toggled, m_dialog, &ignore);

        auto *const button = place(new QPushButton(QStringLiteral("Push"), m_dialog), x + 1000, y + 150, 600, 143);
        button->setAutoDefault(false);
        name(button);
        QObject::connect(button, &QPushButton::clicked, m_dialog, &ignore);

        auto *const menu = new QComboBox(m_dialog);
        place(menu, x, y + 300, 1000, 130);
        menu->addItems({QStringLiteral("first"), QStringLiteral("second"), QStringLiteral("third")});
        name(menu);
        QObject::connect(menu, QOverload<int>::of(&QComboBox::currentIndexChanged), m_dialog, &ignore);

        auto *const list = place(new QListWidget(m_dialog), x, y + 450, 800, 500);
        list->setSelectionMode(QAbstractItemView::ExtendedSelection);
        list->addItem(QStringLiteral("item"));
        name(list);
        QObject::connect(list, &QListWidget::itemSelectionChanged, m_dialog, &ignore);

        auto *const slider = new QSlider(Qt::Horizontal, m_dialog);
        slider->setRange(0, 100);
        slider->setTickInterval(1);
        place(slider, x + 900, y + 600, 700, 130);
        auto *const display = new QLabel(m_dialog);
        measureAgain(display);
        display->move(slider->x(), slider->y() - m_line);
        display->setFixedSize(slider->width(), m_line);
        display->setAlignment(Qt::AlignHCenter);
        display->setNum(0);
        name(slider);
        QObject::connect(slider, &QSlider::valueChanged, m_dialog, &ignore);
        QObject::connect(slider, &QSlider::actionTriggered, m_dialog, &ignore);

        auto *const group = new QButtonGroup(m_dialog);
        for (int i = 0; i < 2; ++i) {
            auto *const radio = place(new QRadioButton(m_dialog), x + 900, y + 750 + 100 * i, 700, 100);
            radio->setText(i == 0 ? QStringLiteral("one") : QStringLiteral("two"));
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

    void measureAgain(const QWidget *widget)
    {
        if (m_service == Service::Full)
            measure(widget);
    }

    void measure(const QWidget *widget)
    {
        m_line = QFontMetrics(widget->font()).height();
        const QScreen *const screen = mainWindow()->screen();
        m_ratio = screen->logicalDotsPerInchX() / screen->logicalDotsPerInchY();
    }

    void name(QObject *object)
    {
        if (m_service == Service::Full)
            object->setObjectName(QString::number(m_names++));
    }

    QDialog *m_dialog;
    Service m_service;
    int m_names = 100000;
    int m_line;
    double m_ratio;
};

/// Notices that a window has been drawn.
class PaintWatch : public QObject
{
public:
    bool isPainted = false;
    bool eventFilter(QObject *, QEvent *event) override
    {
        isPainted = isPainted || event->type() == QEvent::Paint;
        return false;
    }
};

} // namespace

namespace {

QDialog *createFilled(Service service)
{
    BareDialog bare(mainWindow(), service);
    for (int i = 0; i < 25; ++i)
        bare.fill(1 + i % 5 * 1700, 1 + i / 5 * 1000);
    return bare.dialog();
}

} // namespace

QDialog *createBareDialog()
{
    return createFilled(Service::Lean);
}

QDialog *createFullBareDialog()
{
    return createFilled(Service::Full);
}

void showUntilPainted(QDialog &dialog)
{
    PaintWatch watch;
    dialog.installEventFilter(&watch);
    dialog.show();
    while (!watch.isPainted)
        QApplication::processEvents();
}

} // namespace bench
