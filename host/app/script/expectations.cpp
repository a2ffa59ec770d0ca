// SPDX-License-Identifier: MIT
// The steps that only look.
#include "finder.h"
#include "items.h"
#include "menus.h"
#include "nearest.h"
#include "stage.h"
#include "tabs.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QButtonGroup>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPlainTextEdit>
#include <QSlider>

#include <algorithm>

namespace {

QString butIs(const QString &actual)
{
    return QStringLiteral("it is %1").arg(actual);
}

/// Empty if both are the same.
QString difference(const QString &expected, const QString &actual)
{
    return expected == actual ? QString() : butIs(quoted(actual));
}

QString expectMessage(Stage &stage, const Step &step)
{
    QWidget *const top = stage.windows->top();
    if (!top)
        return QStringLiteral("neither a message nor a dialog is up");
    if (!isMessage(*top) || textOfWindow(*top) != step.words[0].text)
        return QStringLiteral("instead, %1 is up").arg(describeWindow(*top));
    stage.expect(top);
    return {};
}

QString expectDialog(Stage &stage, const Step &step)
{
    QWidget *const top = stage.windows->top();
    if (!top)
        return QStringLiteral("no dialog is up");
    if (isMessage(*top) || textOfWindow(*top) != step.words[0].text)
        return QStringLiteral("instead, %1 is up").arg(describeWindow(*top));
    stage.expect(top);
    return {};
}

QString expectDialogClosed(const Stage &stage)
{
    if (!stage.hasHadDialog)
        return QStringLiteral("no step has been about a dialog so far");
    return stage.current && stage.current->isVisible() ? QStringLiteral("%1 is up").arg(describeWindow(*stage.current))
                                                       : QString();
}

QString expectNamedDialogClosed(const Stage &stage, const Step &step)
{
    return stage.windows->titled(step.words[0].text) ? QStringLiteral("it is up") : QString();
}

QString expectLabel(const QWidget &window, const Step &step)
{
    QStringList texts;
    for (const QLabel *const label : window.findChildren<QLabel *>()) {
        if (label->isVisible())
            texts.append(label->text());
    }
    const QString &wanted = step.words[0].text;
    return texts.contains(wanted) ? QString()
                                  : QStringLiteral("no label of %1 has this text%2")
                                        .arg(describeWindow(window), whatThereIs(wanted, texts));
}

QString expectTab(const QWidget &window, const Step &step)
{
    QString failure;
    const FoundTab tab = findTab(window, step.words[0], failure);
    if (!tab.bar || tab.bar->currentIndex() == tab.index)
        return failure;
    return QStringLiteral("what is shown is %1").arg(quoted(currentTabs(window).join(QLatin1String(", "))));
}

QString stateWord(bool isSo, const char *yes, const char *no)
{
    return QString::fromLatin1(isSo ? yes : no);
}

QString expectMenu(const QWidget &window, const Step &step)
{
    const MenuPath path = findMenuEntry(window, step.words[0].text);
    if (!path.failure.isEmpty())
        return path.failure;
    const QAction &entry = *path.entries.constLast();
    const QString &wanted = step.words[1].text;
    const bool isAboutCheck = wanted.endsWith(QLatin1String("checked"));
    if (isAboutCheck && !entry.isCheckable())
        return QStringLiteral("the entry is neither checked nor unchecked");
    const QString actual = isAboutCheck ? stateWord(entry.isChecked(), "checked", "unchecked")
                                        : stateWord(entry.isEnabled(), "enabled", "disabled");
    return actual == wanted ? QString() : butIs(actual);
}

QString textOf(const QObject &object, bool &hasText)
{
    hasText = true;
    if (const auto *const field = qobject_cast<const QLineEdit *>(&object))
        return field->text();
    if (const auto *const spin = qobject_cast<const QAbstractSpinBox *>(&object))
        return spin->text();
    if (const auto *const text = qobject_cast<const QPlainTextEdit *>(&object))
        return text->toPlainText();
    if (const auto *const label = qobject_cast<const QLabel *>(&object))
        return label->text();
    if (const auto *const button = qobject_cast<const QAbstractButton *>(&object))
        return button->text();
    hasText = false;
    return {};
}

QString expectText(const QWidget &window, const Step &step)
{
    const Kind &kind = step.words[0].isIdentifier() ? Kinds::Anything : Kinds::Field;
    const SearchResult finding = find(window, step.words[0], kind);
    if (!finding.object)
        return finding.failure;
    bool hasText = false;
    const QString text = textOf(*finding.object, hasText);
    return hasText ? difference(step.words[1].text, text) : QStringLiteral("it has no text");
}

/// The state of a widget that `wanted` is one of two words for; empty if the widget has no such state.
QString stateOf(const QWidget &widget, const QString &wanted)
{
    if (wanted == QLatin1String("focused")) {
        const QWidget *const focused = widget.window()->focusWidget();
        const bool isFocused =
            focused && (focused == &widget || widget.isAncestorOf(focused) || focused == widget.focusProxy());
        return stateWord(isFocused, "focused", "not focused");
    }
    if (wanted == QLatin1String("visible") || wanted == QLatin1String("hidden"))
        return stateWord(widget.isVisible(), "visible", "hidden");
    if (wanted == QLatin1String("enabled") || wanted == QLatin1String("disabled"))
        return stateWord(widget.isEnabled(), "enabled", "disabled");
    const auto *const button = qobject_cast<const QAbstractButton *>(&widget);
    return button && button->isCheckable() ? stateWord(button->isChecked(), "checked", "unchecked") : QString();
}

QString expectState(const QWidget &window, const Step &step)
{
    const Kind &kind = step.words[0].isIdentifier() ? Kinds::Anything : Kinds::Control;
    const SearchResult finding = find(window, step.words[0], kind);
    if (!finding.object)
        return finding.failure;
    const QString &wanted = step.words[1].text;
    const QString actual = stateOf(*widgetsOf(finding.object).value(0), wanted);
    if (actual.isEmpty())
        return QStringLiteral("it can't be checked");
    return actual == wanted ? QString() : butIs(actual);
}

int currentIndexOf(const QObject &choice)
{
    if (const auto *const menu = qobject_cast<const QComboBox *>(&choice))
        return menu->currentIndex();
    const auto *const group = qobject_cast<const QButtonGroup *>(&choice);
    return group ? static_cast<int>(group->buttons().indexOf(group->checkedButton())) : -1;
}

QString expectChoice(const QWidget &window, const Step &step)
{
    const SearchResult finding = find(window, step.words[0], Kinds::Choice);
    if (!finding.object)
        return finding.failure;
    const QStringList texts = itemsOf(*finding.object);
    QString failure;
    const int wanted = indexOfItem(step.words[1], texts, failure);
    const int actual = currentIndexOf(*finding.object);
    if (wanted < 0 || wanted == actual)
        return failure;
    return actual < 0 ? QStringLiteral("nothing is chosen") : butIs(nameForItem(actual, texts));
}

/// The list that the step names; null, with a reason, if there is none.
QListView *listOf(const QWidget &window, const Step &step, QString &failure)
{
    const SearchResult finding = find(window, step.words[0], Kinds::List);
    failure = finding.failure;
    return finding.as<QListView>();
}

QString expectSelected(const QWidget &window, const Step &step)
{
    QString failure;
    const QListView *const list = listOf(window, step, failure);
    if (!list)
        return failure;
    const QStringList texts = itemsOf(*list);
    std::vector<int> wanted;
    for (std::size_t i = 1; i < step.words.size(); ++i) {
        wanted.push_back(indexOfItem(step.words[i], texts, failure));
        if (wanted.back() < 0)
            return failure;
    }
    std::vector<int> actual;
    for (const QModelIndex &index : list->selectionModel()->selectedIndexes())
        actual.push_back(index.row());
    std::sort(wanted.begin(), wanted.end());
    std::sort(actual.begin(), actual.end());
    if (wanted == actual)
        return {};
    QStringList names;
    for (const int row : actual)
        names.append(nameForItem(row, texts));
    return names.isEmpty() ? QStringLiteral("nothing is selected")
                           : QStringLiteral("what is selected is %1").arg(names.join(QLatin1Char(' ')));
}

QString expectItemCount(const QWidget &window, const Step &step)
{
    QString failure;
    const QListView *const list = listOf(window, step, failure);
    const int count = list ? list->model()->rowCount() : 0;
    if (!list || count == step.words[1].text.toInt())
        return failure;
    return QStringLiteral("the list has %1").arg(count);
}

QString expectItem(const QWidget &window, const Step &step)
{
    QString failure;
    const QListView *const list = listOf(window, step, failure);
    if (!list)
        return failure;
    const QStringList texts = itemsOf(*list);
    const int index = indexOfItem(step.words[1], texts, failure);
    return index < 0 ? failure : difference(step.words[2].text, texts[index]);
}

QString expectValue(const QWidget &window, const Step &step)
{
    const SearchResult finding = find(window, step.words[0], Kinds::Scale);
    const auto *const scale = finding.as<QSlider>();
    if (!scale || scale->value() == step.words[1].text.toInt())
        return finding.failure;
    return butIs(QString::number(scale->value()));
}

QString lookInWindow(const QWidget &window, const Step &step)
{
    switch (step.action) {
    case Action::ExpectLabel:
        return expectLabel(window, step);
    case Action::ExpectTab:
        return expectTab(window, step);
    case Action::ExpectMenu:
        return expectMenu(window, step);
    case Action::ExpectText:
        return expectText(window, step);
    case Action::ExpectState:
        return expectState(window, step);
    case Action::ExpectChoice:
        return expectChoice(window, step);
    case Action::ExpectNothingSelected:
    case Action::ExpectSelected:
        return expectSelected(window, step);
    case Action::ExpectItemCount:
        return expectItemCount(window, step);
    case Action::ExpectItem:
        return expectItem(window, step);
    default:
        return expectValue(window, step);
    }
}

} // namespace

QString lookAt(Stage &stage, const Step &step)
{
    switch (step.action) {
    case Action::ExpectMessage:
        return expectMessage(stage, step);
    case Action::ExpectDialog:
        return expectDialog(stage, step);
    case Action::ExpectDialogClosed:
        return expectDialogClosed(stage);
    case Action::ExpectNamedDialogClosed:
        return expectNamedDialogClosed(stage, step);
    default:
        break;
    }
    QString failure;
    const QWidget *const window = windowFor(stage, step, failure);
    return window ? lookInWindow(*window, step) : failure;
}
