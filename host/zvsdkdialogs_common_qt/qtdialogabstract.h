// SPDX-License-Identifier: MIT
#ifndef ZVSDKDIALOGS_COMMON_QT_QTDIALOGABSTRACT_H
#define ZVSDKDIALOGS_COMMON_QT_QTDIALOGABSTRACT_H

class QDialogButtonBox;
class QPushButton;

namespace orvane {
namespace dialogs {
namespace common {

/// What the host's own dialogs share.
class QtDialogAbstract
{
public:
    /// No button of the box stays default or auto-default; then `button` becomes both, if it is not null.
    static void setDefaultButton(QDialogButtonBox *box, QPushButton *button);
};

} // namespace common
} // namespace dialogs
} // namespace orvane

#endif
