// SPDX-License-Identifier: MIT
#include "items.h"

#include "nearest.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QComboBox>
#include <QListView>

#include "../widgetnames.h"

QStringList itemsOf(const QObject &choice)
{
    QStringList texts;
    if (const auto *const menu = qobject_cast<const QComboBox *>(&choice)) {
        for (int i = 0; i < menu->count(); ++i)
            texts.append(menu->itemText(i));
    } else if (const auto *const group = qobject_cast<const QButtonGroup *>(&choice)) {
        for (const QAbstractButton *const button : group->buttons())
            texts.append(captionOf(*button));
    }
    return texts;
}

QStringList itemsOf(const QListView &list)
{
    QStringList texts;
    for (int row = 0; row < list.model()->rowCount(); ++row)
        texts.append(list.model()->index(row, list.modelColumn()).data().toString());
    return texts;
}

int indexOfItem(const Word &item, const QStringList &texts, QString &failure)
{
    if (item.isNumber()) {
        const int position = item.text.toInt();
        if (position >= 1 && position <= texts.size())
            return position - 1;
        failure =
            QStringLiteral("there is no item %1; items are 1 to %2").arg(item.text, QString::number(texts.size()));
        return -1;
    }
    const auto index = texts.indexOf(item.text);
    if (index < 0)
        failure = QStringLiteral("no item is called %1%2").arg(item.written(), whatThereIs(item.text, texts));
    return static_cast<int>(index);
}

QString nameForItem(int index, const QStringList &texts)
{
    const QString text = texts.value(index);
    return text.isEmpty() || texts.count(text) > 1 ? QString::number(index + 1) : quoted(text);
}
