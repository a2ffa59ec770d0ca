// SPDX-License-Identifier: MIT
#ifndef TESTS_TORTURE_HOST_H
#define TESTS_TORTURE_HOST_H

#include "rounds.h"

#include <QMainWindow>
#include <QPointer>

#include <cstdint>
#include <vector>

/// A host that fails on demand: that refuses what it is asked for, and that may do what it likes after each call of the
/// library, before whose functions the test program stands with its own.
namespace torture {

/// Has a fault happen at one of its occasions, counted from 1 within the round.
void plan(Fault fault, std::int64_t occasion);
/// Counts an occasion of a fault; true if it is to happen now.
bool happens(Fault fault);

/// Something is over, be it a call, a callback or an event: the time for what a host may do at any time.
void moment();

/// Around each call of the library.
class CallEnd
{
public:
    CallEnd() = default;
    ~CallEnd() { moment(); }
    CallEnd(const CallEnd &) = delete;
    CallEnd &operator=(const CallEnd &) = delete;
};

/// The round's main window, visible; null before openMainWindow and when it is gone.
QPointer<QMainWindow> &mainWindow();
void openMainWindow();

/// Whether the error dialog opens, rather than that messages are passed over.
void showMessages(bool on);

/// Ends the round if add-ons have not got rid of what they were handed out.
void checkLedger();

} // namespace torture

#endif
