// SPDX-License-Identifier: MIT
// What steps do with windows, buttons, menus and keys.
#include "../files.h"
#include "aim.h"
#include "finder.h"
#include "menus.h"
#include "nearest.h"
#include "tabs.h"
#include "widgetactions.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMenu>
#include <QPixmap>
#include <QTabBar>

QString clickOn(Stage &stage, QWidget *widget, const QPoint &position, Qt::KeyboardModifiers modifiers)
{
    const QString reason = obstacle(*widget, position);
    if (!reason.isEmpty())
        return QStringLiteral("no click can reach it: %1").arg(reason);
    stage.hands.click(widget, position, modifiers);
    return {};
}

namespace {

QString launch(Stage &stage, const Step &step)
{
    if (const QWidget *const modal = QApplication::activeModalWidget())
        return QStringLiteral("%1 keeps users from the host's menu").arg(describeWindow(*modal));
    QStringList names;
    std::vector<orvane::host::AddOn> found;
    for (const orvane::host::AddOn &addOn : stage.addOns) {
        names.append(QString::fromStdString(addOn.name));
        if (names.constLast() == step.words[0].text)
            found.push_back(addOn);
    }
    if (found.empty())
        return QStringLiteral("no add-on has registered %1%2")
            .arg(quoted(step.words[0].text), whatThereIs(step.words[0].text, names));
    const bool hasNumber = step.words.size() > 1;
    const int number = hasNumber ? step.words[1].text.toInt() : 1;
    if (number < 1 || number > static_cast<int>(found.size()) || (!hasNumber && found.size() > 1))
        return QStringLiteral("%1 entries have this name; a number behind it, from 1, says which").arg(found.size());
    stage.isLaunching = true;
    if (stage.launched)
        stage.launched(step.words[0].text, number);
    found[static_cast<std::size_t>(number) - 1].launch();
    return {};
}

QString pressButton(Stage &stage, const Step &step)
{
    QString failure;
    auto *const button = target<QAbstractButton>(stage, step, Kinds::Button, failure);
    return button ? clickOn(stage, button, clickPoint(*button)) : failure;
}

QString switchToggle(Stage &stage, const Step &step)
{
    QString failure;
    auto *const toggle = target<QAbstractButton>(stage, step, Kinds::Toggle, failure);
    if (!toggle || toggle->isChecked() == (step.action == Action::Check))
        return failure;
    return clickOn(stage, toggle, clickPoint(*toggle));
}

QString clickWidget(Stage &stage, const Step &step)
{
    QString failure;
    const Kind &kind = step.words[0].isIdentifier() ? Kinds::Anything : Kinds::Control;
    auto *const widget = target<QWidget>(stage, step, kind, failure);
    return widget ? clickOn(stage, widget, clickPoint(*widget)) : failure;
}

QString chooseMenuEntry(Stage &stage, const Step &step)
{
    QString failure;
    QWidget *const window = windowFor(stage, step, failure);
    if (!window)
        return failure;
    const MenuPath path = findMenuEntry(*window, step.words[0].text);
    if (!path.failure.isEmpty())
        return path.failure;
    for (const QAction *const entry : path.entries) {
        if (!entry->isEnabled())
            return QStringLiteral("the entry %1 is disabled").arg(quoted(nameOfMenuEntry(*entry)));
    }
    if (path.entries.constLast()->menu())
        return QStringLiteral("%1 is a menu; behind a slash, one of its entries has to follow")
            .arg(quoted(step.words[0].text));

    failure = clickOn(stage, path.bar, path.bar->actionGeometry(path.entries[0]).center());
    if (!failure.isEmpty())
        return failure;
    QPointer<QMenu> menu = path.entries[0]->menu();
    for (int i = 1; i < path.entries.size(); ++i) {
        // Something, such as a message, may have kept it from opening.
        if (!menu || !menu->isVisible())
            return {};
        const QPointer<QMenu> submenu = path.entries[i]->menu();
        menu->setActiveAction(path.entries[i]);
        if (!submenu || !submenu->isVisible())
            stage.hands.key(menu, {Qt::Key_Return, Qt::NoModifier});
        menu = submenu;
    }
    return {};
}

QString showTab(Stage &stage, const Step &step)
{
    QString failure;
    QWidget *const window = windowFor(stage, step, failure);
    if (!window)
        return failure;
    const FoundTab tab = findTab(*window, step.words[0], failure);
    if (!tab.bar)
        return failure;
    const QString reason = hindrance(*tab.bar);
    if (!reason.isEmpty() || !tab.bar->isTabEnabled(tab.index))
        return reason.isEmpty() ? QStringLiteral("it is disabled") : reason;
    return clickOn(stage, tab.bar, tab.bar->tabRect(tab.index).center());
}

QString pressKeys(Stage &stage, const Step &step)
{
    QString failure;
    const QPointer<QWidget> window = windowFor(stage, step, failure);
    for (std::size_t i = 0; i < step.words.size() && window && window->isVisible(); ++i)
        stage.hands.key(window, keyFromText(step.words[i].text));
    return failure;
}

QString closeWindow(Stage &stage, const Step &step)
{
    QString failure;
    QWidget *const window = windowFor(stage, step, failure);
    if (window && window->windowHandle())
        window->windowHandle()->close();
    return failure;
}

QString savePicture(Stage &stage, const Step &step)
{
    QString failure;
    QWidget *const window = windowFor(stage, step, failure);
    if (!window)
        return failure;
    const QString file = step.words[0].text;
    const QString reason = writePicture(file, window->grab());
    return reason.isEmpty() ? QString() : QStringLiteral("%1 cannot be written: %2").arg(quoted(file), reason);
}

} // namespace

QString perform(Stage &stage, const Step &step)
{
    switch (step.action) {
    case Action::Launch:
        return launch(stage, step);
    case Action::Press:
        return pressButton(stage, step);
    case Action::Check:
    case Action::Uncheck:
        return switchToggle(stage, step);
    case Action::Click:
        return clickWidget(stage, step);
    case Action::Menu:
        return chooseMenuEntry(stage, step);
    case Action::Tab:
        return showTab(stage, step);
    case Action::Key:
        return pressKeys(stage, step);
    case Action::Close:
        return closeWindow(stage, step);
    case Action::Picture:
        return savePicture(stage, step);
    default:
        return step.action >= Action::ExpectMessage ? lookAt(stage, step) : performOnWidget(stage, step);
    }
}
