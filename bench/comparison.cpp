// SPDX-License-Identifier: MIT
#include "comparison.h"

#include <zelgui/zelgui.h>

#include <QApplication>

namespace bench {

Dialog::Dialog(bool isVisible)
{
    mainWindow();
    m_id = ZelGUIDialogCreateModeless(ZELGUI_MAIN_WINDOW, 6000, 3000, "Benchmark", nullptr, nullptr, nullptr);
    if (isVisible) {
        object<QWidget>(m_id)->show();
        QApplication::processEvents();
    }
}

Dialog::~Dialog()
{
    delete object<QObject>(m_id);
}

std::size_t &lastPeak()
{
    static std::size_t peak = 0;
    return peak;
}

} // namespace bench
