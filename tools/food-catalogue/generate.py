#!/usr/bin/env python3
"""Build the shipped food catalogue (food.db) from the USDA SR24 data jar.

The jar holds one XML file per food: <food uid= name=> with <measure amount=
name= grams=> household measures and <nutrient name="Energy" amount=> in kcal
per 100 g. The application reads every table with `select *` and takes columns
by position, so the table layouts below must not change.
"""

import argparse
import os
import re
import sqlite3
import xml.etree.ElementTree as ET
import zipfile
from decimal import Decimal, ROUND_HALF_UP

SCHEMA = (
    "CREATE TABLE profileData (id INTEGER, calorieBudget TEXT, startingDate TEXT)",
    "CREATE TABLE food (id INTEGER PRIMARY KEY, calories INTEGER NOT NULL,"
    " unit TEXT NOT NULL, name TEXT NOT NULL)",
    # No key on id: the set-up wizard may insert the same day twice and both
    # rows must survive. INTEGER affinity lets the app match id against "5".
    "CREATE TABLE dailyData (id INTEGER, date TEXT, calorieConsumed INTEGER,"
    " calorieBurned INTEGER)",
)


def tidy(text):
    # A few SR24 descriptions carry stray leading, doubled or pre-comma
    # spaces; they would sort ahead of everything and look broken in a list.
    return re.sub(r"\s+", " ", text).strip().replace(" ,", ",")


def plain(number):
    """Decimal as written for people: 1.0 -> '1', 14.20 -> '14.2'."""
    return format(number.normalize(), "f")


def read_food(data):
    """Return (ndb, name, kcal_per_100g or None, first measure or None)."""
    root = ET.fromstring(data)
    energy = None
    for nutrient in root.iter("nutrient"):
        if nutrient.get("name") == "Energy":
            energy = Decimal(nutrient.get("amount"))
            break
    measure = root.find("measure")
    if measure is not None:
        measure = (Decimal(measure.get("amount")), tidy(measure.get("name")),
                   Decimal(measure.get("grams")))
    return root.get("uid"), tidy(root.get("name")), energy, measure


def portion(energy, measure):
    """(kcal, unit) for the food's first household measure, or per 100 g."""
    if measure is None:
        kcal, unit = energy, "100 g"
    else:
        amount, description, grams = measure
        kcal = energy * grams / 100
        unit = f"{plain(amount)} {description} ({plain(grams)} g)"
    # Half-up on the exact decimal value, so x.5 never depends on float noise.
    return int(kcal.quantize(Decimal(1), rounding=ROUND_HALF_UP)), unit


def load(jar_path):
    foods = []
    with zipfile.ZipFile(jar_path) as jar:
        for entry in jar.namelist():
            if entry.endswith(".xml"):
                foods.append(read_food(jar.read(entry)))
    foods.sort(key=lambda food: food[0])  # NDB number decides duplicates

    rows, seen = [], set()
    no_energy = zero_kcal = duplicate = 0
    for _ndb, name, energy, measure in foods:
        if energy is None:
            no_energy += 1
            continue
        kcal, unit = portion(energy, measure)
        if kcal <= 0:
            zero_kcal += 1
            continue
        # Deduplicate only among usable foods, so a 0 kcal twin with a lower
        # NDB number cannot knock out a real one.
        if name in seen:
            duplicate += 1
            continue
        seen.add(name)
        rows.append((kcal, unit, name))

    rows.sort(key=lambda row: (row[2].lower(), row[2]))
    stats = {"read": len(foods), "no energy value": no_energy,
             "portion rounds to 0 kcal": zero_kcal,
             "repeated name": duplicate}
    return rows, stats


def write(out_path, rows):
    if os.path.exists(out_path):
        os.remove(out_path)
    db = sqlite3.connect(out_path)
    with db:
        for statement in SCHEMA:
            db.execute(statement)
        # The app skips the first row of profileData and food when reading.
        db.executemany("INSERT INTO profileData VALUES (?, '0', '')",
                       [(1,), (2,)])
        db.execute("INSERT INTO food VALUES (0, 0, '', '')")
        db.executemany("INSERT INTO food VALUES (?, ?, ?, ?)",
                       [(i, *row) for i, row in enumerate(rows, start=1)])
        db.execute("INSERT INTO dailyData VALUES (-1, '', 0, 0)")
    db.close()


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--jar", required=True, help="path to usda_sr24.jar")
    parser.add_argument("--out", required=True, help="food.db to (re)create")
    args = parser.parse_args()

    rows, stats = load(args.jar)
    write(args.out, rows)
    left_out = sum(v for k, v in stats.items() if k != "read")
    print(f"read {stats['read']} foods, wrote {len(rows)}, left out {left_out}:",
          ", ".join(f"{v} {k}" for k, v in stats.items() if k != "read"))


if __name__ == "__main__":
    main()
