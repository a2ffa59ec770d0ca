// SPDX-License-Identifier: MIT
#include "widgets/menu.h"

#include "core/callback.h"
#include "core/entrypoint.h"
#include "core/placement.h"
#include "core/text.h"

#include <QMenu>
#include <QMenuBar>

namespace orvane::zelgui {

ZelGUIMenuActionAbstract::ZelGUIMenuActionAbstract(QMenu *menu, const QString &text) : QAction(text, menu) {}

ZelGUIMenuAction::ZelGUIMenuAction(QMenu *menu, const QString &text, ZelGUIVoidCallback callback)
    : ZelGUIMenuActionAbstract(menu, text), m_callback(callback)
{
    connect(this, &QAction::triggered, this, &ZelGUIMenuAction::menuActionTriggered);
}

void ZelGUIMenuAction::menuActionTriggered(bool)
{
    report(this, m_callback);
}

ZelGUIMenuToggleAction::ZelGUIMenuToggleAction(QMenu *menu, const QString &text, ZelGUIIntCallback callback)
    : ZelGUIMenuActionAbstract(menu, text), m_callback(callback)
{
    setCheckable(true);
    connect(this, &QAction::toggled, this, &ZelGUIMenuToggleAction::menuActionToggled);
}

void ZelGUIMenuToggleAction::menuActionToggled(bool isChecked)
{
    if (m_isReporting)
        return;
    const QPointer<ZelGUIMenuToggleAction> guard(this);
    m_isReporting = true;
    // Not reportChange(): menus are never silent.
    const int value = isChecked ? 1 : 0;
    report<const int *>(this, m_callback, &value);
    if (guard)
        m_isReporting = false;
}

namespace {

/// A menu at the end of a menu bar or of another menu; null where `parent` is neither.
QMenu *addMenu(QWidget &parent, const QString &label)
{
    if (auto *const bar = qobject_cast<QMenuBar *>(&parent))
        return bar->addMenu(label);
    auto *const menu = qobject_cast<QMenu *>(&parent);
    return menu ? menu->addMenu(label) : nullptr;
}

/// Makes and registers an entry at the end of a menu; the answer is its identifier.
template <typename Action, typename Callback>
int addEntry(int menuId, const char *label, Callback callback)
{
    return withWidget<QMenu>(menuId, kInvalidWidgetId, [=](QMenu &menu) {
        auto *const action = new Action(&menu, fromLatin1(label), callback);
        menu.addAction(action);
        return ZelGUIWidgetRepository::instance()->addWidget(action);
    });
}

void takeOutOfMenu(QAction &action)
{
    if (auto *const menu = qobject_cast<QMenu *>(action.parent()))
        menu->removeAction(&action);
}

} // namespace

} // namespace orvane::zelgui

using namespace orvane::zelgui;

int ZelGUIMenuAdd(int parentId, const char *label)
{
    return withWidget<QWidget>(parentId, kInvalidWidgetId, [label](QWidget &parent) {
        QMenu *const menu = addMenu(parent, fromLatin1(label));
        if (!menu)
            return kInvalidWidgetId;
        // An empty menu that is made visible takes the size of the widgets that an add-on has put into it.
        limitWindow(*menu);
        return ZelGUIWidgetRepository::instance()->addWidget(menu);
    });
}

int ZelGUIMenuAddItem(int menuId, const char *label, const char *, ZelGUIVoidCallback callback)
{
    return addEntry<ZelGUIMenuAction>(menuId, label, callback);
}

int ZelGUIMenuAddToggle(int menuId, const char *label, const char *, ZelGUIIntCallback callback)
{
    return addEntry<ZelGUIMenuToggleAction>(menuId, label, callback);
}

void ZelGUIMenuAddSeparator(int menuId)
{
    withWidget<QMenu>(menuId, [](QMenu &menu) { menu.addSeparator(); });
}

void ZelGUIMenuDeleteItem(int itemId)
{
    withWidget<QAction>(itemId, [](QAction &action) { takeOutOfMenu(action); });
}

void ZelGUIMenuItemSetText(int itemId, const char *text)
{
    withWidget<QAction>(itemId, [text](QAction &action) { action.setText(fromLatin1(text)); });
}

void ZelGUIMenuSetToggle(int itemId, ZelBoolean checked)
{
    withWidget<ZelGUIMenuToggleAction>(itemId,
                                       [checked](ZelGUIMenuToggleAction &action) { action.setChecked(checked == 1); });
}
