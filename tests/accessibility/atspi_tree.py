"""The running app's accessibility tree as a screen reader reaches it over AT-SPI: found by
name and role, operated by its actions and values, typed into with key events. Every wait polls
with a generous deadline: the machine running the checks may be busy."""
import sys
import time

import pyatspi


def check(condition, what):
    if not condition:
        sys.exit("FAIL: " + what)


def wait_until(condition, what, timeout=30):
    deadline = time.time() + timeout
    while time.time() < deadline:
        result = condition()
        if result:
            return result
        time.sleep(0.1)
    check(False, what)


def find_app(name):
    return wait_until(lambda: next((a for a in pyatspi.Registry.getDesktop(0) if a is not None and a.name == name),
                                   None), "the app is not on the accessibility bus", timeout=60)


def walk(node, depth=0):
    if node is None or depth > 60:
        return
    yield node
    for child in node:
        yield from walk(child, depth + 1)


def has_state(node, state):
    return node.getState().contains(state)


def named(name, role=None, shown=False):
    return lambda n: (n.name == name and (role is None or n.getRole() == role)
                      and (not shown or has_state(n, pyatspi.STATE_SHOWING)))


def find(node, predicate):
    return next((n for n in walk(node) if predicate(n)), None)


def wait_for(app, name, role=None, shown=False, what=None):
    return wait_until(lambda: find(app, named(name, role, shown)), what or "no %s named %r" % (role, name))


def act(node, *names):
    """Does the first of the node's actions called one of names (case aside)."""
    actions = node.queryAction()
    wanted = [name.lower() for name in names]
    i = next((i for i in range(actions.nActions) if actions.getName(i).lower() in wanted), None)
    check(i is not None, "%r offers none of the actions %s" % (node.name, names))
    actions.doAction(i)


def press(app, name, role=pyatspi.ROLE_PUSH_BUTTON):
    act(wait_for(app, name, role), "press")


def type_text(text):
    pyatspi.Registry.generateKeyboardEvent(0, text, pyatspi.KEY_STRING)


def focus_field(field):
    """Gives a text field the keyboard. Without a window manager the X server gives it to the
    window under the pointer: the pointer rests on the field."""
    box = field.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
    pyatspi.Registry.generateMouseEvent(box.x + box.width // 2, box.y + box.height // 2, "abs")
    field.queryComponent().grabFocus()


class Speech:
    """What Orca has said, read from the file its speech server writes; empty without Orca."""

    def __init__(self, path):
        self.path = path
        self.heard = 0  # lines already matched: each wait looks only at what came after

    def lines(self):
        with open(self.path, errors="replace") as said:
            return said.read().splitlines()

    def expect(self, *words):
        """Waits until Orca has said, in one utterance after the last one matched, every word."""
        if not self.path:
            return
        def heard():
            lines = self.lines()
            i = next((i for i in range(self.heard, len(lines)) if all(w in lines[i] for w in words)), None)
            if i is not None:
                self.heard = i + 1
            return i is not None
        wait_until(heard, "Orca never said %s" % " ".join(words))  # atspi_check shows all it said
