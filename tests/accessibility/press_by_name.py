#!/usr/bin/python3
"""Finds the running app on the AT-SPI bus, as a screen reader does, checks that its tabs are
exposed with their roles and names, presses the "More" tab through its accessible action and
checks that the More screen's heading appears."""
import sys

import pyatspi

from atspi_tree import act, find_app, named, run, wait_for


def main():
    app = find_app(sys.argv[1])
    for tab in ("Today", "Food", "Exercise", "Log", "More"):
        wait_for(app, named(tab, pyatspi.ROLE_PAGE_TAB), "no page tab named %r" % tab)
    act(wait_for(app, named("More", pyatspi.ROLE_PAGE_TAB), "no More tab"), "press", "click")
    wait_for(app, named("About Calorie Counter"), "pressing More did not show the More screen")
    print("ok: tabs found by name and pressed through AT-SPI")


if __name__ == "__main__":
    run(main)
