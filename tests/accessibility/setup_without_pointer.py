#!/usr/bin/python3
"""The first start's set-up done without a pointer, as a screen-reader user does it: controls
found by name and role, pressed by their accessible actions, wheels turned by actions or set as
values, weights typed on the keyboard. With Orca running, each step must be announced by its
title as it comes up. At the end nothing of the set-up is left reachable beneath the tab
interface, and the budget the answers give is stored.
Usage: setup_without_pointer.py APP_NAME DATA_DIR [SPEECH_FILE]"""
import datetime
import sqlite3
import sys

import pyatspi

from atspi_tree import (Speech, act, check, find, find_app, has_state, named, press, type_text, wait_for,
                        wait_until, walk)

SPIN = pyatspi.ROLE_SPIN_BUTTON


def choose(app, name):
    radio = wait_for(app, name, pyatspi.ROLE_RADIO_BUTTON)
    act(radio, "press")
    wait_until(lambda: has_state(radio, pyatspi.STATE_CHECKED), "%r is not reported checked" % name)


def type_weight(app, text):
    """Types into the weight field of the step on top, which has the keyboard as it shows."""
    def field():
        fields = [n for n in walk(app) if n.name == "Kilograms" and n.getRole() == pyatspi.ROLE_TEXT]
        return fields[0] if len(fields) == 1 and has_state(fields[0], pyatspi.STATE_FOCUSED) else None
    entry = wait_until(field, "no single weight field with the keyboard")
    type_text(text)
    wait_until(lambda: entry.queryText().getText(0, -1) == text, "typing %r did not reach the field" % text)


def set_value(wheel, value):
    wheel.queryValue().currentValue = value
    wait_until(lambda: wheel.queryValue().currentValue == value, "%r did not take %s" % (wheel.name, value))


def turn(wheel):
    """Turns a wheel a row, back unless it is on its first."""
    value = wheel.queryValue()
    before = value.currentValue
    act(wheel, "decrease" if before > value.minimumValue else "increase")
    wait_until(lambda: wheel.queryValue().currentValue != before, "%r did not turn" % wheel.name)


def main():
    app = find_app(sys.argv[1])
    speech = Speech(sys.argv[3] if len(sys.argv) > 3 else "")
    speech.expect("Units")
    # Going on without a choice raises an alert, which has the screen to itself until dismissed.
    press(app, "Next")
    alert = wait_until(lambda: find(app, lambda n: n.getRole() == pyatspi.ROLE_ALERT), "no alert")
    check(alert.description == "Select one measuring unit", "the alert reads %r" % alert.description)
    check(find(app, named("Metric")) is None, "the step beneath the alert is reachable")
    press(alert, "Ok")
    choose(app, "Metric")
    for title, weight in (("Starting Weight", "80"), ("Goal Weight", "70")):
        press(app, "Next")
        speech.expect(title)
        type_weight(app, weight)
    press(app, "Next")
    speech.expect("Gender")
    choose(app, "Male")
    press(app, "Next")
    speech.expect("Height")
    set_value(wait_for(app, "Height", SPIN), 175)
    wait_for(app, "175 cm", pyatspi.ROLE_LABEL, what="the height label does not read 175 cm")
    press(app, "Next")
    speech.expect("Birthday")
    set_value(wait_for(app, "Year", SPIN), 1990)
    for wheel in ("Month", "Day"):
        turn(find(app, named(wheel, SPIN)))
    check(find(app, named("Month", SPIN)).description, "the Month wheel gives no month name")
    press(app, "Start my plan")
    speech.expect("Today")

    wait_for(app, "Today", pyatspi.ROLE_PAGE_TAB, what="no tab interface")
    wizard = {"‹ Back", "Previous", "Next", "Start my plan", "Year", "Month", "Day", "Height",
              "Birthday", "When were you born?", "Metric", "Male"}
    left = sorted({n.name for n in walk(app)} & wizard)
    check(not left, "set-up controls reachable beneath the tabs: %s" % left)
    # Metric, male, goal 70 kg, 175 cm, born in 1990: the budget's own formula.
    budget = int(70 * 13.8 + 66.0 + 175 * 5 + (datetime.date.today().year - 1990) * -6.8)
    stored = sqlite3.connect(sys.argv[2] + "/food.db").execute(
        "SELECT calorieBudget FROM profileData WHERE id = 2").fetchall()
    check(stored == [(str(budget),)], "stored budget %r, expected %d" % (stored, budget))
    print("ok: set-up done by names, roles, actions and typing alone; budget %d" % budget)


if __name__ == "__main__":
    main()
