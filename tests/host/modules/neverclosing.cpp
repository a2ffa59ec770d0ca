// SPDX-License-Identifier: MIT
// Its dialog refuses every way to close it.
#include <zvsdkbase/zelutil.h>

#include <QCloseEvent>
#include <QDialog>
#include <QDialogButtonBox>

extern "C" void ZelAddOnInit(void);

namespace {

class NeverClosing : public QDialog
{
public:
    NeverClosing()
    {
        // Not connected to anything.
        new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    }
    void done(int) override {}

protected:
    void closeEvent(QCloseEvent *event) override { event->ignore(); }
};

void launch()
{
    NeverClosing dialog;
    dialog.exec();
}

} // namespace

void ZelAddOnInit(void)
{
    ZelUtilAddOnRegister("Never closing", "Stays for ever", launch);
}
