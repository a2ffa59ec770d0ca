// SPDX-License-Identifier: MIT
#ifndef ZELGUI_WIDGETS_TAB_H
#define ZELGUI_WIDGETS_TAB_H

#include "core/repository.h"

#include <zelgui/zelgui.h>

#include <QTabWidget>

namespace orvane::zelgui {

/// Pages under a row of tabs. When the user switches, the page left is reported and then the one that is shown.
class ZelGUITab : public QTabWidget
{
    Q_OBJECT

public:
    /// Position and size, in font units, are those of the pages with their frame; the tabs stand above.
    ZelGUITab(QWidget *parent, int x, int y, int width, int height, ZelGUIIntCallback activated,
              ZelGUIIntCallback deactivated);

private Q_SLOTS:
    void onCurrentChanged(int index);

private:
    ZelGUIIntCallback m_activated;
    ZelGUIIntCallback m_deactivated;
    /// The page that was last reported as shown; switches by the add-on are not.
    int m_lastReportedPageId = kInvalidWidgetId;
};

} // namespace orvane::zelgui

#endif
