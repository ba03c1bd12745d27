"""What the tests of the program share: running it, and a plant to run it on."""
import json
import os
import pathlib
import subprocess
import tempfile
import unittest

PROGRAM = os.environ["SIZEWRIGHT"]
SOURCE = pathlib.Path(os.environ["SIZEWRIGHT_SOURCE"])


def run(*arguments, **options):
    """Runs the program and returns the finished process, its output as text."""
    return subprocess.run([PROGRAM, *map(str, arguments)], capture_output=True, text=True,
                          timeout=60, check=False, **options)


def pump_plant(pumps=1):
    """A plant of pumps that share their streams."""
    return {
        "sizewright": 1,
        "streams": {
            "S1": {"slots": {"TEMPERATURE": [100, "DEG F"], "PRESSURE": [20, "PSI"],
                             "LIQUID MASS FLOW": [10000, "LB/H"],
                             "LIQUID MASS DENSITY": [50, "PCF"]}},
            "S2": {"slots": {"TEMPERATURE": [110, "DEG F"], "PRESSURE": [120, "PSI"]}},
        },
        "items": {f"P-{number}": {"category": "DCP", "item": "CENTRIF",
                                  "inlets": {"INLET": ["S1"]}, "exits": {"OUTLET": ["S2"]}}
                  for number in range(1, pumps + 1)},
    }


class ProgramTest(unittest.TestCase):
    """A test with a folder of its own."""

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)

    def path(self, name):
        return self.folder / name

    def write(self, name, content):
        """Writes a file: bytes and texts as they stand, anything else as JSON."""
        path = self.path(name)
        if isinstance(content, bytes):
            path.write_bytes(content)
        else:
            path.write_text(content if isinstance(content, str) else json.dumps(content),
                            encoding="utf-8")
        return path

    def assert_refused(self, done, *parts):
        """One line on standard error that holds all the parts, nothing else, exit status 2."""
        self.assertEqual(done.returncode, 2, done.stderr)
        self.assertEqual(done.stdout, "")
        self.assertEqual(done.stderr.count("\n"), 1, done.stderr)
        for part in parts:
            self.assertIn(str(part), done.stderr)
