#!/usr/bin/env python3
"""Compares the reports of one item of every road, class and item code, in customary and in metric
units, with those recorded. `golden_test.py --record PROGRAM` records them anew; every number that
changes has to be explained by the change that caused it.
"""
import json
import os
import pathlib
import subprocess
import sys
import tempfile
import unittest

HERE = pathlib.Path(__file__).parent
UNITS = ("customary", "metric")


def reports(program, units):
    """What `size` reports of each item, without the progress."""
    plant = json.loads((HERE / "plant.json").read_text(encoding="utf-8"))
    plant["units"] = units
    with tempfile.NamedTemporaryFile("w", suffix=".json") as file:
        json.dump(plant, file)
        file.flush()
        done = subprocess.run([program, "size", file.name, "--json", "--quiet"],
                              capture_output=True, text=True, check=False)
    if done.returncode != 0:
        sys.exit(f"{done.stdout}\n{done.stderr}")
    kept = ("item", "class", "steps", "messages", "dialogs", "component", "changes")
    return [{key: report[key] for key in kept}
            for report in map(json.loads, done.stdout.splitlines())]


def path(units):
    return HERE / f"{units}.json"


class Golden(unittest.TestCase):
    maxDiff = None

    def test_reports_are_as_recorded(self):
        for units in UNITS:
            recorded = json.loads(path(units).read_text(encoding="utf-8"))
            found = reports(os.environ["SIZEWRIGHT"], units)
            self.assertEqual([report["item"] for report in found],
                             [report["item"] for report in recorded])
            for report, golden in zip(found, recorded):
                with self.subTest(units=units, item=report["item"]):
                    self.assertEqual(report, golden)


if __name__ == "__main__":
    if sys.argv[1:2] == ["--record"]:
        for unit_system in UNITS:
            path(unit_system).write_text(
                "[\n" + ",\n".join(json.dumps(report)
                                   for report in reports(sys.argv[2], unit_system)) + "\n]\n",
                encoding="utf-8")
    else:
        unittest.main()
