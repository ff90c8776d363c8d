#!/usr/bin/python3
"""Books a food the way a screen reader user does, over AT-SPI: presses "Add food" and "Search for
food", types into the search field (an editable text named "Search"), walks the results with Tab
and the arrows, presses the food among them (list items named by the food), turns the portion
wheels by their actions, then "Done", back to Today with the amounts booked.
Usage: food_by_name.py APP_NAME DATA_DIR"""
import sys
import time

import pyatspi

from atspi_tree import (Failure, absent, act, find, find_app, has_state, key, named, press, run, showing, wait_for,
                        wait_until, walk)

FOOD = "Apple juice, canned or bottled, unsweetened, with added ascorbic acid"
TAB, DOWN = 0xff09, 0xff54  # key symbols
OVERLAY = {"In progress", "Success", "Error"}


def focused_row(app, name):
    """Waits until the one focused list item on screen is the row named name, reported selected."""
    def check():
        rows = [n for n in walk(app) if n.getRole() == pyatspi.ROLE_LIST_ITEM
                and has_state(n, pyatspi.STATE_SHOWING) and has_state(n, pyatspi.STATE_FOCUSED)]
        return [r.name for r in rows] == [name] and has_state(rows[0], pyatspi.STATE_SELECTED)
    wait_until(check, "the row with the keyboard is not %r, focused and selected" % name)


def main():
    app = find_app(sys.argv[1])
    # What does not show is not in the tree at all: neither the hidden status overlay, nor
    # Today's texts beneath the add menu.
    press(app, "Add food")
    wait_for(app, showing("Search for food", pyatspi.ROLE_PUSH_BUTTON), "no add menu")
    absent(app, OVERLAY | {"Calories eaten", "Calories left", "Eaten", "Burned", "Add exercise"},
           "what the add menu covers is still in the tree")
    press(app, "Search for food")
    field = wait_for(app, showing("Search", pyatspi.ROLE_TEXT), "no search field")
    if not has_state(field, pyatspi.STATE_EDITABLE):
        raise Failure("the search field is not editable")
    # Focused as a screen reader moves to it, then typed key by key. (Without a window manager
    # the X server gives the keyboard to the window under the pointer: it rests on the field.)
    box = field.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
    pyatspi.Registry.generateMouseEvent(box.x + box.width // 2, box.y + box.height // 2, "abs")
    field.queryComponent().grabFocus()
    for letter in "apple juice, c":
        key(ord(letter))
        time.sleep(0.05)
    food = wait_for(app, showing(FOOD, pyatspi.ROLE_LIST_ITEM), "%r is not among the results" % FOOD)
    # Tab past Cancel into the results: the row with the keyboard is the focused, selected list
    # item, and the only node of its name; the arrows take the focus from row to row.
    for keys, row in (((TAB, TAB), FOOD), ((DOWN,), FOOD.replace("with added", "without added"))):
        for symbol in keys:
            key(symbol)
        focused_row(app, row)
    if sum(1 for n in walk(app) if n.name == FOOD) != 1:
        raise Failure("%r is in the tree more than once" % FOOD)
    act(food, "press")
    wait_for(app, showing("Add Food", pyatspi.ROLE_HEADING), "no portion screen")
    # The Fraction wheel opens on its blank row, which reads as blank, never as a number; the
    # unit column beside it shows nothing and is not there at all.
    fraction = wait_for(app, showing("Fraction", pyatspi.ROLE_SPIN_BUTTON), "no Fraction wheel")
    if fraction.queryText().getText(0, -1) != "none":
        raise Failure("the Fraction wheel's blank row reads %r" % fraction.queryText().getText(0, -1))
    if find(app, named("Portions unit")) is not None:
        raise Failure("the empty unit column is in the tree")
    # The portion wheels, turned by their actions: it opens on one portion (114 Cal, not
    # booked); each turn books the amount it shows, 228 and then 242 (an eighth is 14).
    portions = wait_for(app, showing("Portions", pyatspi.ROLE_SPIN_BUTTON), "no Portions wheel")
    if portions.queryValue().currentValue != 1:
        raise Failure("the portion screen opens on %s portions" % portions.queryValue().currentValue)
    wait_for(app, showing("114", pyatspi.ROLE_LABEL), "one portion's 114 is not shown")
    for wheel, amount in (("Portions", "228"), ("Fraction", "242")):
        act(wait_for(app, showing(wheel, pyatspi.ROLE_SPIN_BUTTON), "no %s wheel" % wheel), "increase")
        wait_for(app, showing(amount, pyatspi.ROLE_LABEL), "the turn of %s did not show %s" % (wheel, amount))
    press(app, "Done")
    wait_for(app, showing("470 Cal", pyatspi.ROLE_LABEL), "Today does not show the 470 Cal booked")
    absent(app, OVERLAY, "the status overlay stays in the tree once Today has dismissed it")
    print("ok: a food searched, chosen and booked through AT-SPI")


if __name__ == "__main__":
    run(main)
