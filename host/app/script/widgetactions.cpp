// SPDX-License-Identifier: MIT
#include "widgetactions.h"

#include "aim.h"
#include "items.h"
#include "language.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QComboBox>
#include <QLineEdit>
#include <QListView>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QTextBlock>

namespace {

const int MostRepetitions = 10000;

/// A number of times, from a word that may be missing; 0, with a reason, if it is out of range.
int repetitions(const Step &step, std::size_t index, QString &failure)
{
    const int count = index < step.words.size() ? step.words[index].text.toInt() : 1;
    if (count >= 1 && count <= MostRepetitions)
        return count;
    failure = QStringLiteral("the number has to be from 1 to %1").arg(MostRepetitions);
    return 0;
}

QString chooseRadioButton(Stage &stage, const Step &step)
{
    QString failure;
    auto *const button = target<QAbstractButton>(stage, step, Kinds::RadioButton, failure);
    return button ? clickOn(stage, button, clickPoint(*button)) : failure;
}

QString chooseFromMenu(Stage &stage, QComboBox &menu, int index)
{
    const QPointer<QComboBox> guard(&menu);
    QString failure = clickOn(stage, &menu, clickPoint(menu));
    if (!failure.isEmpty())
        return failure;
    // A field that is left for the menu may show a message instead.
    if (!guard || !menu.view()->isVisible())
        return {};
    const QModelIndex item = menu.model()->index(index, menu.modelColumn(), menu.rootModelIndex());
    menu.view()->scrollTo(item);
    stage.hands.move(menu.view()->viewport(), menu.view()->visualRect(item).center());
    // Where a popup's rows do not follow the mouse.
    if (menu.view()->currentIndex() != item)
        menu.view()->setCurrentIndex(item);
    stage.hands.key(menu.view(), {Qt::Key_Return, Qt::NoModifier});
    return {};
}

QString chooseItem(Stage &stage, const Step &step)
{
    QString failure;
    auto *const choice = target<QObject>(stage, step, Kinds::Choice, failure);
    const int index = choice ? indexOfItem(step.words[1], itemsOf(*choice), failure) : -1;
    if (index < 0)
        return failure;
    if (auto *const menu = qobject_cast<QComboBox *>(choice))
        return chooseFromMenu(stage, *menu, index);
    QWidget *const button = widgetsOf(choice)[index];
    const QString reason = hindrance(*button);
    return reason.isEmpty() ? clickOn(stage, button, clickPoint(*button)) : reason;
}

/// The widget that takes a field's keys.
QWidget *inputOf(QWidget *field)
{
    const auto *const spin = qobject_cast<QAbstractSpinBox *>(field);
    return spin ? spin->findChild<QLineEdit *>() : field;
}

bool isReadOnly(const QWidget *input)
{
    const auto *const line = qobject_cast<const QLineEdit *>(input);
    const auto *const text = qobject_cast<const QPlainTextEdit *>(input);
    return (line && line->isReadOnly()) || (text && text->isReadOnly());
}

bool isFocused(const QWidget &input)
{
    const QWidget *const focused = input.window()->focusWidget();
    return focused == &input || (focused && focused == input.focusProxy()) ||
           (focused && focused->focusProxy() == &input);
}

/// Puts the cursor into a field that takes text; null, with a reason, if there is none. What a click does may keep the
/// focus elsewhere: then, nothing is to be typed, and there is no reason.
QWidget *enterField(Stage &stage, const Step &step, bool always, QString &failure)
{
    QPointer<QWidget> input = inputOf(target<QWidget>(stage, step, Kinds::Field, failure));
    if (!input)
        return nullptr;
    if (isReadOnly(input)) {
        failure = QStringLiteral("the field %1 is read-only").arg(step.words[0].written());
        return nullptr;
    }
    if (always || !isFocused(*input))
        failure = clickOn(stage, input, clickPoint(*input));
    return failure.isEmpty() && input && isFocused(*input) ? input.data() : nullptr;
}

QString typeText(Stage &stage, const Step &step)
{
    QString failure;
    const QPointer<QWidget> input = enterField(stage, step, true, failure);
    if (!input)
        return failure;
    stage.hands.key(input, {Qt::Key_A, Qt::ControlModifier});
    if (step.words[1].text.isEmpty())
        stage.hands.key(input, {Qt::Key_Delete, Qt::NoModifier});
    else
        stage.hands.type(input, step.words[1].text);
    return {};
}

QString insertText(Stage &stage, const Step &step)
{
    QString failure;
    if (QWidget *const input = enterField(stage, step, false, failure))
        stage.hands.type(input, step.words[1].text);
    return failure;
}

/// The place in a text, from 0; -1 if there is none. Lines and columns count from 1.
int placeInText(const QPlainTextEdit &edit, const Word &line, const Word &column)
{
    const QTextBlock block = edit.document()->findBlockByNumber(line.text.toInt() - 1);
    const int offset = column.text.toInt() - 1;
    return block.isValid() && offset >= 0 && offset < block.length() ? block.position() + offset : -1;
}

QString moveCursor(Stage &stage, const Step &step)
{
    QString failure;
    auto *const edit = target<QPlainTextEdit>(stage, step, Kinds::MultiLineText, failure);
    if (!edit)
        return failure;
    const std::vector<Word> &words = step.words;
    if (words.size() != 3 && words.size() != 5)
        return QStringLiteral("expected a line and a column, or two of each");
    const int anchor = placeInText(*edit, words[1], words[2]);
    const int position = words.size() == 5 ? placeInText(*edit, words[3], words[4]) : anchor;
    if (anchor < 0 || position < 0)
        return QStringLiteral("the text has no such line and column");
    const QPointer<QPlainTextEdit> guard(edit);
    if (!isFocused(*edit))
        failure = clickOn(stage, edit, clickPoint(*edit));
    if (!failure.isEmpty() || !guard)
        return failure;
    QTextCursor cursor(edit->document());
    cursor.setPosition(anchor);
    cursor.setPosition(position, QTextCursor::KeepAnchor);
    edit->setTextCursor(cursor);
    return {};
}

/// Clicks one row after the other, the first one with `first` and the others with `next` held down.
QString clickRows(Stage &stage, QListView &list, const std::vector<int> &rows, Qt::KeyboardModifiers first,
                  Qt::KeyboardModifiers next)
{
    const QPointer<QListView> guard(&list);
    for (std::size_t i = 0; i < rows.size() && guard && guard->isVisible(); ++i) {
        const QModelIndex item = list.model()->index(rows[i], list.modelColumn());
        list.scrollTo(item);
        const QRect visible = list.visualRect(item).intersected(list.viewport()->rect());
        // Further on, the step has been done in part.
        const QString failure = clickOn(stage, list.viewport(), visible.center(), i == 0 ? first : next);
        if (!failure.isEmpty())
            return i == 0 ? failure : QString();
    }
    return {};
}

/// The rows that the words behind the first name; empty, with a reason, if one of them names none.
std::vector<int> rowsOf(const Step &step, const QListView &list, QString &failure)
{
    const QStringList texts = itemsOf(list);
    std::vector<int> rows;
    for (std::size_t i = 1; i < step.words.size(); ++i) {
        const int row = indexOfItem(step.words[i], texts, failure);
        if (row < 0)
            return {};
        rows.push_back(row);
    }
    return rows;
}

QString clickBesideRows(Stage &stage, QListView &list)
{
    const QRect all = list.viewport()->rect();
    const QPoint corner = all.bottomRight() - QPoint(1, 1);
    if (list.indexAt(corner).isValid())
        return QStringLiteral("there is no room below the items that could be clicked");
    return clickOn(stage, list.viewport(), corner);
}

QString notInState(const Step &step, const QListView &list, const std::vector<int> &rows)
{
    const bool isToBeSelected = step.action == Action::Deselect;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const QModelIndex item = list.model()->index(rows[i], list.modelColumn());
        if (list.selectionModel()->isSelected(item) != isToBeSelected)
            return QStringLiteral("item %1 is %2 selected")
                .arg(step.words[i + 1].written(), isToBeSelected ? QStringLiteral("not") : QStringLiteral("already"));
    }
    return {};
}

