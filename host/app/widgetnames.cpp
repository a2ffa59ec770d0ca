// SPDX-License-Identifier: MIT
#include "widgetnames.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QScrollArea>
#include <QScrollBar>
#include <QStackedWidget>
#include <QTabBar>
#include <QTabWidget>
#include <QTextDocument>
#include <QTextDocumentFragment>

#include <algorithm>
#include <limits>

namespace {

template <typename T>
bool is(const QObject *object)
{
    return qobject_cast<const T *>(object) != nullptr;
}

QString withoutColon(const QString &text)
{
    QString result = text.simplified();
    while (result.endsWith(QLatin1Char(':')))
        result = result.left(result.size() - 1).trimmed();
    return result;
}

/// A single ampersand marks the next character; two stand for one.
QString withoutMnemonic(const QString &text)
{
    QString result;
    for (int i = 0; i < text.size(); ++i) {
        if (text[i] == QLatin1Char('&') && ++i == text.size())
            break;
        result += text[i];
    }
    return result;
}

QString withoutMarkup(const QString &text)
{
    return Qt::mightBeRichText(text) ? QTextDocumentFragment::fromHtml(text).toPlainText() : text;
}

QString textOf(const QLabel &label)
{
    const bool isMarkup =
        label.textFormat() == Qt::RichText || (label.textFormat() == Qt::AutoText && Qt::mightBeRichText(label.text()));
    if (isMarkup)
        return QTextDocumentFragment::fromHtml(label.text()).toPlainText();
    // Without a buddy, an ampersand is shown as it is.
    return label.buddy() ? withoutMnemonic(label.text()) : label.text();
}

/// The title of the page's tab, if it is a page of a tab widget.
QString tabTextOf(const QWidget &page)
{
    const QWidget *const stack = page.parentWidget();
    const auto *const tabs = stack ? qobject_cast<const QTabWidget *>(stack->parentWidget()) : nullptr;
    const int index = tabs ? tabs->indexOf(const_cast<QWidget *>(&page)) : -1;
    return index < 0 ? QString() : withoutMnemonic(tabs->tabText(index));
}

QString ownText(const QWidget &widget)
{
    if (const auto *const label = qobject_cast<const QLabel *>(&widget))
        return textOf(*label);
    if (const auto *const button = qobject_cast<const QAbstractButton *>(&widget))
        return withoutMnemonic(button->text());
    if (const auto *const box = qobject_cast<const QGroupBox *>(&widget))
        return withoutMnemonic(box->title());
    if (const auto *const menu = qobject_cast<const QMenu *>(&widget))
        return withoutMnemonic(menu->title());
    return widget.isWindow() ? widget.windowTitle() : tabTextOf(widget);
}

/// The widget's own name, which makes a label unnecessary.
QString ownName(const QWidget &widget)
{
    const QString text = withoutColon(ownText(widget));
    return text.isEmpty() && is<QAbstractButton>(&widget) ? withoutColon(withoutMarkup(widget.toolTip())) : text;
}

/// Whether somebody hides it; what is hidden only because its window hasn't been shown yet is going to be seen.
bool isHiddenItself(const QWidget &widget)
{
    return widget.isHidden() && widget.testAttribute(Qt::WA_WState_ExplicitShowHide);
}

/// The widget itself is among them.
QObjectList siblingsOf(const QWidget &widget)
{
    return widget.parent() ? widget.parent()->children() : QObjectList();
}

bool isRightAbove(const QRect &upper, const QRect &lower)
{
    return upper.left() == lower.left() && upper.right() == lower.right() && upper.bottom() + 1 == lower.top();
}

/// A number as wide as a slider, and right on top of it, shows the slider's value.
const QAbstractSlider *sliderOfDisplay(const QLabel &label)
{
    bool isNumber = false;
    label.text().toDouble(&isNumber);
    if (!isNumber)
        return nullptr;
    for (const QObject *const sibling : siblingsOf(label)) {
        const auto *const slider = qobject_cast<const QAbstractSlider *>(sibling);
        if (slider && isRightAbove(label.geometry(), slider->geometry()))
            return slider;
    }
    return nullptr;
}

bool isPopupOfComboBox(const QWidget &widget)
{
    return widget.windowType() == Qt::Popup && is<QComboBox>(widget.parentWidget());
}

/// Whether the toolkit has made the widget, which has a parent, as a part of that.
bool isPart(const QWidget &widget)
{
    const QWidget *const parent = widget.parentWidget();
    if (widget.isWindow())
        return isPopupOfComboBox(widget);
    if (is<QTabWidget>(parent))
        return is<QTabBar>(&widget) || is<QStackedWidget>(&widget);
    // Scroll bars have a container of their own inside a scroll area.
    if (is<QScrollBar>(&widget) && is<QAbstractScrollArea>(parent->parentWidget()))
        return true;
    // What stands in a scrollable page belongs to whoever has made it.
    return (is<QAbstractScrollArea>(parent) && !is<QScrollArea>(parent)) || is<QAbstractSpinBox>(parent) ||
           is<QComboBox>(parent) || isPopupOfComboBox(*parent) || is<QLineEdit>(parent) || is<QTabBar>(parent) ||
           (is<QMenuBar>(parent) && is<QAbstractButton>(&widget));
}

/// A label that may name something.
bool isCaption(const QLabel &label)
{
    return !isHiddenItself(label) && !textOf(label).trimmed().isEmpty() && !sliderOfDisplay(label);
}

/// Pixels that both have in common in one direction, or less than one.
int overlap(int start1, int end1, int start2, int end2)
{
    return std::min(end1, end2) - std::max(start1, start2) + 1;
}

bool onSameLine(const QRect &a, const QRect &b)
{
    return 2 * overlap(a.top(), a.bottom(), b.top(), b.bottom()) >= std::min(a.height(), b.height());
}

constexpr int Far = std::numeric_limits<int>::max();

/// Pixels from a label to what is on its right on the same line. A label that is wider than planned reaches into it.
int gapRightwards(const QRect &label, const QRect &rect)
{
    if (!onSameLine(label, rect) || rect.left() <= label.left() || rect.right() < label.right())
        return Far;
    return std::max(0, rect.left() - label.right() - 1);
}

/// Pixels from a label down to what is right below it: less than a line, and starting no further right.
int gapDownwards(const QRect &label, const QRect &rect)
{
    const int gap = rect.top() - label.bottom() - 1;
    if (onSameLine(label, rect) || rect.top() <= label.top() || gap > label.height() ||
        overlap(label.left(), label.right(), rect.left(), rect.right()) <= 0)
        return Far;
    return std::max(0, gap);
}

struct Neighbor
{
    const QWidget *widget = nullptr;
    int gap = Far;

