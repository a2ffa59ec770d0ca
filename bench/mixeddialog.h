// SPDX-License-Identifier: MIT
#ifndef BENCH_MIXEDDIALOG_H
#define BENCH_MIXEDDIALOG_H

class QDialog;

/// A dialog of 200 widgets of eight kinds, made by the library and with bare calls of the toolkit: the same classes,
/// texts, places and connections, so that both look the same.
namespace bench {

QDialog *createLibraryDialog();
QDialog *createBareDialog();
/// The same, if bare code does for each widget what the library promises.
QDialog *createFullBareDialog();
void showUntilPainted(QDialog &dialog);

} // namespace bench

#endif
