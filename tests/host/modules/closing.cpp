// SPDX-License-Identifier: MIT
// Dialogs that don't simply close.
#include <zvsdkbase/zelutil.h>

#include <QCloseEvent>
#include <QDialog>
#include <QDialogButtonBox>
#include <QMessageBox>
#include <QPushButton>

extern "C" void ZelAddOnInit(void);

namespace {

/// Closes through one button only; a wrong one brings up a message.
class OneWayOut : public QDialog
{
public:
    OneWayOut(QDialogButtonBox::StandardButtons buttons, QDialogButtonBox::StandardButton way)
    {
        auto *box = new QDialogButtonBox(buttons, this);
        QObject::connect(box, &QDialogButtonBox::clicked, this, [this, box, way](QAbstractButton *button) {
            if (button == box->button(way))
                accept();
            else
                ZelUtilDialogErrMsg("Not this way");
        });
    }

protected:
    void closeEvent(QCloseEvent *event) override { event->ignore(); }
};

/// Asks a question, in an event loop within its close event.
class Asking : public QDialog
{
protected:
    void closeEvent(QCloseEvent *event) override
    {
        QMessageBox::question(this, QStringLiteral("Question"), QStringLiteral("Really?"));
        event->accept();
    }
};

} // namespace

void ZelAddOnInit(void)
{
    ZelUtilAddOnRegister("OK only", "Closes with OK", [] {
        OneWayOut(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, QDialogButtonBox::Ok).exec();
    });
    ZelUtilAddOnRegister("Cancel only", "Closes with Cancel", [] {
        OneWayOut(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, QDialogButtonBox::Cancel).exec();
    });
    ZelUtilAddOnRegister("Other only", "Closes with a button of another kind",
                         [] { OneWayOut(QDialogButtonBox::Discard, QDialogButtonBox::Discard).exec(); });
    ZelUtilAddOnRegister("Asking", "Asks before it closes", [] { Asking().exec(); });
}
