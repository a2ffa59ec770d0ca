// SPDX-License-Identifier: MIT
#include "stage.h"

#include "nearest.h"

#include <QStringList>

#include <algorithm>

namespace {

QStringList titlesOf(const Windows &windows)
{
    QStringList titles;
    for (const QWidget *const window : windows.all())
        titles.append(window->windowTitle());
    return titles;
}

} // namespace

bool Stage::isExpected(const QWidget *window) const
{
    return std::find(expected.begin(), expected.end(), window) != expected.end();
}

void Stage::expect(QWidget *window)
{
    if (!isExpected(window))
        expected.emplace_back(window);
    if (isMessage(*window))
        return;
    current = window;
    hasHadDialog = true;
}

QWidget *windowFor(Stage &stage, const Step &step, QString &failure)
{
    if (step.dialog) {
        QWidget *const named = stage.windows->titled(*step.dialog);
        if (!named) {
            failure = QStringLiteral("no dialog with the title %1 is up%2")
                          .arg(quoted(*step.dialog), whatThereIs(*step.dialog, titlesOf(*stage.windows)));
            return nullptr;
        }
        if (const QWidget *const blocker = blockerOf(*named)) {
            failure = QStringLiteral("%1 keeps users from %2").arg(describeWindow(*blocker), describeWindow(*named));
            return nullptr;
        }
        stage.expect(named);
        return named;
    }
    QWidget *const top = stage.windows->top();
    if (!top && step.action == Action::Menu)
        return stage.mainWindow;
    if (!top) {
        failure = QStringLiteral("no dialog is up");
        return nullptr;
    }
    if (stage.isExpected(top)) {
        stage.expect(top);
        return top;
    }
    failure = isMessage(*top) ? QStringLiteral("%1 is up, which no step has expected")
                              : QStringLiteral("%1 is up, which no step has launched or expected");
    failure = failure.arg(describeWindow(*top));
    return nullptr;
}
