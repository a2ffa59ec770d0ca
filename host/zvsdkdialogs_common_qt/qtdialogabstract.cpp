// SPDX-License-Identifier: MIT
#include <zvsdkdialogs_common_qt/qtdialogabstract.h>

#include <QDialogButtonBox>
#include <QPushButton>

namespace orvane {
namespace dialogs {
namespace common {

void QtDialogAbstract::setDefaultButton(QDialogButtonBox *box, QPushButton *button)
{
    const QList<QAbstractButton *> buttons = box ? box->buttons() : QList<QAbstractButton *>();
    for (QAbstractButton *other : buttons) {
        if (auto *pushButton = qobject_cast<QPushButton *>(other)) {
            pushButton->setAutoDefault(false);
            pushButton->setDefault(false);
        }
    }
    if (button) {
        button->setAutoDefault(true);
        button->setDefault(true);
    }
}

} // namespace common
} // namespace dialogs
} // namespace orvane
