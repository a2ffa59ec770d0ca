// SPDX-License-Identifier: MIT
#include "snapshot.h"

#include <QAbstractItemModel>
#include <QAction>
#include <QButtonGroup>
#include <QDebug>
#include <QIcon>
#include <QItemSelectionModel>
#include <QMetaProperty>
#include <QRegularExpression>
#include <QTabBar>
#include <QTabWidget>
#include <QWidget>

namespace {

/// What an object holds that isn't one of its properties.
QString contentOf(const QObject *object)
{
    QString content;
    QDebug stream(&content);
    if (const auto *const model = qobject_cast<const QAbstractItemModel *>(object)) {
        for (int row = 0; row < model->rowCount(); ++row)
            stream << model->index(row, 0).data();
    } else if (const auto *const selection = qobject_cast<const QItemSelectionModel *>(object)) {
        for (const QModelIndex &index : selection->selectedIndexes())
            stream << index.row();
    } else if (const auto *const group = qobject_cast<const QButtonGroup *>(object)) {
        stream << group->checkedId() << group->buttons().size();
    } else if (const auto *const tabs = qobject_cast<const QTabBar *>(object)) {
        for (int tab = 0; tab < tabs->count(); ++tab)
            stream << tabs->tabText(tab);
    } else if (const auto *const widget = qobject_cast<const QWidget *>(object)) {
        for (const QAction *const action : widget->actions())
            stream << action->text() << action->isSeparator();
    }
    return content;
}

} // namespace

QStringList snapshot(const QObject *root, bool hasIdentifiers)
{
    // Qt 5 can't read this property under its own type's name otherwise.
    qRegisterMetaType<QTabBar::SelectionBehavior>("SelectionBehavior");
    QStringList state;
    auto objects = root->findChildren<QObject *>();
    objects.prepend(const_cast<QObject *>(root));
    for (const QObject *const object : objects) {
        const QMetaObject *const meta = object->metaObject();
        QString line = QString::fromLatin1(meta->className());
        for (int i = hasIdentifiers ? 0 : QObject::staticMetaObject.propertyCount(); i < meta->propertyCount(); ++i) {
            QVariant property = meta->property(i).read(object);
            // Icons and objects have identifiers of their own.
            if (!hasIdentifiers && property.canConvert<QIcon>())
                property = property.value<QIcon>().isNull();
            QString value;
            QDebug(&value) << property;
            line += QLatin1Char(' ') + QString::fromLatin1(meta->property(i).name()) + QLatin1Char('=') + value;
        }
        static const QRegularExpression address(QStringLiteral("0x[0-9a-f]+"));
        line += QLatin1Char(' ') + contentOf(object);
        state << (hasIdentifiers ? line : line.remove(address));
    }
    return state;
}
