#!/usr/bin/python3
"""The first start's set-up done without a pointer, as a screen-reader user does it: controls
found by name and role, pressed and turned by their accessible actions and values, weights typed
on the keyboard. The alert, the chosen unit, the wheels' values, the height label and the stored
budget are checked on the way, and at the end that nothing of the set-up is left reachable
beneath the tab interface. With Orca running, each screen must be announced by its title as it
comes up.
Usage: setup_without_pointer.py APP_NAME DATA_DIR [SPEECH_FILE]"""
import datetime
import sqlite3
import sys

import pyatspi

from atspi_tree import (Failure, Speech, act, find, find_app, has_state, named, of_role, press, run,
                        type_text, wait_for, wait_until, walk)

SPIN = pyatspi.ROLE_SPIN_BUTTON


def expect(condition, what):
    if not condition:
        raise Failure(what)


def choose(app, name, other):
    """Presses a choice and checks that it, and not the other one, is reported checked."""
    radio = wait_for(app, named(name, pyatspi.ROLE_RADIO_BUTTON), "no radio button %r" % name)
    act(radio, "press")
    wait_until(lambda: has_state(radio, pyatspi.STATE_CHECKED), "%r is not reported checked" % name)
    expect(not has_state(find(app, named(other)), pyatspi.STATE_CHECKED), "%r stays checked" % other)


def type_weight(app, text):
    """Types into the weight field of the step on top, which has the keyboard as it shows."""
    def field():
        fields = [n for n in walk(app) if n.name == "Kilograms" and n.getRole() == pyatspi.ROLE_TEXT]
        return fields[0] if len(fields) == 1 and has_state(fields[0], pyatspi.STATE_FOCUSED) else None
    entry = wait_until(field, "no single weight field with the keyboard")
    expect(entry.queryText().getText(0, -1) == "", "a new step's field is not empty")
    type_text(text)
    wait_until(lambda: entry.queryText().getText(0, -1) == text, "typing %r did not reach the field" % text)


def turn(wheel, action, times):
    for _ in range(times):
        act(wheel, action)


def main():
    app = find_app(sys.argv[1])
    data_dir = sys.argv[2]
    speech = Speech(sys.argv[3] if len(sys.argv) > 3 else "")
    speech.expect("Units")

    # Step 1: going on without a choice raises an alert, found by its role, over nothing else.
    press(app, "Next")
    alert = wait_for(app, of_role(pyatspi.ROLE_ALERT), "no alert")
    expect((alert.name, alert.description) == ("Message", "Select one measuring unit"),
           "the alert reads %r, %r" % (alert.name, alert.description))
    expect(find(app, named("Metric")) is None, "the step beneath the alert is reachable")
    act(find(alert, named("Ok")), "press")
    wait_until(lambda: find(app, of_role(pyatspi.ROLE_ALERT)) is None, "the alert stays")
    choose(app, "Imperial", "Metric")
    choose(app, "Metric", "Imperial")
    press(app, "Next")
    speech.expect("Starting Weight")

    # Steps 2 and 3: the weights, typed.
    type_weight(app, "80")
    press(app, "Next")
    speech.expect("Goal Weight")
    type_weight(app, "70")
    press(app, "Next")
    speech.expect("Gender")

    # Step 4.
    choose(app, "Male", "Female")
    press(app, "Next")
    speech.expect("Height")

    # Step 5: the height wheel, turned from 40 to 175 cm one increase at a time.
    height = wait_for(app, named("Height", SPIN), "no Height wheel")
    value = height.queryValue()
    expect((value.currentValue, value.minimumValue, value.maximumValue) == (40, 40, 300),
           "the Height wheel's value is %s in [%s, %s]" % (value.currentValue, value.minimumValue,
                                                           value.maximumValue))
    expect(find(app, named("cm", SPIN)) is not None, "no cm wheel")
    turn(height, "increase", 135)
    wait_for(app, named("175 cm", pyatspi.ROLE_LABEL), "the height label does not read 175 cm")
    expect(height.queryValue().currentValue == 175, "the Height wheel does not read 175")
    press(app, "Next")
    speech.expect("Birthday")

    # Step 6: the birthday on the date wheels: the year set as a value, month and day turned.
    year = wait_for(app, named("Year", SPIN), "no Year wheel")
    month = find(app, named("Month", SPIN))
    day = find(app, named("Day", SPIN))
    year.queryValue().currentValue = 1990
    wait_until(lambda: year.queryValue().currentValue == 1990, "the Year wheel did not take 1990")
    first_month = month.queryValue().currentValue
    turn(month, "decrease" if first_month > 1 else "increase", 1)
    wait_until(lambda: month.queryValue().currentValue != first_month, "the Month wheel did not turn")
    expect(month.description != "", "the Month wheel gives no month name")
    turn(day, "increase", 1)
    press(app, "Start my plan")
    speech.expect("Today")

    # The tab interface, and nothing of the set-up beneath it.
    wait_for(app, named("Today", pyatspi.ROLE_PAGE_TAB), "no tab interface")
    wizard = {"‹ Back", "Previous", "Next", "Start my plan", "Year", "Month", "Day", "Height",
              "Birthday", "When were you born?", "Metric", "Male"}
    left = sorted({n.name for n in walk(app)} & wizard)
    expect(not left, "set-up controls reachable beneath the tabs: %s" % left)

    # Metric, male, goal 70 kg, 175 cm, born in 1990: the budget's own formula.
    age = datetime.date.today().year - 1990
    budget = int(70 * 13.8 + 66.0 + 175 * 5 + age * -6.8)
    stored = sqlite3.connect(data_dir + "/food.db").execute(
        "SELECT calorieBudget FROM profileData WHERE id = 2").fetchall()
    expect(stored == [(str(budget),)], "stored budget %r, expected %d" % (stored, budget))
    print("ok: set-up done by names, roles, actions and typing alone; budget %d" % budget)


if __name__ == "__main__":
    run(main)
