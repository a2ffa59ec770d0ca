// SPDX-License-Identifier: MIT
#ifndef ZELHOST_RECORDING_H
#define ZELHOST_RECORDING_H

#include "../options.h"
#include "../script/recorder.h"
#include "../session.h"

/// Starts to record if that was asked for; else `recorder` stays null. False, after a message, if the file can't be
/// written.
bool startRecording(const Options &options, const Session &session, std::unique_ptr<Recorder> &recorder);

#endif
