// SPDX-License-Identifier: MIT
#ifndef ZELGUI_WIDGETS_MENU_H
#define ZELGUI_WIDGETS_MENU_H

#include <zelgui/zelgui.h>

#include <QAction>

class QMenu;

namespace orvane::zelgui {

/// What a menu's entries have in common. The menu owns its entries, also after one has been taken out of it.
class ZelGUIMenuActionAbstract : public QAction
{
protected:
    ZelGUIMenuActionAbstract(QMenu *menu, const QString &text);
};

/// An entry that reports that it was chosen.
class ZelGUIMenuAction : public ZelGUIMenuActionAbstract
{
    Q_OBJECT

public:
    ZelGUIMenuAction(QMenu *menu, const QString &text, ZelGUIVoidCallback callback);

private Q_SLOTS:
    void menuActionTriggered(bool isChecked);

private:
    ZelGUIVoidCallback m_callback;
};

/// An entry with a check mark, which reports every change of it, the add-on's own changes included. Only what its own
/// callback changes is not reported to it.
class ZelGUIMenuToggleAction : public ZelGUIMenuActionAbstract
{
    Q_OBJECT

public:
    ZelGUIMenuToggleAction(QMenu *menu, const QString &text, ZelGUIIntCallback callback);

private Q_SLOTS:
    void menuActionToggled(bool isChecked);

private:
    ZelGUIIntCallback m_callback;
    bool m_isReporting = false;
};

} // namespace orvane::zelgui

#endif
