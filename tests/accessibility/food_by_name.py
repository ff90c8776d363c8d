#!/usr/bin/python3
"""Books a food the way a screen reader user does, over AT-SPI: presses "Add food" and "Search for
food", types into the search field (an editable text named "Search"), finds the food among the
results (list items named by the food, each pressable), presses it, and presses "Done" on the
portion screen, which leads back to Today."""
import sys
import time

import pyatspi

FOOD = "Apple juice, canned or bottled, unsweetened, with added ascorbic acid"


def find_app(name, timeout):
    deadline = time.time() + timeout
    while time.time() < deadline:
        for app in pyatspi.Registry.getDesktop(0):
            if app is not None and app.name == name:
                return app
        time.sleep(0.2)
    return None


def showing(node):
    return node.getState().contains(pyatspi.STATE_SHOWING)


def find(node, predicate, depth=0):
    if node is None or depth > 60:
        return None
    if predicate(node):
        return node
    for child in node:
        found = find(child, predicate, depth + 1)
        if found is not None:
            return found
    return None


def wait_for(app, name, role, timeout=30):
    deadline = time.time() + timeout
    while time.time() < deadline:
        found = find(app, lambda n: n.name == name and n.getRole() == role and showing(n))
        if found is not None:
            return found
        time.sleep(0.2)
    raise AssertionError("no %s named %r on screen" % (pyatspi.Role(role), name))


def describe(node, depth=0):
    """What is on screen, for a failure's message."""
    lines = []
    if node is None or depth > 60:
        return lines
    if showing(node) and (node.name or depth < 2):
        lines.append("%s%s %r" % ("  " * depth, node.getRoleName(), node.name))
    for child in node:
        lines += describe(child, depth + 1)
    return lines


def press(node):
    actions = node.queryAction()
    for i in range(actions.nActions):
        if actions.getName(i).lower() in ("press", "click"):
            actions.doAction(i)
            return
    raise AssertionError("%r offers no press action" % node.name)


def main():
    app = find_app(sys.argv[1], 60)
    if app is None:
        print("FAIL: the app is not on the accessibility bus")
        return 1
    try:
        press(wait_for(app, "Add food", pyatspi.ROLE_PUSH_BUTTON))
        press(wait_for(app, "Search for food", pyatspi.ROLE_PUSH_BUTTON))
        field = wait_for(app, "Search", pyatspi.ROLE_TEXT)
        if not field.getState().contains(pyatspi.STATE_EDITABLE):
            raise AssertionError("the search field is not editable")
        # Focused as a screen reader moves to it, then typed on the keyboard, key by key.
        # (Without a window manager the X server gives the keyboard to the window under the
        # pointer: the pointer rests on the field, nothing is clicked.)
        extents = field.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
        pyatspi.Registry.generateMouseEvent(extents.x + extents.width // 2,
                                            extents.y + extents.height // 2, "abs")
        field.queryComponent().grabFocus()
        for key in "apple juice, c":
            pyatspi.Registry.generateKeyboardEvent(ord(key), None, pyatspi.KEY_SYM)
            time.sleep(0.05)
        press(wait_for(app, FOOD, pyatspi.ROLE_LIST_ITEM))
        wait_for(app, "Add Food", pyatspi.ROLE_HEADING)
        wait_for(app, "Cancel", pyatspi.ROLE_PUSH_BUTTON)
        press(wait_for(app, "Done", pyatspi.ROLE_PUSH_BUTTON))
        wait_for(app, "Calories left", pyatspi.ROLE_LABEL)
    except AssertionError as failure:
        print("FAIL: %s; on screen:\n%s" % (failure, "\n".join(describe(app))))
        return 1
    print("ok: a food searched, chosen and booked through AT-SPI")
    return 0


if __name__ == "__main__":
    sys.exit(main())
