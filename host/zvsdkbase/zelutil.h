/* SPDX-License-Identifier: MIT */
#ifndef ZVSDKBASE_ZELUTIL_H
#define ZVSDKBASE_ZELUTIL_H

/**
 * @file
 * What the host offers to its add-ons: memory, messages, index sets, string lists, colours, and the register of
 * add-ons.
 *
 * - Text is UTF-8 and ends with a zero byte.
 * - Whatever a function hands out has to be released through the function named in its comment. Null handles are
 *   harmless everywhere.
 * - Call these functions on the host's GUI thread.
 */

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/** One byte, 0 (false) or 1 (true). */
typedef unsigned char ZelBoolean;

/** A position, count or index of data. */
typedef int64_t LgIndex;

/** A set of positive indices; see ZelUtilSetAlloc. */
typedef struct IndexSet_s *IndexSet;

/** A list of texts; see ZelUtilStringListAlloc. */
typedef struct StringList_s StringList_s;

/**
 * Memory for a string or an array.
 *
 * @param size   bytes, a string's terminator included
 * @param label  what the memory is for; the host's report of unreleased memory names it
 * @return  released with ZelUtilStringDealloc; NULL when there is no memory
 */
char *ZelUtilStringAlloc(size_t size, const char *label);

/**
 * Releases what ZelUtilStringAlloc handed out, be it a string or an array, and sets *string to NULL. A pointer that
 * the host has not handed out, or has taken back already, is left alone.
 */
void ZelUtilStringDealloc(char **string);

/** Shows a message to the user, as plain text in an error dialog, and returns when it was dismissed. */
void ZelUtilDialogErrMsg(const char *message);

/** 1 while the host runs without a user in front of it. */
ZelBoolean ZelUtilMacroIsBatchModeActive(void);

/** Resolution of the screen that the main window is on, in dots per inch. A null pointer is not written. */
void ZelUtilInterfaceGetDotsPerInch(double *horizontal, double *vertical);

/**
 * A new, empty set of indices from 1 upwards.
 *
 * @param showErrors  1: tell the user when there is no memory
 * @return  released with ZelUtilSetDealloc; NULL when there is no memory
 */
IndexSet ZelUtilSetAlloc(ZelBoolean showErrors);

/**
 * Adds one member; one that is in the set already is no error.
 *
 * @param member      1 or greater
 * @param showErrors  1: tell the user when there is no memory
 * @return  1 if the set holds the member now
 */
ZelBoolean ZelUtilSetAddMember(IndexSet set, LgIndex member, ZelBoolean showErrors);

/** The smallest member greater than `after`, where 0 asks for the first; 0 when there are no more. */
LgIndex ZelUtilSetGetNextMember(IndexSet set, LgIndex after);

/**
 * Adds first, first + step, first + 2 * step and so on up to last, at the cost of the runs that they make rather than
 * of the members: a range is one run, however long. Only where it overlaps a run whose step doesn't fit, such as 3 and
 * 2, are members held one by one; more than some millions of these are refused. A host need not have this function;
 * without it, callers add member by member.
 *
 * @param first       1 or greater
 * @param last        first or greater
 * @param step        1 or greater
 * @param showErrors  1: tell the user when there is no memory
 * @return  1 if the set holds all of these members now
 */
ZelBoolean ZelUtilSetAddRange(IndexSet set, LgIndex first, LgIndex last, LgIndex step, ZelBoolean showErrors);

/**
 * The last of the consecutive members that begin with `member`; 0 if that is none itself. A host need not have this
 * function; without it, callers ask for each member.
 */
LgIndex ZelUtilSetGetRunEnd(IndexSet set, LgIndex member);

/** Releases a set and sets *set to NULL. */
void ZelUtilSetDealloc(IndexSet *set);

/**
 * Components, 0 to 255, of a basic colour: 0 black, 1 silver, 2 gray, 3 white, 4 maroon, 5 red, 6 purple, 7 fuchsia,
 * 8 green, 9 lime, 10 olive, 11 yellow, 12 navy, 13 blue, 14 teal, 15 aqua. Any other number is black.
 */
void ZelUtilColorMapGetBasicColorRGB(int color, unsigned char *red, unsigned char *green, unsigned char *blue);

/** A new, empty list, released with ZelUtilStringListDealloc; NULL when there is no memory. */
StringList_s *ZelUtilStringListAlloc(void);

/** Releases a list and sets *list to NULL. */
void ZelUtilStringListDealloc(StringList_s **list);

/** Appends a copy of the string; 0 when there is no memory. */
ZelBoolean ZelUtilStringListAppendString(StringList_s *list, const char *string);

/** How many strings the list holds. */
LgIndex ZelUtilStringListGetCount(StringList_s *list);

/** A copy of one string, 1 being the first, released with ZelUtilStringDealloc; NULL where there is none. */
char *ZelUtilStringListGetString(StringList_s *list, LgIndex position);

/** Called when the user chooses an add-on from the host's menu. */
typedef void (*ZelUtilAddOnCallback)(void);

/**
 * Enters an add-on into the host's "Add-Ons" menu; to be called from the add-on's ZelAddOnInit.
 *
 * @param name     the menu entry's text
 * @param summary  one line that the host shows as the entry's help
 * @param launch   opens the add-on's dialog
 */
void ZelUtilAddOnRegister(const char *name, const char *summary, ZelUtilAddOnCallback launch);

#ifdef __cplusplus
}
#endif

#endif
