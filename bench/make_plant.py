#!/usr/bin/env python3
"""Writes a plant file of COUNT pumps to standard output: make_plant.py COUNT

Every pump has an inlet and an exit stream of its own; flows, densities and pressures vary from pump
to pump in a fixed way, so that the same count always gives the same file.
"""
import json
import sys


def pump(number):
    """The streams and the item of one pump."""
    flow = 10_000 + 37 * (number % 1_000)
    density = 45 + number % 17
    feed, product = f"F-{number}", f"D-{number}"
    streams = {
        feed: {"slots": {
            "TEMPERATURE": [80 + number % 90, "DEG F"],
            "PRESSURE": [20 + number % 7, "PSI"],
            "TOTAL MASS FLOW": [flow, "LB/H"],
            "LIQUID MASS FLOW": [flow, "LB/H"],
            "LIQUID MASS DENSITY": [density, "PCF"],
            "LIQUID VISCOSITY": [0.4, "CPOISE"],
            "MOLECULAR WEIGHT": 92.14}},
        product: {"slots": {
            "TEMPERATURE": [81 + number % 90, "DEG F"],
            "PRESSURE": [90 + number % 60, "PSI"],
            "TOTAL MASS FLOW": [flow, "LB/H"],
            "LIQUID MASS FLOW": [flow, "LB/H"],
            "LIQUID MASS DENSITY": [density, "PCF"]}},
    }
    item = {"category": "DCP", "item": "CENTRIF", "inlets": {"INLET": [feed]},
            "exits": {"OUTLET": [product]}}
    return streams, item


def plant(count):
    streams, items = {}, {}
    for number in range(1, count + 1):
        its_streams, items[f"P-{number}"] = pump(number)
        streams.update(its_streams)
    return {"sizewright": 1, "name": f"{count} pumps", "streams": streams, "items": items,
            "criteria": {"*": {"Minimum Design Pressure": [29.7, "PSI"]},
                         "DCP CENTRIF": {"Pump overdesign factor": 1.1}}}


if __name__ == "__main__":
    if len(sys.argv) != 2 or not sys.argv[1].isdigit():
        sys.exit(__doc__)
    json.dump(plant(int(sys.argv[1])), sys.stdout, indent=1)
    sys.stdout.write("\n")