QString selectRows(Stage &stage, const Step &step)
{
    QString failure;
    auto *const list = target<QListView>(stage, step, Kinds::List, failure);
    if (!list)
        return failure;
    if (step.action == Action::SelectNone)
        return clickBesideRows(stage, *list);
    const bool takesOne = list->selectionMode() == QAbstractItemView::SingleSelection;
    if (takesOne && (step.action != Action::Select || step.words.size() > 2))
        return QStringLiteral("in this list, only one item can be selected");
    if (step.action == Action::SelectAll) {
        list->setFocus(Qt::TabFocusReason);
        stage.hands.key(list, {Qt::Key_A, Qt::ControlModifier});
        return {};
    }
    const std::vector<int> rows = rowsOf(step, *list, failure);
    if (rows.empty())
        return failure;
    if (step.action == Action::Add || step.action == Action::Deselect) {
        failure = notInState(step, *list, rows);
        return failure.isEmpty() ? clickRows(stage, *list, rows, Qt::ControlModifier, Qt::ControlModifier) : failure;
    }
    if (step.action == Action::Extend)
        return clickRows(stage, *list, rows, Qt::ShiftModifier, Qt::ShiftModifier);
    return clickRows(stage, *list, rows, Qt::NoModifier,
                     step.action == Action::SelectRange ? Qt::ShiftModifier : Qt::ControlModifier);
}

