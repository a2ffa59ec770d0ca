// SPDX-License-Identifier: MIT
// Dialogs of many manners: each fills itself with one colour, by which its picture is recognised.
#include <zvsdkbase/zelutil.h>

#include <QAbstractButton>
#include <QCloseEvent>
#include <QDialog>
#include <QDialogButtonBox>
#include <QMessageBox>
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

/// Closes through one button only; a wrong one brings up a message.
class OneWayOut : public Colored
{
public:
    OneWayOut(QDialogButtonBox::StandardButtons buttons, QDialogButtonBox::StandardButton way) : Colored(Qt::cyan)
    {
        auto *box = new QDialogButtonBox(buttons, this);
        QObject::connect(box, &QDialogButtonBox::clicked, this, [this, box, way](QAbstractButton *button) {
            if (box->standardButton(button) == way)
                accept();
            else
                ZelUtilDialogErrMsg("Not this way");
        });
    }

protected:
    void closeEvent(QCloseEvent *event) override { event->ignore(); }
};

/// Asks a question, in an event loop within its close event.
class Asking : public Colored
{
public:
    using Colored::Colored;

protected:
    void closeEvent(QCloseEvent *event) override
    {
        QMessageBox::question(this, QStringLiteral("Question"), QStringLiteral("Really?"));
        event->accept();
    }
};

void showModeless(Qt::GlobalColor color)
{
    auto *dialog = new Colored(color);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->show();
}

void complain()
{
    Colored dialog(Qt::yellow);
    QTimer::singleShot(0, &dialog, [] { ZelUtilDialogErrMsg("First"); });
    QTimer::singleShot(0, &dialog, [] { ZelUtilDialogErrMsg("Second"); });
    dialog.exec();
}

} // namespace

void ZelAddOnInit(void)
{
    static const auto okOrCancel = QDialogButtonBox::Ok | QDialogButtonBox::Cancel;
    const auto add = [](const char *name, void (*launch)()) { ZelUtilAddOnRegister(name, "", launch); };
    add("Modal", [] { Colored(Qt::red).exec(); });
    add("Modeless", [] { showModeless(Qt::green); });
    add("Late", [] { QTimer::singleShot(0, [] { showModeless(Qt::blue); }); });
    add("Complaining: a/b", complain);
    add("Modal", [] { showModeless(Qt::green); });
    add("OK only", [] { OneWayOut(okOrCancel, QDialogButtonBox::Ok).exec(); });
    add("Cancel only", [] { OneWayOut(okOrCancel, QDialogButtonBox::Cancel).exec(); });
    add("Other only", [] { OneWayOut(QDialogButtonBox::Discard, QDialogButtonBox::Discard).exec(); });
    add("Asking", [] { Asking(Qt::magenta).exec(); });
}