    void consider(const QWidget *other, int otherGap)
    {
        if (otherGap < gap) {
            widget = other;
            gap = otherGap;
        }
    }
    bool needsLabel() const { return widget && isControl(*widget) && ownName(*widget).isEmpty(); }
};

/// The only widget that a label names, or null.
const QWidget *namedBy(const QLabel &label)
{
    if (label.buddy())
        return label.buddy();
    Neighbor right;
    Neighbor below;
    for (const QObject *const object : siblingsOf(label)) {
        const auto *const sibling = qobject_cast<const QWidget *>(object);
        if (!sibling || sibling == &label || sibling->isWindow() || isHiddenItself(*sibling))
            continue;
        const auto *const other = qobject_cast<const QLabel *>(sibling);
        if (other ? !isCaption(*other) : !isControl(*sibling))
            continue;
        right.consider(sibling, gapRightwards(label.geometry(), sibling->geometry()));
        below.consider(sibling, gapDownwards(label.geometry(), sibling->geometry()));
    }
    if (right.needsLabel() && below.needsLabel())
        return right.gap <= below.gap ? right.widget : below.widget;
    if (right.needsLabel())
        return right.widget;
    return below.needsLabel() ? below.widget : nullptr;
}

} // namespace

const QWidget &wholeWidget(const QWidget &widget)
{
    const QWidget *whole = &widget;
    while (whole->parentWidget() && isPart(*whole))
        whole = whole->parentWidget();
    const auto *const label = qobject_cast<const QLabel *>(whole);
    const QAbstractSlider *const slider = label ? sliderOfDisplay(*label) : nullptr;
    return slider ? *slider : *whole;
}

QLabel *labelFor(const QWidget &widget)
{
    QLabel *nearest = nullptr;
    int nearestGap = Far;
    for (QObject *const object : siblingsOf(widget)) {
        auto *const label = qobject_cast<QLabel *>(object);
        if (!label || !isCaption(*label))
            continue;
        if (label->buddy() == &widget)
            return label;
        const int beside = gapRightwards(label->geometry(), widget.geometry());
        const int above = gapDownwards(label->geometry(), widget.geometry());
        // Half of the range of gaps is for either direction.
        const int gap = beside < Far ? beside / 2 : (above < Far ? Far / 2 + above / 2 : Far);
        if (gap < nearestGap && namedBy(*label) == &widget) {
            nearest = label;
            nearestGap = gap;
        }
    }
    return nearest;
}

namespace {

bool isNameless(const QWidget &control)
{
    return ownName(control).isEmpty() && control.toolTip().isEmpty() && !labelFor(control);
}

/// Whether a control is the only one in its group box without a name: the box's title is then meant for it.
bool isOnlyNameless(const QWidget &control)
{
    if (!is<QGroupBox>(control.parent()))
        return false;
    const QObjectList siblings = siblingsOf(control);
    return std::none_of(siblings.begin(), siblings.end(), [&control](const QObject *object) {
        const auto *const other = qobject_cast<const QWidget *>(object);
        return other && other != &control && isControl(*other) && isNameless(*other);
    });
}

} // namespace

bool isControl(const QWidget &widget)
{
    return is<QAbstractButton>(&widget) || is<QLineEdit>(&widget) || is<QComboBox>(&widget) ||
           is<QAbstractSpinBox>(&widget) || is<QAbstractSlider>(&widget) || is<QAbstractScrollArea>(&widget) ||
           is<QTabWidget>(&widget);
}

bool hasOwnText(const QWidget &widget)
{
    return !withoutColon(ownText(widget)).isEmpty();
}

QString captionOf(const QWidget &widget)
{
    const QWidget &whole = wholeWidget(widget);
    QString caption = ownName(whole);
    const QLabel *const label = caption.isEmpty() && isControl(whole) ? labelFor(whole) : nullptr;
    if (label)
        caption = withoutColon(textOf(*label));
    if (caption.isEmpty())
        caption = withoutColon(withoutMarkup(whole.toolTip()));
    return caption.isEmpty() && isControl(whole) && isOnlyNameless(whole) ? captionOf(*whole.parentWidget()) : caption;
}
