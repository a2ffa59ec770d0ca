/* SPDX-License-Identifier: MIT */
#ifndef ZELGUI_ZELGUI_H
#define ZELGUI_ZELGUI_H

/**
 * @file
 * Dialogs for the host's add-ons.
 *
 * What holds for every function, unless its comment says otherwise:
 *
 * 1. Identifiers. Each dialog, widget, page, radio box and menu entry has an identifier, counted upwards from 0 in the
 *    order of creation and never reused. ZELGUI_INVALID_ID (-2) stands for no object: a creating function returns it
 *    when it creates nothing. ZELGUI_MAIN_WINDOW (-1) is the host's main window, as the parent of a dialog.
 *
 * 2. Units. Positions and sizes follow the font. A unit of height is one hundredth of the height of the widget's font,
 *    so a line of text is 100 high; a unit of width is 0.45 of that, times the ratio of the screen's horizontal to its
 *    vertical resolution, so an average character is about 100 wide. Pixels are rounded to the nearest, a half down,
 *    and never exceed 8192 for a size and 32767 for a position. A position counts from the parent's top left corner,
 *    and only if both x and y are greater than 0; else the widget stays in that corner. A width or height of 0 or
 *    less leaves that dimension to the toolkit. The sizes are fixed when the widget is made and do not follow later
 *    changes of the font.
 *
 * 3. Parents. A widget's parent is a dialog, or a page or frame inside one. It lives as long as its parent; there is
 *    no function to destroy it. A widget that is added to a dialog already visible stays hidden until
 *    ZelGUISetVisibility shows it. Up to 20,000 visible widgets in one parent are safe; from some 25,000 on, the
 *    toolkit overflows the stack.
 *
 * 4. Positions of items count from 1.
 *
 * 5. Booleans are one byte, 0 or 1. An argument is true when it is not 0, except where a comment says "exactly 1".
 *
 * 6. Text. Arguments are UTF-8 or Latin-1, as the comment says, end with a zero byte and are copied; NULL counts as
 *    empty. An ampersand before a letter makes that letter the mnemonic of a button or toggle; "&&" shows one. Labels
 *    show rich text where the text looks like markup, as the toolkit does. Its time doubles with each table inside a
 *    table: thirteen levels, 300 bytes, take over half a second. A single-line text and a window's title are cut at
 *    32767 characters. A null character that a user has pasted is handed out as U+FFFD.
 *
 * 7. Memory. Strings and arrays that a function hands out are copies that the caller releases with
 *    ZelUtilStringDealloc, index sets with ZelUtilSetDealloc.
 *
 * 8. Callbacks are called on the GUI thread, one within the other where dialogs are nested. NULL stands for none. What
 *    is under way is not begun again: a dialog is not launched inside its own init callback, and a menu's toggle is not
 *    reported to it while its callback runs. A field reports a loss of the focus when the toolkit is done with what
 *    took it: with the opening of a menu, or with making another window active. It reports no loss with its own
 *    dialog, none that its running callback leads to, and a rejected text that has not changed not again when the
 *    focus is only lent to a menu or another window.
 *
 * 9. Without a GUI, that is in batch mode, when the host's main window is missing or gone, when the application object
 *    is gone, or after exit(), every function does nothing and returns its neutral value, written "neutral" below;
 *    output arguments are left alone. The same holds for an identifier that is unknown, names another kind of object,
 *    or belongs to an object that was destroyed. A creating function's neutral value is ZELGUI_INVALID_ID, and no
 *    function ever lets a C++ exception out.
 *
 * 10. Threads. Call these functions on the host's GUI thread only.
 */

#include <zvsdkbase/zelutil.h>

/** Marks what the library exports. */
#if defined(__GNUC__)
#define ZELGUI_API __attribute__((visibility("default")))
#else
#define ZELGUI_API
#endif

