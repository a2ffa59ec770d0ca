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
 *    and never exceed 32767 (8192 for a dialog). A position counts from the parent's top left corner, and only if both
 *    x and y are greater than 0; else the widget stays in that corner. A width or height of 0 or less leaves that
 *    dimension to the toolkit. The sizes are fixed when the widget is made and do not follow later changes of the font.
 *
 * 3. Parents. A widget's parent is a dialog, or a page or frame inside one. It lives as long as its parent; there is
 *    no function to destroy it. A widget that is added to a dialog already visible stays hidden until
 *    ZelGUISetVisibility shows it.
 *
 * 4. Positions of items count from 1.
 *
 * 5. Booleans are one byte, 0 or 1. An argument is true when it is not 0, except where a comment says "exactly 1".
 *
 * 6. Text. Arguments are UTF-8 or Latin-1, as the comment says, end with a zero byte and are copied; NULL counts as
 *    empty. An ampersand before a letter makes that letter the mnemonic of a button or toggle; "&&" shows one. Labels
 *    show rich text where the text looks like markup, as the toolkit does. A single-line text is cut at 32767
 *    characters.
 *
 * 7. Memory. Strings and arrays that a function hands out are copies that the caller releases with
 *    ZelUtilStringDealloc, index sets with ZelUtilSetDealloc.
 *
 * 8. Callbacks are called on the GUI thread, one within the other where dialogs are nested. NULL stands for none.
 *
 * 9. Without a GUI, that is in batch mode or when the host's main window is missing or gone, every function does
 *    nothing and returns its neutral value, written "neutral" below; output arguments are left alone. The same holds
 *    for an identifier that is unknown, names another kind of object, or belongs to an object that was destroyed. A
 *    creating function's neutral value is ZELGUI_INVALID_ID, and no function ever lets a C++ exception out.
 *
 * 10. Threads. Call these functions on the host's GUI thread only.
 */

#include <zvsdkbase/zelutil.h>

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
 * only has its init callback called.
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
 * @param format  printf format with exactly one conversion, of kind e, f, g or a in either case, with a width and
 *                precision of at most 1000 and without '*', such as "%.3f mm"; any other format changes nothing
 */
ZELGUI_API void ZelGUILabelSetDouble(int labelId, double value, const char *format);

/** Shows the low 32 bits of an integer, as a signed number, in a label: 2^32 + 1 shows "1". */
ZELGUI_API void ZelGUILabelSetLgIndex(int labelId, LgIndex value);

/** @} */

/** @name Functions without effect
 * Kept so that add-ons which call them link and run. They read no argument; those with a result return the value
 * given.
 * @{ */

ZELGUI_API void ZelGUIBlockForModalDialog(ZelBoolean *done);
/** ZELGUI_INVALID_ID: use ZelGUIButtonAdd and ZelGUIColoredButtonSetColor. */
ZELGUI_API int ZelGUIColoredButtonAdd(int parentId, int x, int y, int width, int height, int color,
                                      ZelGUIVoidCallback callback);
ZELGUI_API void ZelGUIDialogApplySetSensitivity(int dialogId, ZelBoolean sensitive);
ZELGUI_API void ZelGUIDialogEnableActionArea(int dialogId, ZelBoolean enable);
ZELGUI_API void ZelGUIDialogSetLaunchPosition(int dialogId, int x, int y);
ZELGUI_API void ZelGUIDialogSetLaunchPositionX(int dialogId, int anchor, int x, int y);
ZELGUI_API void ZelGUIDialogSetPositionX(int dialogId, int anchor, int x, int y);
ZELGUI_API void ZelGUIDialogSetTopmost(int dialogId, ZelBoolean topmost);
ZELGUI_API void ZelGUILabelSetSet(int labelId, IndexSet set, ZelBoolean includeBrackets);
ZELGUI_API void ZelGUIOptionMenuReplaceItem(int menuId, const char *text, int position);
ZELGUI_API void ZelGUISetStatusLine(const char *text);
ZELGUI_API void ZelGUISidebarActivate(int sidebarId);
ZELGUI_API void ZelGUISidebarDeactivateAll(void);
/** 0. */
ZELGUI_API ZelBoolean ZelGUISidebarIsActive(int sidebarId);
/** ZELGUI_INVALID_ID. */
ZELGUI_API int ZelGUISidebarRegister(const char *name, ZelGUIVoidCallback activate, ZelGUIVoidCallback deactivate);
ZELGUI_API void ZelGUITextAddKeyEventCallback(int textId, ZelGUIIntCallback callback);
ZELGUI_API void ZelGUITextInsertString(int textId, const char *text);
ZELGUI_API void ZelGUITextSetInsertPos(int textId, int position);
ZELGUI_API void ZelGUITextSetMaxInsertPos(int textId, int position);
ZELGUI_API void ZelGUITextSetMinInsertPos(int textId, int position);

/** @} */

#ifdef __cplusplus
}
#endif

#endif
