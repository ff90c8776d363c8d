#!/usr/bin/python3
"""What a screen reader user hears going through the tab interface: the tabs found by role and
name and pressed through their actions; each screen that a tab selects, a menu presents or a
choice pushes is announced by its title as it comes up (when Orca runs); the portion wheel's blank
row is heard as "none"; and nothing on any screen reports itself wider than the window.
Usage: screens_heard.py APP_NAME DATA_DIR [SPEECH_FILE]"""
import sys

import pyatspi

from atspi_tree import (Failure, Speech, act, find_app, named, press, run, showing, type_text, wait_for,
                        wider_than_window)

# Each tab, a text its screen shows, and the screen's title.
TABS = (("Food", "Search", "Search Food"), ("Exercise", "Aerobics, general", "Exercise"), ("Log", "Log", "Log"),
        ("More", "About Calorie Counter", "More"), ("Today", "Calories eaten", "Today"))


def expect_within_window(app, where):
    wide = wider_than_window(app)
    if wide:
        raise Failure("on %s, wider than the window: %s" % (where, wide))


def main():
    app = find_app(sys.argv[1])
    speech = Speech(sys.argv[3] if len(sys.argv) > 3 else "")
    speech.expect("Today")
    for tab, _, _ in TABS:
        wait_for(app, named(tab, pyatspi.ROLE_PAGE_TAB), "no page tab named %r" % tab)
    for tab, shown, title in TABS:
        act(wait_for(app, named(tab, pyatspi.ROLE_PAGE_TAB), "no %s tab" % tab), "press", "click")
        wait_for(app, named(shown), "pressing %s did not show %r" % (tab, shown))
        speech.expect(title + " panel")
        expect_within_window(app, "the %s tab" % tab)

    # A food chosen from the add menu's search.
    press(app, "Add food")
    press(app, "Search for food")
    field = wait_for(app, showing("Search", pyatspi.ROLE_TEXT), "no search field")
    speech.expect("Search Food panel")
    # Without a window manager the X server gives the keyboard to the window under the pointer.
    box = field.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
    pyatspi.Registry.generateMouseEvent(box.x + box.width // 2, box.y + box.height // 2, "abs")
    field.queryComponent().grabFocus()
    type_text("apple juice, c")
    food = wait_for(app, lambda n: n.getRole() == pyatspi.ROLE_LIST_ITEM and n.name.startswith("Apple juice"),
                    "no apple juice among the results")
    act(food, "press")
    fraction = wait_for(app, showing("Fraction", pyatspi.ROLE_SPIN_BUTTON), "no portion screen")
    speech.expect("Add Food panel")
    expect_within_window(app, "the portion screen")
    fraction.queryComponent().grabFocus()
    speech.expect("Fraction", "none")
    print("ok: tabs and screens named, heard and within the window")


if __name__ == "__main__":
    run(main)