QString dragScale(Stage &stage, const Step &step)
{
    QString failure;
    const QPointer<QSlider> scale = target<QSlider>(stage, step, Kinds::Scale, failure);
    if (!scale)
        return failure;
    for (std::size_t i = 1; i < step.words.size(); ++i) {
        const int value = step.words[i].text.toInt();
        if (value < scale->minimum() || value > scale->maximum())
            return QStringLiteral("the scale has values from %1 to %2")
                .arg(QString::number(scale->minimum()), QString::number(scale->maximum()));
    }
    const QPoint handle = handleRect(*scale).center();
    failure = obstacle(*scale, handle);
    if (!failure.isEmpty())
        return failure;
    stage.hands.press(scale, handle);
    // A message would end the drag.
    for (std::size_t i = 1; i < step.words.size() && scale && stage.hands.isPressed(); ++i) {
        const int value = step.words[i].text.toInt();
        const QPoint point = dragPoint(*scale, value);
        if (!point.isNull())
            stage.hands.move(scale, point);
        // Where there are more values than pixels; the same as a drag to there would be.
        if (scale && scale->sliderPosition() != value && stage.hands.isPressed())
            scale->setSliderPosition(value);
    }
    stage.hands.release();
    return {};
}

QString pageScale(Stage &stage, const Step &step)
{
    QString failure;
    auto *const scale = target<QSlider>(stage, step, Kinds::Scale, failure);
    if (!scale)
        return failure;
    const QPoint point = pagePoint(*scale, isUp(step.words[1]));
    return point.isNull() ? QStringLiteral("the scale is at its end") : clickOn(stage, scale, point);
}

QString pressArrow(Stage &stage, const Step &step)
{
    QString failure;
    const QPointer<QAbstractSpinBox> spin = target<QAbstractSpinBox>(stage, step, Kinds::Spin, failure);
    const int count = spin ? repetitions(step, 2, failure) : 0;
    for (int i = 0; i < count && spin && hindrance(*spin).isEmpty(); ++i) {
        const QString reason = clickOn(stage, spin, arrowPoint(*spin, isUp(step.words[1])));
        if (!reason.isEmpty())
            return i == 0 ? reason : QString();
    }
    return failure;
}

QString turnWheel(Stage &stage, const Step &step)
{
    QString failure;
    const QPointer<QWidget> widget = target<QWidget>(stage, step, Kinds::Control, failure);
    const int count = widget ? repetitions(step, 2, failure) : 0;
    for (int i = 0; i < count && widget; ++i)
        stage.hands.wheel(widget, clickPoint(*widget), isUp(step.words[1]) ? 1 : -1);
    return failure;
}

} // namespace

QString performOnWidget(Stage &stage, const Step &step)
{
    switch (step.action) {
    case Action::Choose:
        return chooseRadioButton(stage, step);
    case Action::ChooseItem:
        return chooseItem(stage, step);
    case Action::Type:
        return typeText(stage, step);
    case Action::Insert:
        return insertText(stage, step);
    case Action::Cursor:
        return moveCursor(stage, step);
    case Action::Drag:
        return dragScale(stage, step);
    case Action::Page:
        return pageScale(stage, step);
    case Action::Arrow:
        return pressArrow(stage, step);
    case Action::Wheel:
        return turnWheel(stage, step);
    default:
        return selectRows(stage, step);
    }
}
