// SPDX-License-Identifier: MIT
#include <common_ui_qt/mainwindow.h>
#include <zvsdkbase/hostcontrol.h>
#include <zvsdkbase/zelutil.h>

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

#include <atomic>
#include <optional>

namespace {

struct Resolution
{
    double horizontal;
    double vertical;
};

std::atomic<bool> batchMode{false};
std::optional<Resolution> overridden;

Resolution screenResolution()
{
    const QWidget *const window = orvane::ui::findMainWindow(false);
    const QScreen *screen = window ? window->screen() : nullptr;
    if (!screen && qobject_cast<QGuiApplication *>(QCoreApplication::instance()))
        screen = QGuiApplication::primaryScreen();
    if (screen)
        return {screen->logicalDotsPerInchX(), screen->logicalDotsPerInchY()};
    // What desktops take for granted where they are not told otherwise.
    return {96.0, 96.0};
}

} // namespace

namespace orvane {
namespace host {

void setBatchModeActive(bool active)
{
    batchMode = active;
}

void overrideDotsPerInch(double horizontal, double vertical)
{
    overridden = Resolution{horizontal, vertical};
}

void useScreenDotsPerInch()
{
    overridden.reset();
}

} // namespace host
} // namespace orvane

ZelBoolean ZelUtilMacroIsBatchModeActive(void)
{
    return batchMode ? 1 : 0;
}

void ZelUtilInterfaceGetDotsPerInch(double *horizontal, double *vertical)
{
    const Resolution resolution = overridden ? *overridden : screenResolution();
    if (horizontal)
        *horizontal = resolution.horizontal;
    if (vertical)
        *vertical = resolution.vertical;
}
