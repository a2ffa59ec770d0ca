// SPDX-License-Identifier: MIT
// Entries of which there is no picture: they show no dialog, or one that stays.
#include <zvsdkbase/zelutil.h>

#include <QCloseEvent>
#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QDir>
#include <QImage>

#include <cstdio>

extern "C" void ZelAddOnInit(void);

namespace {

/// Says what the host has told it, and releases what it allocates.
void tell()
{
    double horizontal = 0.0;
    double vertical = 0.0;
    char *text = ZelUtilStringAlloc(10, "released");
    ZelUtilInterfaceGetDotsPerInch(&horizontal, &vertical);
    std::printf("launched: batch %d, dpi %g,%g\n", ZelUtilMacroIsBatchModeActive(), horizontal, vertical);
    std::fflush(stdout);
    ZelUtilStringDealloc(&text);
}

void forget()
{
    ZelUtilStringAlloc(100, "forgotten");
    ZelUtilStringAlloc(20, "forgotten");
    ZelUtilSetAlloc(0);
    ZelUtilStringListAlloc();
}

/// Tells the size of each picture in the current directory, and its colour in the middle.
void describePictures()
{
    const QStringList files = QDir().entryList({QStringLiteral("*.png")});
    for (const QString &file : files) {
        const QImage image(file);
        std::printf("%s: %d x %d, %s\n", qPrintable(file), image.width(), image.height(),
                    qPrintable(image.pixelColor(image.rect().center()).name()));
    }
}

void neverReturn()
{
    volatile bool forever = true;
    while (forever) {
    }
}

/// Refuses every way to close it.
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

} // namespace

void ZelAddOnInit(void)
{
    const auto add = [](const char *name, void (*launch)()) { ZelUtilAddOnRegister(name, "", launch); };
    add("Silent", tell);
    add("Forgetful", forget);
    add("Pictures", describePictures);
    add("Stuck", neverReturn);
    add("Quitting", [] { QCoreApplication::exit(0); });
    add("Never closing", [] { NeverClosing().exec(); });
}
