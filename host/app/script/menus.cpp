// SPDX-License-Identifier: MIT
#include "menus.h"

#include "nearest.h"
#include "windows.h"
#include "words.h"

#include <QMenu>

namespace {

QStringList splitPath(const QString &path)
{
    QStringList names{QString()};
    for (int i = 0; i < path.size(); ++i) {
        if (path[i] != QLatin1Char('/')) {
            names.last() += path[i];
        } else if (i + 1 < path.size() && path[i + 1] == path[i]) {
            names.last() += path[i];
            ++i;
        } else {
            names.append(QString());
        }
    }
    return names;
}

/// Menu entries often end in dots, which nobody says.
QString comparable(QString name)
{
    if (name.endsWith(QLatin1String("...")))
        name.chop(3);
    return name.simplified();
}

QAction *entryCalled(const QWidget &menu, const QString &name)
{
    for (QAction *const entry : menu.actions()) {
        if (entry->isVisible() && !entry->isSeparator() && comparable(nameOfMenuEntry(*entry)) == comparable(name))
            return entry;
    }
    return nullptr;
}

QStringList entriesOf(const QWidget &menu)
{
    QStringList names;
    for (const QAction *const entry : menu.actions()) {
        if (entry->isVisible() && !entry->isSeparator())
            names.append(nameOfMenuEntry(*entry));
    }
    return names;
}

bool findWay(const QWidget &menu, const QAction *entry, QStringList &names)
{
    for (const QAction *const action : menu.actions()) {
        names.append(nameOfMenuEntry(*action).replace(QLatin1Char('/'), QLatin1String("//")));
        if (action == entry || (action->menu() && findWay(*action->menu(), entry, names)))
            return true;
        names.removeLast();
    }
    return false;
}

} // namespace

QMenuBar *menuBarOf(const QWidget &window)
{
    return window.findChild<QMenuBar *>(QString(), Qt::FindDirectChildrenOnly);
}

QString nameOfMenuEntry(const QAction &entry)
{
    // A doubled ampersand is one that is shown; what stands behind a tabulator is the shortcut.
    const QString text = entry.text().section(QLatin1Char('\t'), 0, 0);
    QString name;
    for (int i = 0; i < text.size(); ++i) {
        if (text[i] == QLatin1Char('&') && ++i == text.size())
            break;
        name += text[i];
    }
    return name.trimmed();
}

MenuPath findMenuEntry(const QWidget &window, const QString &path)
{
    MenuPath result;
    result.bar = menuBarOf(window);
    if (!result.bar) {
        result.failure = QStringLiteral("%1 has no menu bar").arg(describeWindow(window));
        return result;
    }
    const QWidget *menu = result.bar;
    for (const QString &name : splitPath(path)) {
        QAction *const entry = menu ? entryCalled(*menu, name) : nullptr;
        if (!entry) {
            const QStringList names = menu ? entriesOf(*menu) : QStringList();
            const QString where =
                result.entries.isEmpty()
                    ? QStringLiteral("in the menu bar")
                    : QStringLiteral("in the menu %1").arg(quoted(nameOfMenuEntry(*result.entries.constLast())));
            result.failure =
                QStringLiteral("no entry is called %1 %2%3").arg(quoted(name), where, whatThereIs(name, names));
            return result;
        }
        result.entries.append(entry);
        menu = entry->menu();
    }
    return result;
}

QString pathOfMenuEntry(const QWidget &window, const QAction *entry)
{
    QStringList names;
    const QMenuBar *const bar = menuBarOf(window);
    return bar && findWay(*bar, entry, names) ? names.join(QLatin1Char('/')) : QString();
}
