// SPDX-License-Identifier: MIT
#include <common_ui_qt/mainwindow.h>

#include <QApplication>
#include <QMainWindow>

QWidget *orvane::ui::findMainWindow(bool)
{
    // A host with several windows chooses here; this one has one.
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (qobject_cast<QMainWindow *>(window))
            return window;
    }
    return nullptr;
}
