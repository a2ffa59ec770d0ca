// SPDX-License-Identifier: MIT
#ifndef TESTS_SUPPORT_TRIGGERS_H
#define TESTS_SUPPORT_TRIGGERS_H

#include "zeltest.h"

#include <QDialog>

/// A dialog of an add-on's inside another one.
struct Scene
{
    QPointer<QMainWindow> mainWindow;
    int parent = ZELGUI_INVALID_ID;
    int dialog = ZELGUI_INVALID_ID;
    QPointer<QDialog> widget;
    /// What reports.
    int sender = ZELGUI_INVALID_ID;
};

/// One way to have a callback called by what a user does in the visible dialog; the init callback aside, which is
/// called before there is anything to see.
struct Trigger
{
    QByteArray name;
    Callback::Name callback;
    std::function<void(Scene &)> act;
};

/// Each kind of callback, by mouse and by keyboard where both lead to it.
QVector<Trigger> triggers();

#endif
