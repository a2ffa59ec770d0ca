// SPDX-License-Identifier: MIT
// Dialogs of many manners: each fills itself with one colour, by which its picture is recognised.
#include <zvsdkbase/zelutil.h>

#include <QDialog>
#include <QTimer>

extern "C" void ZelAddOnInit(void);

namespace {

class Colored : public QDialog
{
public:
    explicit Colored(Qt::GlobalColor color)
    {
        setPalette(QPalette(color));
        setAutoFillBackground(true);
        resize(200, 100);
    }
};

void showModeless(Qt::GlobalColor color)
{
    auto *dialog = new Colored(color);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->show();
}

void modal()
{
    Colored(Qt::red).exec();
}

void modeless()
{
    showModeless(Qt::green);
}

void late()
{
    QTimer::singleShot(0, [] { showModeless(Qt::blue); });
}

void complaining()
{
    Colored dialog(Qt::yellow);
    QTimer::singleShot(0, &dialog, [] { ZelUtilDialogErrMsg("First"); });
    QTimer::singleShot(0, &dialog, [] { ZelUtilDialogErrMsg("Second"); });
    dialog.exec();
}

} // namespace

void ZelAddOnInit(void)
{
    ZelUtilAddOnRegister("Modal", "Returns when its dialog was closed", modal);
    ZelUtilAddOnRegister("Modeless", "Returns at once", modeless);
    ZelUtilAddOnRegister("Late", "Shows its dialog after it has returned", late);
    ZelUtilAddOnRegister("Complaining: a/b", "Opens error messages on its dialog", complaining);
    ZelUtilAddOnRegister("Modal", "Is called like another one", modeless);
}
