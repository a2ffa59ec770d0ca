// SPDX-License-Identifier: MIT
#include <zvsdkdialogs_common_qt/qtdialogabstract.h>

#include <QDialogButtonBox>
#include <QPushButton>

void orvane::dialogs::common::QtDialogAbstract::setDefaultButton(QDialogButtonBox *box, QPushButton *button)
{
    const QList<QAbstractButton *> buttons = box->buttons();
    for (QAbstractButton *other : buttons) {
        if (auto *pushButton = qobject_cast<QPushButton *>(other)) {
            pushButton->setAutoDefault(pushButton == button);
            pushButton->setDefault(pushButton == button);
        }
    }
}
