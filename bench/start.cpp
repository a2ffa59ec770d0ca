// SPDX-License-Identifier: MIT
// A process that ends as soon as it has painted its first dialog.
#include "comparison.h"
#include "mixeddialog.h"

#include <QApplication>
#include <QDialog>

#include <unistd.h>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    bench::mainWindow();
    bench::showUntilPainted(*bench::BENCH_CREATE());
    // At once: how a process ends is not what is measured.
    _exit(0);
}
