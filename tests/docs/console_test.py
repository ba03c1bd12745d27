"""Runs the console blocks of the guides and compares what they print.

A block ```json NAME writes a file. In a block ```console a line "$ sizewright ..." is run, in the
folder of those files, and must print the lines below it. A line that ends in "..." is compared up to
there; a line "..." stands for any lines.
"""
import os
import pathlib
import re
import subprocess
import tempfile
import unittest

PROGRAM = os.environ["SIZEWRIGHT"]
SOURCE = pathlib.Path(os.environ["SIZEWRIGHT_SOURCE"])
BLOCK = re.compile(r"^```(\w+)(?: (\S+))?\n(.*?)^```$", re.MULTILINE | re.DOTALL)


def pattern(lines):
    """The expected lines as a regular expression."""
    parts = []
    for line in lines:
        if line == "...":
            parts.append(r"(?:.*\n)*?")
        elif line.endswith("..."):
            parts.append(re.escape(line[:-3]) + r".*\n")
        else:
            parts.append(re.escape(line) + r"\n")
    return "".join(parts)


def commands(block):
    """Each command of a console block with the lines that it prints."""
    found = []
    for line in block.splitlines():
        if line.startswith("$ "):
            found.append((line[2:].split(), []))
        else:
            found[-1][1].append(line)
    return found


class Guides(unittest.TestCase):
    def run_blocks(self, guide, folder):
        text = (SOURCE / guide).read_text(encoding="utf-8")
        count = 0
        for language, name, body in BLOCK.findall(text):
            if language == "json" and name:
                pathlib.Path(folder, name).write_text(body, encoding="utf-8")
            if language != "console":
                continue
            for (program, *arguments), expected in commands(body):
                if program != "sizewright":
                    continue
                count += 1
                done = subprocess.run([PROGRAM, *arguments], cwd=folder, capture_output=True,
                                      text=True, check=False)
                self.assertRegex(done.stdout, r"\A" + pattern(expected) + r"\Z")
        return count

    def test_the_blocks_of_the_plant_file_guide(self):
        with tempfile.TemporaryDirectory() as folder:
            self.assertEqual(self.run_blocks("docs/plant-file.md", folder), 2)

    def test_the_readme_shows_what_the_demo_prints(self):
        readme = (SOURCE / "README.md").read_text(encoding="utf-8")
        shown = [body for language, _, body in BLOCK.findall(readme) if language == "console"][0]
        for plant in sorted((SOURCE / "examples").glob("*/plant.json")):
            done = subprocess.run([PROGRAM, "size", plant, "--published",
                                   plant.parent / "published.json"],
                                  capture_output=True, text=True, check=False)
            self.assertEqual(done.returncode, 0, plant)
            self.assertIn("\n" + plant.parent.name + "\n", shown)
            if plant.parent.name == "solids":
                self.assertIn(done.stdout, shown)


if __name__ == "__main__":
    unittest.main()
