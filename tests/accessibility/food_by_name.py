#!/usr/bin/python3
"""Books a food the way a screen reader user does, over AT-SPI: presses "Add food" and "Search for
food", types into the search field (an editable text named "Search"), presses the food among the
results (list items named by the food), then "Done" on the portion screen, back to Today."""
import sys
import time

import pyatspi

FOOD = "Apple juice, canned or bottled, unsweetened, with added ascorbic acid"


def nodes(node, depth=0):
    """Every node on screen, depth first, with its depth."""
    if node is None or depth > 60 or not node.getState().contains(pyatspi.STATE_SHOWING):
        return
    yield node, depth
    for child in node:
        yield from nodes(child, depth + 1)


def wait_for(app, name, role, timeout=30):
    deadline = time.time() + timeout
    while time.time() < deadline:
        for node, _ in nodes(app):
            if node.name == name and node.getRole() == role:
                return node
        time.sleep(0.2)
    shown = "\n".join("  " * d + "%s %r" % (n.getRoleName(), n.name) for n, d in nodes(app) if n.name)
    raise AssertionError("no %s named %r; on screen:\n%s" % (pyatspi.Role(role), name, shown))


def press(node):
    actions = node.queryAction()
    names = [actions.getName(i).lower() for i in range(actions.nActions)]
    if "press" not in names:
        raise AssertionError("%r offers no press action" % node.name)
    actions.doAction(names.index("press"))


def main():
    deadline = time.time() + 60
    app = None
    while app is None and time.time() < deadline:
        app = next((a for a in pyatspi.Registry.getDesktop(0) if a is not None and a.name == sys.argv[1]), None)
        time.sleep(0.2)
    try:
        if app is None:
            raise AssertionError("the app is not on the accessibility bus")
        press(wait_for(app, "Add food", pyatspi.ROLE_PUSH_BUTTON))
        press(wait_for(app, "Search for food", pyatspi.ROLE_PUSH_BUTTON))
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
        press(wait_for(app, FOOD, pyatspi.ROLE_LIST_ITEM))
        wait_for(app, "Add Food", pyatspi.ROLE_HEADING)
        wait_for(app, "Cancel", pyatspi.ROLE_PUSH_BUTTON)
        press(wait_for(app, "Done", pyatspi.ROLE_PUSH_BUTTON))
        wait_for(app, "Calories left", pyatspi.ROLE_LABEL)
    except AssertionError as failure:
        print("FAIL: %s" % failure)
        return 1
    print("ok: a food searched, chosen and booked through AT-SPI")
    return 0


if __name__ == "__main__":
    sys.exit(main())
