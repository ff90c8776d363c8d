"""The running app's accessibility tree as a screen reader reaches it over AT-SPI: found by
name and role, operated by its actions and values, typed into with key events. Every wait polls
with a generous deadline: the machine running the checks may be busy."""
import sys
import time

import pyatspi


class Failure(Exception):
    pass


def run(check):
    """Runs a check: its Failure is the test's failure, with what went wrong."""
    try:
        check()
    except Failure as failure:
        print("FAIL:", failure)
        sys.exit(1)


def find_app(name, timeout=60):
    deadline = time.time() + timeout
    while time.time() < deadline:
        for app in pyatspi.Registry.getDesktop(0):
            if app is not None and app.name == name:
                return app
        time.sleep(0.2)
    raise Failure("the app is not on the accessibility bus")


def walk(node, depth=0):
    if node is None or depth > 60:
        return
    yield node
    for child in node:
        yield from walk(child, depth + 1)


def find(node, predicate):
    return next((n for n in walk(node) if predicate(n)), None)


def named(name, role=None):
    return lambda n: n.name == name and (role is None or n.getRole() == role)


def showing(name, role):
    return lambda n: n.name == name and n.getRole() == role and has_state(n, pyatspi.STATE_SHOWING)


def of_role(role):
    return lambda n: n.getRole() == role


def has_state(node, state):
    return node.getState().contains(state)


def wait_until(condition, what, timeout=30):
    deadline = time.time() + timeout
    while time.time() < deadline:
        result = condition()
        if result:
            return result
        time.sleep(0.1)
    raise Failure(what)


def wait_for(app, predicate, what, timeout=30):
    return wait_until(lambda: find(app, predicate), what, timeout)


def act(node, *names):
    """Does the first of the node's actions called one of names (case aside)."""
    actions = node.queryAction()
    wanted = [name.lower() for name in names]
    for i in range(actions.nActions):
        if actions.getName(i).lower() in wanted:
            actions.doAction(i)
            return
    raise Failure("%r offers none of the actions %s" % (node.name, names))


def press(app, name, role=pyatspi.ROLE_PUSH_BUTTON):
    act(wait_for(app, named(name, role), "no %s named %r" % (role, name)), "press")


def absent(app, names, what, timeout=30):
    """Waits until no node in the tree, shown or not, bears one of names."""
    wait_until(lambda: not {n.name for n in walk(app)} & names, what, timeout)


def key(symbol):
    pyatspi.Registry.generateKeyboardEvent(symbol, None, pyatspi.KEY_SYM)


def type_text(text):
    pyatspi.Registry.generateKeyboardEvent(0, text, pyatspi.KEY_STRING)


class Speech:
    """What Orca has said, read from the file its speech server writes; empty without Orca."""

    def __init__(self, path):
        self.path = path
        self.heard = 0  # lines already matched: each wait looks only at what came after

    def lines(self):
        with open(self.path, errors="replace") as said:
            return said.read().splitlines()

    def expect(self, *words, what=None):
        """Waits until Orca has said, in one utterance after the last one matched, every word."""
        if not self.path:
            return
        def heard():
            lines = self.lines()
            for i in range(self.heard, len(lines)):
                if all(w in lines[i] for w in words):
                    self.heard = i + 1
                    return True
            return False
        wait_until(heard, what or "Orca never said %s; it said: %s" % (" ".join(words), self.lines()[self.heard:]))


def wider_than_window(app):
    """The shown nodes that report themselves wider than the window: none is, at any scale."""
    frame = find(app, of_role(pyatspi.ROLE_FRAME))
    width = frame.queryComponent().getExtents(pyatspi.DESKTOP_COORDS).width
    extents = ((n, n.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)) for n in walk(frame)
               if n is not frame and has_state(n, pyatspi.STATE_SHOWING))
    return ["%s %r, %d wide" % (n.getRoleName(), n.name, e.width) for n, e in extents if e.width > width]
