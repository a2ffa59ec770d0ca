// SPDX-License-Identifier: MIT
#include "support/call.h"

#include <zelgui/zelgui.h>

#include <QApplication>
#include <QMainWindow>
#include <QTimer>

#include <cstdio>
#include <cstdlib>
#include <unistd.h>

namespace {

/// What add-ons and hosts call from static destructors and functions given to atexit(). The main window is still there.
void requireNeutral()
{
    for (const Function &function : functions()) {
        for (int id = -1; id < 12; ++id) {
            Harmless source;
            for (const Parameter *const identifier : identifiersOf(function))
                source.identifiers[identifier] = id;
            Call call(function, source);
            if (!(call.run() == function.withoutGui) || !call.areOutputsUntouched()) {
                std::fprintf(stderr, "%s is not neutral for %d\n", function.name, id);
                _exit(1);
            }
        }
    }
}

void leaveProcess()
{
    std::exit(0);
}

} // namespace

/// The end of the process in one of two ways: "exit" in a callback, or "application" object gone first.
int main(int argc, char **argv)
{
    const bool isInCallback = argc > 1 && QByteArray(argv[1]) == "exit";
    std::atexit(requireNeutral);
    auto *const application = new QApplication(argc, argv);
    new QMainWindow;
    const int dialog = ZelGUIDialogCreateModal(ZELGUI_MAIN_WINDOW, 3000, 1000, "Dialog", nullptr, nullptr, nullptr,
                                               leaveProcess, nullptr);
    const int bar = ZelGUIMenuBarAdd(dialog);
    const int item = ZelGUIMenuAddToggle(ZelGUIMenuAdd(bar, "&Menu"), "Toggle", nullptr, nullptr);
    ZelGUITabAddPage(ZelGUITabAdd(dialog, 100, 100, 1000, 300, nullptr, nullptr), "Page");
    const int field = ZelGUITextFieldAdd(dialog, 100, 500, 1000, 130, nullptr);
    ZelGUITextAdd(dialog, 100, 700, 1000, 130, 0, nullptr);
    ZelGUIScaleAdd(dialog, 1500, 700, 1000, 130, 0, 9, 0, nullptr, nullptr);
    ZelGUIListAppendItem(ZelGUIListAdd(dialog, 1500, 500, 1000, 130, 0, nullptr), "Item");
    std::atexit(requireNeutral);
    if (item != 3 || field != 6)
        return 1;
    if (isInCallback) {
        const auto cancel = [dialog] {
            for (QWidget *const window : QApplication::topLevelWidgets()) {
                if (window->objectName().toInt() == dialog && window->isVisible())
                    window->close();
            }
        };
        QTimer::singleShot(0, application, cancel);
        ZelGUIDialogLaunch(dialog);
        return 1;
    }
    delete application;
    requireNeutral();
    return 0;
}
