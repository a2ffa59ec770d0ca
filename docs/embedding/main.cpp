// SPDX-License-Identifier: MIT
// Usage: myhost ADDON...
#include "menu.h"

#include <QApplication>
#include <QLibrary>
#include <QMainWindow>
#include <QMenuBar>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    // Before the first add-on: zelgui asks for it once, and without it there would be no dialogs.
    QMainWindow window;

    const QStringList files = QApplication::arguments().mid(1);
    for (const QString &file : files) {
        const auto init = reinterpret_cast<void (*)()>(QLibrary::resolve(file, "ZelAddOnInit"));
        if (!init) {
            qCritical("%s is no add-on", qPrintable(file));
            return 1;
        }
        init();
    }

    QMenu *menu = window.menuBar()->addMenu(QStringLiteral("&Add-Ons"));
    for (const MenuEntry &entry : menuEntries())
        menu->addAction(QString::fromStdString(entry.name), &window, [launch = entry.launch] { launch(); });
    window.show();
    return QApplication::exec();
}
