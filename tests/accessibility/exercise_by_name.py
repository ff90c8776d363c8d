#!/usr/bin/python3
"""Books an activity the way a screen reader user does, over AT-SPI: "Add exercise" and "Browse
exercises" from Today, a letter of the index bar pressed (its section's header comes on screen),
the activity pressed by name, the duration wheels turned by increase actions, "Done"; Today and
the database then show the calories burned and the lower calories eaten. Each turn books the total
it shows, on top of the turns before it.
Usage: exercise_by_name.py APP_NAME DATA_DIR"""
import sqlite3
import sys

import pyatspi

from atspi_tree import Failure, act, find, find_app, named, press, run, showing, wait_for, wait_until

PER_HOUR = 704  # "Rugby", as the list pairs it


def turn_up(app, wheel_name, times):
    """Increases a wheel times over, one settled turn after another; its values on the way."""
    wheel = wait_for(app, named(wheel_name, pyatspi.ROLE_SPIN_BUTTON), "no %s wheel" % wheel_name)
    values = []
    for _ in range(times):
        before = wheel.queryValue().currentValue
        act(wheel, "increase")
        wait_until(lambda: wheel.queryValue().currentValue == before + 1,
                   "the %s wheel did not turn from %s" % (wheel_name, before))
        values.append(int(before) + 1)
    return values


def main():
    app = find_app(sys.argv[1])
    press(app, "Add exercise")
    press(app, "Browse exercises")
    wait_for(app, showing("A", pyatspi.ROLE_LABEL), "no header of section A")
    wait_for(app, showing("Aerobics, low impact", pyatspi.ROLE_LIST_ITEM), "no activity listed")
    if find(app, showing("Rugby", pyatspi.ROLE_LIST_ITEM)):
        raise Failure("section R is on screen before its letter is pressed")

    press(app, "R")
    wait_for(app, showing("R", pyatspi.ROLE_LABEL), "pressing R did not bring its header on screen")
    press(app, "Rugby", pyatspi.ROLE_LIST_ITEM)
    wait_for(app, named("Add Exercise", pyatspi.ROLE_HEADING), "no duration screen")
    wait_for(app, showing(str(PER_HOUR), pyatspi.ROLE_LABEL), "the duration screen does not show 704")

    # One hour to start with; 2 hours, then 2 h 1 min and 2 h 2 min, each booked as it shows.
    totals = [hours * PER_HOUR for hours in turn_up(app, "Hours", 1)]
    totals += [2 * PER_HOUR + minutes * (PER_HOUR // 60) for minutes in turn_up(app, "Minutes", 2)]
    wait_for(app, showing(str(totals[-1]), pyatspi.ROLE_LABEL), "the total %d is not shown" % totals[-1])
    booked = sum(totals)

    press(app, "Done")
    wait_for(app, showing("Calories left", pyatspi.ROLE_LABEL), "Done did not lead back to Today")
    for figure in (booked, -booked):
        wait_for(app, showing("%d Cal" % figure, pyatspi.ROLE_LABEL), "Today does not show %d Cal" % figure)
    stored = sqlite3.connect(sys.argv[2] + "/food.db").execute(
        "SELECT calorieConsumed, calorieBurned FROM dailyData WHERE id = 0").fetchall()
    if stored != [(-booked, booked)]:
        raise Failure("day 0 holds %r, expected %d eaten and %d burned" % (stored, -booked, booked))
    print("ok: an activity found by letter and name, timed and booked through AT-SPI: %d Cal" % booked)


if __name__ == "__main__":
    run(main)
