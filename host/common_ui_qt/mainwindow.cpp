// SPDX-License-Identifier: MIT
#include <common_ui_qt/mainwindow.h>

#include <QApplication>
#include <QMainWindow>
#include <QPointer>

namespace orvane {
namespace ui {

namespace {

/// A visible main window, or else a hidden one: while a program starts or ends it may have several.
QMainWindow *searchMainWindow()
{
    QMainWindow *found = nullptr;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        auto *candidate = qobject_cast<QMainWindow *>(window);
        if (candidate && (!found || (candidate->isVisible() && !found->isVisible())))
            found = candidate;
    }
    return found;
}

} // namespace

QWidget *findMainWindow(bool searchAnew)
{
    // Never deleted: add-ons may still call while the process ends.
    static auto &lastFound = *new QPointer<QMainWindow>;
    const QCoreApplication *const application = QCoreApplication::instance();
    if (application && lastFound && !searchAnew)
        return lastFound;
    if (!qobject_cast<const QApplication *>(application))
        return nullptr;
    lastFound = searchMainWindow();
    return lastFound;
}

} // namespace ui
} // namespace orvane
