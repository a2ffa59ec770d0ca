// SPDX-License-Identifier: MIT
#ifndef ZELHOST_SCRIPT_STEP_H
#define ZELHOST_SCRIPT_STEP_H

#include "words.h"

#include <optional>

/// What a step does; language.cpp says how each is written.
enum class Action {
    Launch,
    Press,
    Check,
    Uncheck,
    Choose,
    ChooseItem,
    Type,
    Insert,
    Cursor,
    SelectAll,
    SelectNone,
    SelectRange,
    Select,
    Add,
    Deselect,
    Extend,
    Drag,
    Page,
    Arrow,
    Wheel,
    Menu,
    Tab,
    Key,
    Click,
    Close,
    Picture,
    Wait,
    Patience,
    ExpectMessage,
    ExpectDialogClosed,
    ExpectNamedDialogClosed,
    ExpectDialog,
    ExpectLabel,
    ExpectTab,
    ExpectMenu,
    ExpectText,
    ExpectState,
    ExpectChoice,
    ExpectNothingSelected,
    ExpectSelected,
    ExpectItemCount,
    ExpectItem,
    ExpectValue,
};

/// One line of a script.
struct Step
{
    Action action = Action::Press;
    /// Counted from 1.
    int line = 0;
    /// For messages: the line without blanks around it.
    QString source;
    /// Title, which may be empty, of the dialog that it is about; none for the topmost.
    std::optional<QString> dialog;
    /// The words that vary; keywords are not among them, except one out of several that are possible.
    std::vector<Word> words;
};

#endif
