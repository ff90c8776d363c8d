#!/usr/bin/python3
"""What a screen reader user hears and does once set up, over AT-SPI: each tab pressed and its
screen announced by title; then a food found by typing its name and an activity by a letter of
the index bar and its name, their wheels turned by increase actions, "Done". Each turn books the
total it shows, on top of the turns before it: Today and the database then hold both bookings.
Usage: screens_and_bookings.py APP_NAME DATA_DIR [SPEECH_FILE]"""
import sqlite3
import sys

import pyatspi

from atspi_tree import (Speech, act, check, find_app, focus_field, press, type_text, wait_for, wait_until,
                        walk)

LABEL, SPIN = pyatspi.ROLE_LABEL, pyatspi.ROLE_SPIN_BUTTON
# Each tab, a text its screen shows, and the screen's title.
TABS = (("Food", "Search", "Search Food"), ("Exercise", "Aerobics, general", "Exercise"), ("Log", "Log", "Log"),
        ("More", "About Calorie Counter", "More"), ("Today", "Calories eaten", "Today"))
FOOD = "Apple juice, canned or bottled, unsweetened, with added ascorbic acid"


def turn_up(app, wheel, shows):
    """Increases a wheel a row; the amount it then shows is booked."""
    act(wait_for(app, wheel, SPIN, shown=True), "increase")
    wait_for(app, str(shows), LABEL, shown=True, what="the turn of %s did not show %s" % (wheel, shows))
    return shows


def main():
    app = find_app(sys.argv[1])
    speech = Speech(sys.argv[3] if len(sys.argv) > 3 else "")
    speech.expect("Today")
    for tab, shown, title in TABS:
        act(wait_for(app, tab, pyatspi.ROLE_PAGE_TAB), "press", "click")
        wait_for(app, shown, what="pressing %s did not show %r" % (tab, shown))
        speech.expect(title + " panel")

    # A food: its name typed, its row pressed. The portion screen opens on one portion
    # (114 Cal, not booked) with the Fraction wheel on its blank row, heard as "none".
    press(app, "Add food")
    press(app, "Search for food")
    focus_field(wait_for(app, "Search", pyatspi.ROLE_TEXT, shown=True))
    speech.expect("Search Food panel")
    type_text("apple juice, c")
    press(app, FOOD, pyatspi.ROLE_LIST_ITEM)
    fraction = wait_for(app, "Fraction", SPIN, shown=True)
    speech.expect("Add Food panel")
    wait_for(app, "114", LABEL, shown=True, what="one portion's 114 is not shown")
    fraction.queryComponent().grabFocus()
    speech.expect("Fraction", "none")
    eaten = turn_up(app, "Portions", 228) + turn_up(app, "Fraction", 242)  # an eighth is 14
    press(app, "Done")
    wait_for(app, "%d Cal" % eaten, LABEL, shown=True, what="Today does not show the %d Cal booked" % eaten)

    # An activity: "Rugby", 704 Cal an hour, brought on screen by its letter.
    press(app, "Add exercise")
    press(app, "Browse exercises")
    press(app, "R")
    act(wait_for(app, "Rugby", pyatspi.ROLE_LIST_ITEM, shown=True), "press")
    wait_for(app, "704", LABEL, shown=True, what="the duration screen does not show 704")
    burned = turn_up(app, "Hours", 2 * 704) + turn_up(app, "Minutes", 2 * 704 + 704 // 60)
    press(app, "Done")
    for figure in (burned, eaten - burned):
        wait_for(app, "%d Cal" % figure, LABEL, shown=True, what="Today does not show %d Cal" % figure)
    stored = sqlite3.connect(sys.argv[2] + "/food.db").execute(
        "SELECT calorieConsumed, calorieBurned FROM dailyData WHERE id = 0").fetchall()
    check(stored == [(eaten - burned, burned)], "day 0 holds %r, expected %d eaten and %d burned"
          % (stored, eaten - burned, burned))
    # Dismissed, the status overlay is gone from the tree, not merely hidden.
    wait_until(lambda: not {n.name for n in walk(app)} & {"In progress", "Success", "Error"},
               "the status overlay stays in the tree once Today has dismissed it")
    print("ok: screens heard; %d Cal eaten and %d Cal burned booked by name" % (eaten, burned))


if __name__ == "__main__":
    main()
