# SPDX-License-Identifier: MIT
"""Prints role and name of every control in a dialog, as assistive technology sees them.

Usage: accessible.py TITLE
"""
import sys

import pyatspi

CONTROLS = {
    pyatspi.ROLE_CHECK_BOX,
    pyatspi.ROLE_COMBO_BOX,
    pyatspi.ROLE_LIST,
    pyatspi.ROLE_MENU_ITEM,
    pyatspi.ROLE_PAGE_TAB,
    pyatspi.ROLE_PUSH_BUTTON,
    pyatspi.ROLE_RADIO_BUTTON,
    pyatspi.ROLE_SLIDER,
    pyatspi.ROLE_SPIN_BUTTON,
    pyatspi.ROLE_TEXT,
}


def name_of(accessible):
    if accessible.getRole() != pyatspi.ROLE_COMBO_BOX:
        return accessible.name
    # Its name is its value.
    for relation in accessible.getRelationSet():
        if relation.getRelationType() == pyatspi.RELATION_LABELLED_BY:
            return relation.getTarget(0).name
    return ""


def print_controls(accessible):
    is_control = accessible.getRole() in CONTROLS
    if is_control:
        print(f"{accessible.getRoleName()}: {name_of(accessible)}")
    # What is inside belongs to the control: the field of a spin button, the items of a combo box.
    if is_control and accessible.getRole() != pyatspi.ROLE_MENU_ITEM:
        return
    for child in accessible:
        # The toolkit's buttons that move a row of tabs aren't the dialog's.
        if accessible.getRole() != pyatspi.ROLE_PAGE_TAB_LIST or child.getRole() == pyatspi.ROLE_PAGE_TAB:
            print_controls(child)


windows = [window for application in pyatspi.Registry.getDesktop(0) for window in application]
for found in windows:
    if found.name == sys.argv[1]:
        print_controls(found)
