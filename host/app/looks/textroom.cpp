// SPDX-License-Identifier: MIT
#include "textroom.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QStyle>
#include <QStyleOption>
#include <QTabBar>
#include <QTabWidget>

#include <algorithm>

namespace {

QSize textSize(const QWidget &widget, const QString &text)
{
    return widget.fontMetrics().size(Qt::TextShowMnemonic, text);
}

/// Beyond this many items of a combo box no more are measured.
constexpr int MostItems = 1000;

/// The toolkit fills in what it draws a button by in a protected function.
QStyleOptionButton optionFor(const QAbstractButton &button)
{
    QStyleOptionButton option;
    option.initFrom(&button);
    option.text = button.text();
    option.icon = button.icon();
    option.iconSize = button.iconSize();
    return option;
}

QSize missingInButton(const QAbstractButton &button, QStyle::SubElement contents)
{
    if (button.text().isEmpty())
        return {};
    const QStyleOptionButton option = optionFor(button);
    QSize needed = textSize(button, button.text());
    if (!button.icon().isNull()) {
        const int gap = 4;
        needed.rwidth() += button.iconSize().width() + gap;
    }
    return needed - button.style()->subElementRect(contents, &option, &button).size();
}

QSize missingInPushButton(const QPushButton &button)
{
    const QSize missing = missingInButton(button, QStyle::SE_PushButtonContents);
    // Styles centre the line of text and let it reach over the margin above and below.
    return {missing.width(), button.text().isEmpty() ? 0 : button.fontMetrics().height() - button.height()};
}

QSize missingInLabel(const QLabel &label)
{
    if (label.text().isEmpty())
        return {};
    if (label.wordWrap())
        return {0, label.heightForWidth(label.width()) - label.height()};
    return label.sizeHint() - label.size();
}

QSize missingInComboBox(const QComboBox &box)
{
    QStyleOptionComboBox option;
    option.initFrom(&box);
    option.editable = box.isEditable();
    option.frame = box.hasFrame();
    const QRect room = box.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &box);
    QSize needed;
    for (int i = 0; i < std::min(box.count(), MostItems); ++i)
        needed = needed.expandedTo(textSize(box, box.itemText(i)));
    // Styles leave a pixel free on both sides.
    const int margin = 2;
    return {needed.width() + margin - room.width(), box.fontMetrics().height() - room.height()};
}

QStyleOptionGroupBox optionFor(const QGroupBox &box)
{
    QStyleOptionGroupBox option;
    option.initFrom(&box);
    option.text = box.title();
    option.textAlignment = box.alignment();
    option.lineWidth = 1;
    option.subControls = QStyle::SC_GroupBoxFrame | QStyle::SC_GroupBoxLabel;
    return option;
}

QSize missingInGroupBox(const QGroupBox &box)
{
    const QRect title = titleRect(box);
    if (title.isEmpty())
        return {};
    return textSize(box, box.title()) - QSize(box.width() - title.left(), title.height());
}

QSize missingInTabs(const QTabBar &bar)
{
    QRect tabs;
    for (int i = 0; i < bar.count(); ++i)
        tabs |= bar.tabRect(i);
    // A bar that doesn't fit has been made narrower by its tab widget, and scrolls.
    const auto *const owner = qobject_cast<const QTabWidget *>(bar.parentWidget());
    const int room = owner ? owner->width() : bar.width();
    return {tabs.width() - room, bar.fontMetrics().height() - tabs.height()};
}

QSize missingInMenuBar(const QMenuBar &bar)
{
    int needed = 0;
    for (const QAction *const action : bar.actions()) {
        QStyleOptionMenuItem option;
        option.initFrom(&bar);
        option.text = action->text();
        needed +=
            bar.style()->sizeFromContents(QStyle::CT_MenuBarItem, &option, textSize(bar, action->text()), &bar).width();
    }
    return {needed - bar.width(), 0};
}

QSize missingInLineEdit(const QLineEdit &field)
{
    QStyleOptionFrame option;
    option.initFrom(&field);
    option.lineWidth = field.hasFrame() ? field.style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, &field) : 0;
    const QRect room = field.style()->subElementRect(QStyle::SE_LineEditContents, &option, &field);
    return {0, field.fontMetrics().height() - room.height()};
}

} // namespace

QSize missingRoom(const QWidget &widget)
{
    if (const auto *const label = qobject_cast<const QLabel *>(&widget))
        return missingInLabel(*label);
    if (const auto *const button = qobject_cast<const QPushButton *>(&widget))
        return missingInPushButton(*button);
    if (const auto *const box = qobject_cast<const QCheckBox *>(&widget))
        return missingInButton(*box, QStyle::SE_CheckBoxContents);
    if (const auto *const radio = qobject_cast<const QRadioButton *>(&widget))
        return missingInButton(*radio, QStyle::SE_RadioButtonContents);
    if (const auto *const box = qobject_cast<const QComboBox *>(&widget))
        return missingInComboBox(*box);
    if (const auto *const box = qobject_cast<const QGroupBox *>(&widget))
        return missingInGroupBox(*box);
    if (const auto *const tabs = qobject_cast<const QTabWidget *>(&widget))
        return missingInTabs(*tabs->tabBar());
    if (const auto *const bar = qobject_cast<const QMenuBar *>(&widget))
        return missingInMenuBar(*bar);
    if (const auto *const field = qobject_cast<const QLineEdit *>(&widget))
        return missingInLineEdit(*field);
    return {};
}

QRect drawnPart(const QLabel &label)
{
    const QSize size = label.sizeHint().boundedTo(label.size());
    return QStyle::alignedRect(label.layoutDirection(), label.alignment(), label.wordWrap() ? label.size() : size,
                               label.rect());
}

QRect titleRect(const QWidget &groupBox)
{
    const auto *const box = qobject_cast<const QGroupBox *>(&groupBox);
    if (!box || box->title().isEmpty())
        return {};
    const QStyleOptionGroupBox option = optionFor(*box);
    return box->style()->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxLabel, box);
}
