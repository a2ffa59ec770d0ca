// SPDX-License-Identifier: MIT
#include "tabs.h"

#include "nearest.h"
#include "windows.h"

#include <QTabWidget>

namespace {

QString titleOf(const QTabWidget &tabs, int index)
{
    return tabs.tabText(index).remove(QLatin1Char('&'));
}

} // namespace

FoundTab findTab(const QWidget &window, const Word &name, QString &failure)
{
    QStringList titles;
    for (const QTabWidget *const tabs : window.findChildren<QTabWidget *>()) {
        for (int i = 0; i < tabs->count(); ++i) {
            const QString title = titleOf(*tabs, i);
            const bool isMeant = name.isIdentifier() ? tabs->widget(i)->objectName() == name.text.mid(1)
                                                     : title == QString(name.text).remove(QLatin1Char('&'));
            if (isMeant && tabs->isVisible())
                return {tabs->tabBar(), i};
            if (tabs->isVisible())
                titles.append(title);
        }
    }
    failure = QStringLiteral("no tab is called %1 in %2%3")
                  .arg(name.written(), describeWindow(window), whatThereIs(name.text, titles));
    return {};
}

QStringList currentTabs(const QWidget &window)
{
    QStringList titles;
    for (const QTabWidget *const tabs : window.findChildren<QTabWidget *>()) {
        if (tabs->isVisible() && tabs->currentIndex() >= 0)
            titles.append(titleOf(*tabs, tabs->currentIndex()));
    }
    return titles;
}
