#!/usr/bin/python3
"""Finds the running app on the AT-SPI bus, as a screen reader does, checks that its tabs are
exposed with their roles and names, presses the "More" tab through its accessible action and
checks that the More screen's heading appears."""
import sys
import time

import pyatspi


def find_app(name, timeout):
    deadline = time.time() + timeout
    while time.time() < deadline:
        desktop = pyatspi.Registry.getDesktop(0)
        for app in desktop:
            if app is not None and app.name == name:
                return app
        time.sleep(0.2)
    return None


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


def named(name, role=None):
    return lambda n: n.name == name and (role is None or n.getRole() == role)


def wait_for(app, predicate, timeout):
    deadline = time.time() + timeout
    while time.time() < deadline:
        found = find(app, predicate)
        if found is not None:
            return found
        time.sleep(0.2)
    return None


def main():
    app = find_app(sys.argv[1], 60)
    if app is None:
        print("FAIL: the app is not on the accessibility bus")
        return 1
    for tab in ("Today", "Food", "Exercise", "Log", "More"):
        if wait_for(app, named(tab, pyatspi.ROLE_PAGE_TAB), 30) is None:
            print("FAIL: no page tab named %r" % tab)
            return 1
    more = find(app, named("More", pyatspi.ROLE_PAGE_TAB))
    actions = more.queryAction()
    press = [i for i in range(actions.nActions) if actions.getName(i) in ("press", "Press", "click")]
    if not press:
        print("FAIL: the More tab offers no press action")
        return 1
    actions.doAction(press[0])
    if wait_for(app, named("About Calorie Counter"), 30) is None:
        print("FAIL: pressing More did not show the More screen")
        return 1
    print("ok: tabs found by name and pressed through AT-SPI")
    return 0


if __name__ == "__main__":
    sys.exit(main())