#ifdef __cplusplus
extern "C" {
#endif

/** No object: what a creating function returns when it creates nothing. */
#define ZELGUI_INVALID_ID (-2)

/** The host's main window, as the parent of a dialog. */
#define ZELGUI_MAIN_WINDOW (-1)

/**
 * Reports that the user has done something: pressed a button, say.
 *
 * Called while the user's action is still being handled. The callback may call any function of this header; it may
 * also drop the dialog that it belongs to, or launch another. There is no user-data argument: keep a dialog's state
 * in a static struct.
 */
typedef void (*ZelGUIVoidCallback)(void);

/**
 * Reports a value that the user has just changed. What the add-on changes itself is not reported, except where a
 * function says so. Otherwise as ZelGUIVoidCallback.
 *
 * @param value  valid only during the call
 */
typedef void (*ZelGUIIntCallback)(const int *value);

/**
 * Reports a text that the user has finished or changed.
 *
 * @param text  UTF-8, valid only during the call
 * @return  from text fields and spin text fields: 0 rejects the text, anything else accepts it. A multi-line text
 *          does not read it.
 */
typedef int (*ZelGUITextCallback)(const char *text);

/** @name Dialogs
 * A dialog is a window of fixed size with a strip of buttons below its content. Which buttons there are follows from
 * the callbacks given. No button closes the dialog by itself: its callback calls ZelGUIDialogDrop when the dialog may
 * go.
 * @{ */

/**
 * Makes a modal dialog: while it is up, the user can't work with the host's other windows. It is not shown yet.
 *
 * @param parentDialogId  ZELGUI_MAIN_WINDOW, or the dialog that it belongs to
 * @param width           width of the content, without the frame; 0 or less: the toolkit's choice
 * @param height          height of the content, without the strip of buttons; 0 or less: the toolkit's choice
 * @param title           UTF-8
 * @param initCallback    called by each ZelGUIDialogLaunch before the dialog is shown: the place to set values
 * @param okCallback      the OK button; NULL: the dialog has none, here and below
 * @param applyCallback   the Apply button
 * @param cancelCallback  the Cancel button, the Escape key and the window's close button; without it the latter two
 *                        do nothing
 * @param helpCallback    the Help button
 * @return  the dialog's identifier
 */
ZELGUI_API int ZelGUIDialogCreateModal(int parentDialogId, int width, int height, const char *title,
                                       ZelGUIVoidCallback initCallback, ZelGUIVoidCallback okCallback,
                                       ZelGUIVoidCallback applyCallback, ZelGUIVoidCallback cancelCallback,
                                       ZelGUIVoidCallback helpCallback);

/**
 * Makes a modeless dialog, which stays open beside the host's other windows. It is not shown yet.
 *
 * @param parentDialogId  ZELGUI_MAIN_WINDOW, or the dialog that it belongs to
 * @param width           width of the content, without the frame; 0 or less: the toolkit's choice
 * @param height          height of the content, without the strip of buttons; 0 or less: the toolkit's choice
 * @param title           UTF-8
 * @param initCallback    called by each ZelGUIDialogLaunch before the dialog is shown
 * @param closeCallback   the Close button, the Escape key and the window's close button. With NULL there is no Close
 *                        button and the dialog is modal.
 * @param helpCallback    the Help button; NULL: none
 * @return  the dialog's identifier
 */
ZELGUI_API int ZelGUIDialogCreateModeless(int parentDialogId, int width, int height, const char *title,
                                          ZelGUIVoidCallback initCallback, ZelGUIVoidCallback closeCallback,
                                          ZelGUIVoidCallback helpCallback);

/**
 * Adds a button of the add-on's own to a dialog's strip. Only the button added last calls its callback; earlier ones
 * stay visible. Neither the dialog nor the strip grows.
 *
 * @param label      Latin-1
 * @param isDefault  exactly 1: the Enter key presses this button from now on
 * @param callback   called for each click; a ZelGUIDialogDrop in it hides the dialog at once
 */
ZELGUI_API void ZelGUIDialogAddButtonToButtonBox(int dialogId, const char *label, ZelBoolean isDefault,
                                                 ZelGUIVoidCallback callback);

/**
 * Calls the dialog's init callback and shows the dialog. A modal dialog keeps the call until the dialog is hidden
 * again, while events and callbacks go on; a modeless one is raised and activated, and the call returns at once. Does
 * nothing in batch mode. Launched from within its own OK, Cancel or Close callback, when it is up already, a dialog
 * only has its init callback called; of a drop and a launch in one such callback, the later one counts. A host that
 * goes into batch mode later keeps the dialogs that are up and shows no further ones.
 */
ZELGUI_API void ZelGUIDialogLaunch(int dialogId);

/**
 * Hides a dialog; it can be launched again. While the dialog's own OK, Cancel or Close callback is running, it is
 * hidden when that callback has returned; in all other cases at once.
 */
ZELGUI_API void ZelGUIDialogDrop(int dialogId);

/** 1 while the dialog is visible; neutral 0. */
ZELGUI_API ZelBoolean ZelGUIDialogIsUp(int dialogId);

/** Sets a dialog's title, UTF-8. */
ZELGUI_API void ZelGUIDialogSetTitle(int dialogId, const char *title);

/** Does nothing: the window system places dialogs. */
ZELGUI_API void ZelGUIDialogSetPosition(int dialogId, int x, int y);

/** @} */

/** @name Any widget
 * These work on every identifier: dialogs, widgets, pages and radio boxes, whose parts they reach all, and on menu
 * items, of which ZelGUISetToolTip and ZelGUISetInputFocus do nothing.
 * @{ */

/** Sets what is shown when the mouse rests on a widget; UTF-8. Text that looks like markup is shown as rich text. */
ZELGUI_API void ZelGUISetToolTip(int id, const char *text);

/** Gives a widget the keyboard focus; of a radio box, its first button. */
ZELGUI_API void ZelGUISetInputFocus(int id);

/**
 * Makes a widget or menu item respond to the user, or greys it out.
 *
 * @param sensitive  exactly 1: it responds
 */
ZELGUI_API void ZelGUISetSensitivity(int id, ZelBoolean sensitive);

/**
 * Shows or hides a widget or menu item. A scale takes its numeric display with it.
 *
 * @param visible  exactly 1: it is shown, once what contains it is
 */
ZELGUI_API void ZelGUISetVisibility(int id, ZelBoolean visible);

/** @} */

/** @name Push buttons
 * @{ */

/**
 * Adds a push button. It becomes 1.1 times as high as asked for and does not react to the Enter key of the dialog
 * until ZelGUIButtonSetDefault.
 *
 * @param label     Latin-1; white space at both ends is cut off
 * @param callback  called for each click, Space key and mnemonic
 * @return  the button's identifier
 */
ZELGUI_API int ZelGUIButtonAdd(int parentId, int x, int y, int width, int height, const char *label,
                               ZelGUIVoidCallback callback);

/** Sets the text, Latin-1 with its white space, of a push button, bitmap button or toggle of any kind. */
ZELGUI_API void ZelGUIButtonSetText(int buttonId, const char *label);

/**
 * Makes a push button or bitmap button the one that the Enter key presses in its dialog.
 *
 * @param dialogId  not read
 */
ZELGUI_API void ZelGUIButtonSetDefault(int dialogId, int buttonId);

/**
 * Shows a swatch of one of the host's basic colours and the colour's name on a button or toggle, in place of its
 * text.
 *
 * @param color  number of the basic colour, 0 the first; negative: no swatch, and the host's name for none
 */
ZELGUI_API void ZelGUIColoredButtonSetColor(int buttonId, int color);

/** @} */

/** @name Bitmap buttons
 * @{ */

/**
 * Adds a push button that shows a picture at its own size, pixel for pixel.
 *
 * @param bitmapWidth          pixels
 * @param bitmapHeight         pixels
 * @param rgbData              bitmapWidth x bitmapHeight x 3 bytes: rows from top to bottom, pixels from left to
 *                             right, each red, green, blue, without padding. Copied. With NULL, or a width or height
 *                             below 1, the button has no picture.
 * @param useTransparentColor  exactly 1: pixels of the colour that follows are transparent
 * @param callback             called for each click, Space key, and Enter key while it has the focus
 * @return  the button's identifier
 */
ZELGUI_API int ZelGUIBitmapButtonAdd(int parentId, int x, int y, int width, int height, int bitmapWidth,
                                     int bitmapHeight, const unsigned char *rgbData, ZelBoolean useTransparentColor,
                                     unsigned char transparentRed, unsigned char transparentGreen,
                                     unsigned char transparentBlue, ZelGUIVoidCallback callback);

/**
 * Adds a button with a picture, as ZelGUIBitmapButtonAdd does, that stays pressed while it is on. It is off at first;
 * ZelGUIToggleGet and ZelGUIToggleSet read and set it.
 *
 * @param callback  called with 1 when the user has switched it on and 0 when off
 * @return  the toggle's identifier
 */
ZELGUI_API int ZelGUIBitmapToggleAdd(int parentId, int x, int y, int width, int height, int bitmapWidth,
                                     int bitmapHeight, const unsigned char *rgbData, ZelBoolean useTransparentColor,
                                     unsigned char transparentRed, unsigned char transparentGreen,
                                     unsigned char transparentBlue, ZelGUIIntCallback callback);

/** @} */

/** @name Toggles
 * @{ */

/**
 * Adds a check box, unchecked.
 *
 * @param label     Latin-1; white space at both ends is cut off
 * @param callback  called with 1 when the user has checked it and 0 when unchecked
 * @return  the toggle's identifier
 */
ZELGUI_API int ZelGUIToggleAdd(int parentId, int x, int y, int width, int height, const char *label,
                               ZelGUIIntCallback callback);

/** 1 while a toggle or bitmap toggle is checked; neutral 0, which any other button answers too. */
ZELGUI_API ZelBoolean ZelGUIToggleGet(int toggleId);

/**
 * Checks or unchecks a toggle or bitmap toggle without a report.
 *
 * @param value  exactly 1: checked
 */
ZELGUI_API void ZelGUIToggleSet(int toggleId, ZelBoolean value);

/** @} */

/** @name Radio boxes
 * @{ */

/**
 * Adds two to five radio buttons in a column, the first of them checked. Each gets an equal share of the height, a
 * whole number of units; what remains is left empty below.
 *
 * @param label1    Latin-1, white space included, as are the others; NULL counts as empty here and for label2
 * @param label3    NULL leaves this button out; likewise label4 and label5
 * @param callback  called with the position of the button that the user has clicked, checked before or not
 * @return  the identifier of the whole box
 */
ZELGUI_API int ZelGUIRadioBoxAdd(int parentId, int x, int y, int width, int height, const char *label1,
                                 const char *label2, const char *label3, const char *label4, const char *label5,
                                 ZelGUIIntCallback callback);

/** Position of the checked button, from 1; neutral -1. */
ZELGUI_API int ZelGUIRadioBoxGetToggle(int radioBoxId);

/** Checks the button at a position, from 1, without a report; a position that does not exist changes nothing. */
ZELGUI_API void ZelGUIRadioBoxSetToggle(int radioBoxId, int position);

/** @} */

/** @name Option menus
 * A drop-down list, of which the user chooses one item.
 * @{ */

/**
 * Adds an option menu with its first item chosen.
 *
 * @param itemList  Latin-1, items separated by commas; white space at both ends of an item is cut off, and what is
 *                  between two commas, or nothing at all, is an empty item. For an item with a comma use
 *                  ZelGUIOptionMenuAppendItem.
 * @param callback  called with the position of the item that the user has chosen, from 1; not if it was chosen before
 * @return  the menu's identifier
 */
ZELGUI_API int ZelGUIOptionMenuAdd(int parentId, int x, int y, int width, int height, const char *itemList,
                                   ZelGUIIntCallback callback);

/** Position of the chosen item, from 1; 0 if there is none; neutral -1. */
ZELGUI_API int ZelGUIOptionMenuGet(int menuId);

/**
 * Text of the item at a position, from 1.
 *
 * @return  a UTF-8 copy that the caller releases with ZelUtilStringDealloc, empty where there is no such item; NULL
 *          when the host has no memory; neutral NULL
 */
ZELGUI_API char *ZelGUIOptionMenuGetString(int menuId, int position);

/** How many items there are; neutral -1. */
ZELGUI_API int ZelGUIOptionMenuGetItemCount(int menuId);

/** Chooses the item at a position, from 1, without a report; none, where there is no such item. */
ZELGUI_API void ZelGUIOptionMenuSet(int menuId, int position);

/**
 * Chooses the first item with a text, without a report.
 *
 * @param text  UTF-8, compared exactly
 * @return  the item's position, from 1; -1 if there is none, and then the choice stays as it is; neutral -1
 */
ZELGUI_API int ZelGUIOptionMenuSetByString(int menuId, const char *text);

/** Appends one item, UTF-8, as it stands. It becomes the chosen one if it is the only one. */
ZELGUI_API void ZelGUIOptionMenuAppendItem(int menuId, const char *text);

/** Removes all items, without a report. */
ZELGUI_API void ZelGUIOptionMenuDeleteAllItems(int menuId);

/**
 * Removes the item at a position, from 1, without a report; if it was the chosen one, a neighbour is chosen. A
 * position that does not exist changes nothing.
 */
ZELGUI_API void ZelGUIOptionMenuDeleteItemAtPos(int menuId, int position);

/** @} */

/** @name Labels
 * @{ */

/**
 * Adds a line of text. Its width is fixed at what this text needs: a longer one set later is cut off, so make the
 * label with the longest.
 *
 * @param text  UTF-8
 * @return  the label's identifier
 */
ZELGUI_API int ZelGUILabelAdd(int parentId, int x, int y, const char *text);

/** Sets a label's text, UTF-8. The label's width stays. */
ZELGUI_API void ZelGUILabelSetText(int labelId, const char *text);

/**
 * Shows a number in a label.
 *
 * @param format  printf format, Latin-1, with exactly one conversion, of kind e, f, g or a in either case, with any of
 *                the flags "-+ #0'", a width and precision of at most 1000 and without '*', such as "%.3f mm"; any
 *                other format changes nothing. Kind a prints as the toolkit has it, not as C has it. What lies exactly
 *                between two texts is rounded away from zero: 2.5 in "%.0f" is "3", where C writes "2"
 */
ZELGUI_API void ZelGUILabelSetDouble(int labelId, double value, const char *format);

/** Shows the low 32 bits of an integer, as a signed number, in a label: 2^32 + 1 shows "1". */
ZELGUI_API void ZelGUILabelSetLgIndex(int labelId, LgIndex value);

/** @} */

/** @name Text fields
 * A line in which the user types. All of these but ZelGUITextFieldGetSet and ZelGUITextFieldSetSet work on spin text
 * fields too. What the add-on sets is not reported.
 * @{ */

/**
 * Adds an empty text field.
 *
 * @param callback  called with the text at each Return or Enter and each time the field loses the keyboard focus. When
 *                  it rejects the text, the field keeps the focus and the text is selected, for the user to type
 *                  over; the dialog can still be left by Cancel, Close and Escape.
 * @return  the field's identifier; 0 (not ZELGUI_INVALID_ID) without a GUI
 */
ZELGUI_API int ZelGUITextFieldAdd(int parentId, int x, int y, int width, int height, ZelGUITextCallback callback);

/**
 * The text.
 *
 * @return  a UTF-8 copy that the caller releases with ZelUtilStringDealloc; NULL when the host has no memory; neutral
 *          NULL
 */
ZELGUI_API char *ZelGUITextFieldGetString(int fieldId);

/** Sets the text, UTF-8; of more than 32767 characters, the first 32767. */
ZELGUI_API void ZelGUITextFieldSetString(int fieldId, const char *text);

/**
 * Reads the text as a number, with a point for the decimals.
 *
 * @param value  receives the number, 0 if it is none; may be NULL
 * @return  1 if the whole text is a number; neutral 0
 */
ZELGUI_API ZelBoolean ZelGUITextFieldGetDouble(int fieldId, double *value);

/** Sets the text to a number; for the format see ZelGUILabelSetDouble. More than 32767 characters change nothing. */
ZELGUI_API void ZelGUITextFieldSetDouble(int fieldId, double value, const char *format);

/**
 * Reads the text as an integer or as an MX expression. In an integer field "MX", in either case, stands for the
 * maximum of a range that the field does not know; it is read as the offset from the maximum, so "MX" is 0 and "MX-3"
 * is -3. Without "MX", the first digits found anywhere in the text count, and whatever is around them does not: "-5"
 * is 5, "3.9" is 3.
 *
 * @param value  receives the integer, 0 if it is none; may be NULL
 * @return  1 if there is an integer of at most 2147483647, or an MX expression; neutral 0
 */
ZELGUI_API ZelBoolean ZelGUITextFieldGetLgIndex(int fieldId, LgIndex *value);

/**
 * Sets the text to an integer.
 *
 * @param displayAsMX  true: a value of 0 is written "Mx", a negative one with "Mx" before it, such as "Mx-3"
 */
ZELGUI_API void ZelGUITextFieldSetLgIndex(int fieldId, LgIndex value, ZelBoolean displayAsMX);

/**
 * Whether the text is a number from min to max, both included. If not, tells the user why in the host's error dialog,
 * and returns when that was dismissed.
 *
 * @param name  what the message calls the field, Latin-1; NULL: no message
 * @return  1 if it is; neutral 0, without a message
 */
ZELGUI_API ZelBoolean ZelGUITextFieldValidateDouble(int fieldId, const char *name, double min, double max);

/**
 * Whether the text is an integer from min to max, both included, as ZelGUITextFieldGetLgIndex reads it. If not, tells
 * the user why in the host's error dialog, and returns when that was dismissed.
 *
 * @param name     what the message calls the field, Latin-1; NULL: no message
 * @param max      also what "MX" stands for: an MX expression is valid if its offset and max make at least min. The
 *                 sum stays within 64 bits.
 * @param allowMX  0: "MX" is not valid
 * @return  1 if it is; neutral 0, without a message
 */
ZELGUI_API ZelBoolean ZelGUITextFieldValidateLgIndex(int fieldId, const char *name, LgIndex min, LgIndex max,
                                                     ZelBoolean allowMX);

/**
 * Reads the text of a text field as an index set: numbers from 1 with at most 10 digits, ranges "3-8" and ranges with a
 * step "1-9:2", separated by commas or blanks, with or without brackets around all. No text is an empty set.
 *
 * @param set  receives a new set that the caller releases with ZelUtilSetDealloc, NULL if the text is no set; may be
 *             NULL
 * @return  1 if the text is a set; 0 also when the host has no memory; neutral 0
 */
ZELGUI_API ZelBoolean ZelGUITextFieldGetSet(int fieldId, IndexSet *set);

/**
 * Sets the text of a text field to an index set, such as "1-3,5,7-9". Where that takes more than 32767 characters,
 * which it may from some 3,000 gaps on, the field's text stays as it was: a part of it would be another set. A field
 * that ZelGUITextFieldSetString has made empty before the call is still empty then.
 *
 * @param set              stays the caller's; NULL counts as empty
 * @param includeBrackets  true: "[1-3,5,7-9]"
 */
ZELGUI_API void ZelGUITextFieldSetSet(int fieldId, IndexSet set, ZelBoolean includeBrackets);

/** @} */

/** @name Spin text fields
 * A text field with arrows up and down. The functions for text fields read and set its text.
 * @{ */

/**
 * Adds an empty spin text field. A step changes nothing by itself: its callback does, for example with
 * ZelGUISpinTextFieldIncDouble.
 *
 * @param textCallback  as for ZelGUITextFieldAdd
 * @param upCallback    called for each step up, by the arrow, the Up and Page Up keys or the mouse wheel
 * @param downCallback  called for each step down
 * @return  the field's identifier
 */
ZELGUI_API int ZelGUISpinTextFieldAdd(int parentId, int x, int y, int width, int height,
                                      ZelGUITextCallback textCallback, ZelGUIVoidCallback upCallback,
                                      ZelGUIVoidCallback downCallback);

/**
 * Adds an increment to the number in the text, and limits it to min or max.
 *
 * @param format  see ZelGUILabelSetDouble
 * @return  1 if that was done; 0 if the text is no number or the format none for numbers; neutral 0
 */
ZELGUI_API ZelBoolean ZelGUISpinTextFieldIncDouble(int spinId, const char *format, double increment, double min,
                                                   double max);

/**
 * Adds an increment to the integer in the text, as ZelGUITextFieldGetLgIndex reads it, and limits it to min or max. The
 * sum stays within 64 bits. It is written as a plain number, never with "Mx".
 *
 * @return  1 if that was done; 0 if the text is no integer; neutral 0
 */
ZELGUI_API ZelBoolean ZelGUISpinTextFieldIncLgIndex(int spinId, LgIndex increment, LgIndex min, LgIndex max);

/** @} */

/** @name Multi-line text
 * @{ */

/**
 * Adds an empty text of several lines. Too small for scroll bars, it has none.
 *
 * @param readOnly  exactly 1: the user can't change it
 * @param callback  called with the whole text at each change that the user makes; its result is not read
 * @return  the text's identifier
 */
ZELGUI_API int ZelGUITextAdd(int parentId, int x, int y, int width, int height, ZelBoolean readOnly,
                             ZelGUITextCallback callback);

/**
 * The whole text, byte for byte as it was put in, but for what the toolkit takes for a line end: CR LF, CR, U+2029 and
 * the noncharacters U+FDD0 and U+FDD1 are line feeds.
 *
 * @return  a UTF-8 copy that the caller releases with ZelUtilStringDealloc; NULL when the host has no memory; neutral
 *          NULL
 */
ZELGUI_API char *ZelGUITextGetString(int textId);

/** Sets the whole text, UTF-8, without a report. */
ZELGUI_API void ZelGUITextSetString(int textId, const char *text);

/**
 * Appends to the text, UTF-8, without a line break between, without a report. The cursor moves to the end, which is in
 * sight afterwards.
 */
ZELGUI_API void ZelGUITextAppendString(int textId, const char *text);

/**
 * Whether long lines are broken between words; at first they are broken wherever they have to be. That takes time with
 * the square of a line's length: half a second for 100,000 characters without a line break, two for 200,000. Between
 * words, or not broken at all, they take a fortieth.
 */
ZELGUI_API void ZelGUITextAllowWordWrap(int textId, ZelBoolean allow);

/** True: a font of fixed pitch; false: the font of the parent. The text's size stays. */
ZELGUI_API void ZelGUITextUseFixedPitchFont(int textId, ZelBoolean use);

/** @} */

/** @name Lists
 * A scrolling list of texts, of which the user selects one or several. What the add-on changes itself is not reported.
 * A position that does not exist changes nothing. Lists are made for up to a million items; fill long ones with
 * ZelGUIListSetItems, and select many items with ZelGUIListSetSelectedItems.
 * @{ */

/**
 * Adds an empty list. Too small for scroll bars, it has none.
 *
 * @param isMultiSelection  true: the user can select any number of items; false: one
 * @param callback          called at each change of the selection that the user makes. Its argument is not a single
 *                          value but an array of the positions of all selected items, from 1, in ascending order, with
 *                          a 0 behind the last; with nothing selected the 0 is all there is.
 * @return  the list's identifier
 */
ZELGUI_API int ZelGUIListAdd(int parentId, int x, int y, int width, int height, ZelBoolean isMultiSelection,
                             ZelGUIIntCallback callback);

/** Appends one item, UTF-8, as it stands. It is not selected. */
ZELGUI_API void ZelGUIListAppendItem(int listId, const char *text);

/**
 * Replaces all items. Nothing is selected afterwards.
 *
 * @param items  texts in Latin-1, not UTF-8 as in other functions; stays the caller's; NULL counts as empty
 */
ZELGUI_API void ZelGUIListSetItems(int listId, StringList_s *items);

/**
 * Text of the item at a position, from 1.
 *
 * @return  a UTF-8 copy that the caller releases with ZelUtilStringDealloc, empty where there is no such item; NULL
 *          when the host has no memory; neutral NULL
 */
ZELGUI_API char *ZelGUIListGetString(int listId, int position);

/** How many items there are; neutral -2. */
ZELGUI_API int ZelGUIListGetItemCount(int listId);

/** Removes all items. */
ZELGUI_API void ZelGUIListDeleteAllItems(int listId);

/** Removes the item at a position, from 1. The other items stay selected or not, as they are. */
ZELGUI_API void ZelGUIListDeleteItemAtPos(int listId, int position);

/**
 * Sets the text of one item, which stays selected or not, as it is.
 *
 * @param text      UTF-8
 * @param position  from 1; note that it comes last
 */
ZELGUI_API void ZelGUIListReplaceItem(int listId, const char *text, int position);

/** The position that ZelGUIListGetSelectedItems hands out first, from 1; -1 with nothing selected; neutral -1. */
ZELGUI_API int ZelGUIListGetSelectedItem(int listId);

/**
 * Positions of all selected items, from 1, in the order in which they were selected: not sorted. What was selected as a
 * range, by Shift and click for example, is in ascending order; selecting an item that is selected already moves it to
 * the end, and what remains of the range that it was in to just before it.
 *
 * @param selected  receives an array that the caller releases with ZelUtilStringDealloc, through a char * to it; NULL
 *                  with nothing selected and when the host has no memory; may be NULL, and then there is no array
 * @param count     receives the number of selected items; may be NULL
 */
ZELGUI_API void ZelGUIListGetSelectedItems(int listId, int **selected, int *count);

/** Selects nothing. */
ZELGUI_API void ZelGUIListDeselectAllItems(int listId);

/**
 * Selects all items, as one range; also in a list for single selection. If more than 256 ranges were selected, they are
 * given up first: the user's next click with Shift then leaves nothing of them.
 */
ZELGUI_API void ZelGUIListSelectAllItems(int listId);

/**
 * Selects the item at a position, from 1, and scrolls as far as needed to show it. In a list for multi-selection the
 * others stay selected; in one for single selection it is the only one afterwards.
 */
ZELGUI_API void ZelGUIListSetSelectedItem(int listId, int position);

/**
 * Selects items one after the other, without scrolling; what was selected before stays so, also in a list for single
 * selection. Far faster than a call for each item.
 *
 * @param positions  from 1, in any order, also repeated; those that do not exist are passed over; NULL counts as none
 * @param count      how many positions there are; 0 or less: none
 */
ZELGUI_API void ZelGUIListSetSelectedItems(int listId, const int *positions, int count);

/** Scrolls the item at a position, from 1, to the top, or as near to it as the items below allow. */
ZELGUI_API void ZelGUIListSetTopItemNum(int listId, int position);

/** Position of the item at the top, from 1; 0 in an empty list; neutral -1. */
ZELGUI_API int ZelGUIListGetTopItemNum(int listId);

/**
 * How many rows fit into the list: its height, frame included, divided by that of its first row. An empty list answers
 * for the row that a first item would have. Neutral -1.
 */
ZELGUI_API int ZelGUIListGetCapacity(int listId);

/** @} */

/** @name Scales
 * A horizontal slider over whole numbers, with a numeric display of its value above it.
 * @{ */

/**
 * Adds a scale at its minimum. Its display is one line high and stands above the place given, so leave room for it.
 *
 * @param minimum       the least value
 * @param maximum       the greatest; minimum where it is below that, and at most 2147483647 above minimum
 * @param decimals      not read
 * @param valueChanged  called with each value that the user sets
 * @param dragged       called at each step of a drag with the value before that step, and once with the minimum before
 *                      this function returns
 * @return  the scale's identifier
 */
ZELGUI_API int ZelGUIScaleAdd(int parentId, int x, int y, int width, int height, int minimum, int maximum, int decimals,
                              ZelGUIIntCallback valueChanged, ZelGUIIntCallback dragged);

/** The value; neutral -1. */
ZELGUI_API int ZelGUIScaleGetValue(int scaleId);

/** Sets the value, or the limit that it is beyond, without a report. */
ZELGUI_API void ZelGUIScaleSetValue(int scaleId, int value);

/**
 * Sets the limits, first the minimum and then the maximum; each takes the other with it where it has to, and the value
 * too, without a report.
 *
 * @param maximum  at most 2147483647 above minimum
 */
ZELGUI_API void ZelGUIScaleSetLimits(int scaleId, int minimum, int maximum);

/**
 * Shows or hides the numeric display.
 *
 * @param show  exactly 1: shown
 */
ZELGUI_API void ZelGUIScaleShowNumericDisplay(int scaleId, ZelBoolean show);

/** @} */

/** @name Forms
 * A stack of pages, of which one is shown. A page is the parent of the widgets on it.
 * @{ */

/**
 * Adds a form without pages.
 *
 * @return  the form's identifier
 */
ZELGUI_API int ZelGUIFormAdd(int parentId, int x, int y, int width, int height);

/**
 * Adds a page, as large as the form; the first is shown.
 *
 * @return  the page's identifier
 */
ZELGUI_API int ZelGUIFormAddPage(int formId);

/**
 * Shows a page in place of the others of its form. An identifier that is not a form's page changes nothing. A field
 * that loses the focus with its page reports before the call returns.
 */
ZELGUI_API void ZelGUIFormSetCurrentPage(int pageId);

/** @} */

/** @name Tabs
 * Pages under a row of tabs, between which the user switches. A page is the parent of the widgets on it.
 * @{ */

/**
 * Adds a row of tabs without pages. The tabs stand above the place given: the whole reaches 25 pixels higher.
 *
 * @param pageActivated    called with the identifier of the page that the user has switched to
 * @param pageDeactivated  called before that, with the identifier of the page reported before, the first one at first
 * @return  the identifier of the whole
 */
ZELGUI_API int ZelGUITabAdd(int parentId, int x, int y, int width, int height, ZelGUIIntCallback pageActivated,
                            ZelGUIIntCallback pageDeactivated);

/**
 * Adds a page; the first is shown.
 *
 * @param label  text of its tab, UTF-8
 * @return  the page's identifier
 */
ZELGUI_API int ZelGUITabAddPage(int tabId, const char *label);

/** Shows a page, without a report; one of another row of tabs changes nothing. */
ZELGUI_API void ZelGUITabSetCurrentPage(int tabId, int pageId);

/** @} */

/** @name Frames and separators
 * @{ */

/**
 * Adds a box around a group of widgets, behind those that are there already. It can be the parent of widgets, which
 * are then placed from its own corner.
 *
 * @param title  UTF-8; NULL: no title. With a title, an empty one too, the box reaches 10 pixels higher.
 * @return  the frame's identifier
 */
ZELGUI_API int ZelGUIFrameAdd(int parentId, int x, int y, int width, int height, const char *title);

/**
 * Adds a vertical line, one pixel wide.
 *
 * @return  the line's identifier
 */
ZELGUI_API int ZelGUIVertSeparatorAdd(int parentId, int x, int y, int height);

/**
 * Adds a horizontal line, one pixel high.
 *
 * @return  the line's identifier
 */
ZELGUI_API int ZelGUIHorzSeparatorAdd(int parentId, int x, int y, int width);

/** @} */

/** @name Menus
 * A menu bar at the upper edge of a dialog, with menus, sub-menus and their entries. Texts are Latin-1; an ampersand
 * before a letter makes that letter the mnemonic: with Alt for a menu of the bar, by itself in an open menu.
 * @{ */

/**
 * Adds an empty menu bar to a dialog, visible or not. The dialog becomes 30 pixels higher, and everything inside it
 * moves down by 30 pixels within its own parent: a label in a frame ends 60 pixels lower, 30 with the frame and 30
 * within it. A dialog that has this one as its parent counts as inside it. What is added afterwards is not moved: add
 * the bar behind everything that stands in the dialog itself, tabs and forms included, and before what stands on their
 * pages and in frames. In a visible dialog, the bar shows itself.
 *
 * A second bar does all of this again; the first then stays where it has been moved to.
 *
 * @return  the menu bar's identifier
 */
ZELGUI_API int ZelGUIMenuBarAdd(int dialogId);

/**
 * Adds an empty menu at the end of a menu bar, or a sub-menu at the end of a menu.
 *
 * @param parentId  a menu bar or a menu
 * @return  the menu's identifier
 */
ZELGUI_API int ZelGUIMenuAdd(int parentId, const char *label);

/**
 * Adds an item at the end of a menu.
 *
 * @param menuId      a menu; a menu bar takes no items
 * @param statusText  not read
 * @param callback    called each time the item is chosen
 * @return  the item's identifier
 */
ZELGUI_API int ZelGUIMenuAddItem(int menuId, const char *label, const char *statusText, ZelGUIVoidCallback callback);

/**
 * Adds an item with a check mark at the end of a menu, unchecked.
 *
 * @param menuId      a menu; a menu bar takes no items
 * @param statusText  not read
 * @param callback    called with 1 when the item has been checked and 0 when unchecked, by the user or by
 *                    ZelGUIMenuSetToggle outside the callback
 * @return  the item's identifier
 */
ZELGUI_API int ZelGUIMenuAddToggle(int menuId, const char *label, const char *statusText, ZelGUIIntCallback callback);

/** Adds a separating line at the end of a menu. It has no identifier. */
ZELGUI_API void ZelGUIMenuAddSeparator(int menuId);

/** Takes an item or toggle out of its menu for good; its identifier stays valid. Menus can't be taken out. */
ZELGUI_API void ZelGUIMenuDeleteItem(int itemId);

/** Sets the text, Latin-1, of an item or toggle. */
ZELGUI_API void ZelGUIMenuItemSetText(int itemId, const char *text);

/**
 * Checks or unchecks a menu's toggle. Unlike other functions that set a value, this one reports: if the toggle was not
 * like that already, its callback runs before this call returns.
 *
 * @param checked  exactly 1: checked
 */
ZELGUI_API void ZelGUIMenuSetToggle(int itemId, ZelBoolean checked);

/** @} */

/** @name Functions without effect
 * Kept so that add-ons which call them link and run. They read no argument.
 * @{ */

/** Does nothing. */
ZELGUI_API void ZelGUIBlockForModalDialog(ZelBoolean *done);
/** Returns ZELGUI_INVALID_ID: use ZelGUIButtonAdd and ZelGUIColoredButtonSetColor. */
ZELGUI_API int ZelGUIColoredButtonAdd(int parentId, int x, int y, int width, int height, int color,
                                      ZelGUIVoidCallback callback);
/** Does nothing. */
ZELGUI_API void ZelGUIDialogApplySetSensitivity(int dialogId, ZelBoolean sensitive);
/** Does nothing. */
ZELGUI_API void ZelGUIDialogEnableActionArea(int dialogId, ZelBoolean enable);
/** Does nothing. */
ZELGUI_API void ZelGUIDialogSetLaunchPosition(int dialogId, int x, int y);
/** Does nothing. */
ZELGUI_API void ZelGUIDialogSetLaunchPositionX(int dialogId, int anchor, int x, int y);
/** Does nothing. */
ZELGUI_API void ZelGUIDialogSetPositionX(int dialogId, int anchor, int x, int y);
/** Does nothing. */
ZELGUI_API void ZelGUIDialogSetTopmost(int dialogId, ZelBoolean topmost);
/** Does nothing. */
ZELGUI_API void ZelGUILabelSetSet(int labelId, IndexSet set, ZelBoolean includeBrackets);
/** Does nothing. */
ZELGUI_API void ZelGUIOptionMenuReplaceItem(int menuId, const char *text, int position);
/** Does nothing. */
ZELGUI_API void ZelGUISetStatusLine(const char *text);
/** Does nothing. */
ZELGUI_API void ZelGUISidebarActivate(int sidebarId);
/** Does nothing. */
ZELGUI_API void ZelGUISidebarDeactivateAll(void);
/** Returns 0. */
ZELGUI_API ZelBoolean ZelGUISidebarIsActive(int sidebarId);
/** Returns ZELGUI_INVALID_ID. */
ZELGUI_API int ZelGUISidebarRegister(const char *name, ZelGUIVoidCallback activate, ZelGUIVoidCallback deactivate);
/** Does nothing. */
ZELGUI_API void ZelGUITextAddKeyEventCallback(int textId, ZelGUIIntCallback callback);
/** Does nothing. */
ZELGUI_API void ZelGUITextInsertString(int textId, const char *text);
/** Does nothing. */
ZELGUI_API void ZelGUITextSetInsertPos(int textId, int position);
/** Does nothing. */
ZELGUI_API void ZelGUITextSetMaxInsertPos(int textId, int position);
/** Does nothing. */
ZELGUI_API void ZelGUITextSetMinInsertPos(int textId, int position);

/** @} */

#ifdef __cplusplus
}
#endif

#endif
