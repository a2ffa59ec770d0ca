// SPDX-License-Identifier: MIT
#include "comparison.h"

#include <QApplication>

namespace bench {

QMainWindow *mainWindow()
{
    static auto *const window = [] {
        auto *const created = new QMainWindow;
        created->show();
        QApplication::processEvents();
        return created;
    }();
    return window;
}

} // namespace bench
