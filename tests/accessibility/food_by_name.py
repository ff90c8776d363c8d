#!/usr/bin/python3
"""Books a food the way a screen reader user does, over AT-SPI: presses "Add food" and "Search for
food", types into the search field (an editable text named "Search"), walks the results with Tab
and the arrows, presses the food among them (list items named by the food), turns the portion
wheels by their actions, then "Done", back to Today with the amounts booked."""
import sys
import time

import pyatspi

FOOD = "Apple juice, canned or bottled, unsweetened, with added ascorbic acid"


TAB, DOWN = 0xff09, 0xff54  # key symbols
OVERLAY = {"In progress", "Success", "Error"}


def nodes(node, depth=0, every=False):
    """Every node on screen (or in the tree at all), depth first, with its depth."""
    if node is None or depth > 60 or not (every or node.getState().contains(pyatspi.STATE_SHOWING)):
        return
    yield node, depth
    for child in node:
        yield from nodes(child, depth + 1, every)


def wait_for_focus(app, name, timeout=30):
    """Waits until the one focused list item is the row named name, reported selected."""
    deadline = time.time() + timeout
    while time.time() < deadline:
        rows = [n for n, _ in nodes(app) if n.getRole() == pyatspi.ROLE_LIST_ITEM
                and n.getState().contains(pyatspi.STATE_FOCUSED)]
        if [r.name for r in rows] == [name] and rows[0].getState().contains(pyatspi.STATE_SELECTED):
            return
        time.sleep(0.1)
    raise AssertionError("the row with the keyboard is not %r, focused and selected" % name)


def wait_for(app, name, role, timeout=30):
    deadline = time.time() + timeout
    while time.time() < deadline:
        for node, _ in nodes(app):
            if node.name == name and node.getRole() == role:
                return node
        time.sleep(0.2)
    shown = "\n".join("  " * d + "%s %r" % (n.getRoleName(), n.name) for n, d in nodes(app) if n.name)
    raise AssertionError("no %s named %r; on screen:\n%s" % (pyatspi.Role(role), name, shown))


def expect_absent(app, names, timeout=30):
    deadline = time.time() + timeout
    while True:
        left = {n.name for n, _ in nodes(app, every=True)} & names
        if not left:
            return
        if time.time() > deadline:
            raise AssertionError("in the tree though not shown: %s" % sorted(left))
        time.sleep(0.2)


def act(node, action):
    actions = node.queryAction()
    names = [actions.getName(i).lower() for i in range(actions.nActions)]
    if action not in names:
        raise AssertionError("%r offers no %s action" % (node.name, action))
    actions.doAction(names.index(action))


def press(node):
    act(node, "press")


def main():
    deadline = time.time() + 60
    app = None
    while app is None and time.time() < deadline:
        app = next((a for a in pyatspi.Registry.getDesktop(0) if a is not None and a.name == sys.argv[1]), None)
        time.sleep(0.2)
    try:
        if app is None:
            raise AssertionError("the app is not on the accessibility bus")
        # What does not show is not in the tree at all: neither the hidden status overlay, nor
        # Today's texts beneath the add menu.
        press(wait_for(app, "Add food", pyatspi.ROLE_PUSH_BUTTON))
        search = wait_for(app, "Search for food", pyatspi.ROLE_PUSH_BUTTON)
        expect_absent(app, OVERLAY | {"Calories eaten", "Calories left", "Eaten", "Burned", "Add exercise"})
        press(search)
        field = wait_for(app, "Search", pyatspi.ROLE_TEXT)
        if not field.getState().contains(pyatspi.STATE_EDITABLE):
            raise AssertionError("the search field is not editable")
        # Focused as a screen reader moves to it, then typed key by key. (Without a window manager
        # the X server gives the keyboard to the window under the pointer: it rests on the field.)
        box = field.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
        pyatspi.Registry.generateMouseEvent(box.x + box.width // 2, box.y + box.height // 2, "abs")
        field.queryComponent().grabFocus()
        for key in "apple juice, c":
            pyatspi.Registry.generateKeyboardEvent(ord(key), None, pyatspi.KEY_SYM)
            time.sleep(0.05)
        food = wait_for(app, FOOD, pyatspi.ROLE_LIST_ITEM)
        # Tab past Cancel into the results: the row with the keyboard is the focused, selected list
        # item, and the only node of its name; the arrows take the focus from row to row.
        for keys, row in (((TAB, TAB), FOOD), ((DOWN,), FOOD.replace("with added", "without added"))):
            for key in keys:
                pyatspi.Registry.generateKeyboardEvent(key, None, pyatspi.KEY_SYM)
            wait_for_focus(app, row)
        if sum(1 for n, _ in nodes(app, every=True) if n.name == FOOD) != 1:
            raise AssertionError("%r is in the tree more than once" % FOOD)
        press(food)
        wait_for(app, "Add Food", pyatspi.ROLE_HEADING)
        wait_for(app, "Cancel", pyatspi.ROLE_PUSH_BUTTON)
        # The portion wheels, turned by their actions: it opens on one portion (114 Cal, not
        # booked); each turn books the amount it shows, 228 and then 242 (an eighth is 14).
        portions = wait_for(app, "Portions", pyatspi.ROLE_SPIN_BUTTON)
        if portions.queryValue().currentValue != 1:
            raise AssertionError("the portion screen opens on %s portions" % portions.queryValue().currentValue)
        wait_for(app, "114", pyatspi.ROLE_LABEL)
        for wheel, amount in (("Portions", "228"), ("Fraction", "242")):
            act(wait_for(app, wheel, pyatspi.ROLE_SPIN_BUTTON), "increase")
            wait_for(app, amount, pyatspi.ROLE_LABEL)
        press(wait_for(app, "Done", pyatspi.ROLE_PUSH_BUTTON))
        wait_for(app, "470 Cal", pyatspi.ROLE_LABEL)
        expect_absent(app, OVERLAY)  # once Today has dismissed it
    except AssertionError as failure:
        print("FAIL: %s" % failure)
        return 1
    print("ok: a food searched, chosen and booked through AT-SPI")
    return 0


if __name__ == "__main__":
    sys.exit(main())
