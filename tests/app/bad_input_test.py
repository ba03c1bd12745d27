"""Input that is not as it should be: one line that says where, exit status 2, nothing written."""
import json
import os
import shutil
import subprocess
import unittest

from program import PROGRAM, ProgramTest, pump_plant, run


class BadPlant(ProgramTest):
    def refuse(self, content, *parts):
        plant = self.write("plant.json", content)
        for command in [("check", plant), ("size", plant), ("drive", plant, "P-1"),
                        ("import", plant, self.path("plant.szw"))]:
            with self.subTest(command=command[0]):
                self.assert_refused(run(*command), plant, *parts)
        self.assertEqual([path.name for path in self.folder.iterdir()], ["plant.json"])

    def changed(self, change):
        plant = pump_plant()
        change(plant)
        return plant

    def test_not_json(self):
        self.refuse("{]", "line 1")
        self.refuse("", "line 1")
        self.refuse(b"\xff\xfe\x00", "line 1")

    def test_wrong_type(self):
        self.refuse(self.changed(lambda plant: plant["items"]["P-1"].update(exits=7)),
                    "items/P-1/exits: expected an object")

    def test_unknown_key(self):
        self.refuse(self.changed(lambda plant: plant.update(colour="red")), "colour: unknown key")

    def test_missing_block(self):
        self.refuse(self.changed(lambda plant: plant["items"]["P-1"].update(block="B")),
                    "items/P-1/block")

    def test_unknown_class(self):
        self.refuse(self.changed(lambda plant: plant["items"]["P-1"].update({"class": "CNoObj"})),
                    "items/P-1/class")

    def test_numbers_that_are_none(self):
        text = json.dumps(pump_plant())
        for number in ["NaN", "Infinity", "-Infinity"]:
            self.refuse(text.replace("[20,", f"[{number},"), "line 1")
        self.refuse(text.replace("[20,", "[1e999,"), "streams/S1/slots/PRESSURE")

    def test_deep_nesting(self):
        self.refuse('{"sizewright": 1, "x-deep": ' + "[" * 100_000 + "]" * 100_000 + "}", "x-deep")

    def test_duplicate_names_in_other_case(self):
        text = json.dumps(pump_plant())
        self.refuse(text.replace('"S2": {', '"s1": {'), "streams/s1: duplicate key")

    def test_cyclic_inheritance(self):
        self.refuse(self.changed(lambda plant: plant.update(blocks={
            "A": {"inherits": "B", "slots": {}}, "B": {"inherits": "A", "slots": {}}})),
            "blocks/")

    def test_a_text_of_ten_megabytes_is_only_a_text(self):
        plant = self.changed(
            lambda plant: plant["items"]["P-1"].update(component={"CpFluidHead": "x" * 10_000_000}))
        self.assertEqual(run("size", self.write("plant.json", plant), "--quiet").returncode, 0)

    def test_a_stream_that_does_not_exist_is_no_fault(self):
        plant = self.changed(lambda plant: plant["items"]["P-1"]["exits"].update(OUTLET=["none"]))
        self.assertEqual(run("check", self.write("plant.json", plant)).returncode, 0)


class BadFiles(ProgramTest):
    def test_a_directory(self):
        self.assert_refused(run("size", self.folder), self.folder, "directory")

    def test_a_file_that_is_not_there(self):
        self.assert_refused(run("size", self.path("none.json")), "none.json", "no such file")

    def test_no_permission(self):
        plant = self.write("plant.json", pump_plant())
        plant.chmod(0)
        self.folder.chmod(0o755)
        program = shutil.copy(PROGRAM, self.folder)
        nobody = {"user": 65534} if os.geteuid() == 0 else {}  # root may read everything
        done = subprocess.run([program, "size", plant], capture_output=True, text=True, check=False,
                              **nobody)
        self.assert_refused(done, plant, "Permission denied")

    def test_a_full_disk(self):
        plant = self.write("plant.json", pump_plant())
        for option in ["--out", "--save", "--report"]:
            with self.subTest(option=option):
                done = run("size", plant, "--quiet", option, "/dev/full")
                if option == "--out":
                    done = run("size", plant, option, "/dev/full")
                self.assertEqual(done.returncode, 2)
                self.assertIn("/dev/full: cannot be written: No space left on device", done.stderr)

    def test_full_standard_output(self):
        plant = self.write("plant.json", pump_plant())
        with open("/dev/full", "w", encoding="utf-8") as full:
            done = subprocess.run([PROGRAM, "size", plant, "--json"], stdout=full,
                                  stderr=subprocess.PIPE, text=True, check=False)
        self.assertEqual(done.returncode, 2)
        self.assertIn("standard output: cannot be written", done.stderr)

    def test_a_place_that_cannot_be_written(self):
        plant = self.write("plant.json", pump_plant())
        self.assert_refused(run("size", plant, "--quiet", "--save", self.path("none/out.json")),
                            "none/out.json: cannot be written")
        self.assert_refused(run("size", plant, "--quiet", "--save", self.folder), "is a directory")

    def test_a_fault_leaves_the_file_before_as_it_was(self):
        plant = self.write("plant.json", "{")
        before = self.write("before", "as it was")
        run("size", plant, "--save", before)
        self.assertEqual(before.read_text(), "as it was")

    def test_published_figures_that_are_none(self):
        plant = self.write("plant.json", pump_plant())
        for content in ["[", {"items": 3}, {"items": {"P-1": 3}},
                        {"items": {"P-1": {"CpFluidHead": {"value": 3}}}}]:
            published = self.write("published.json", content)
            self.assert_refused(run("size", plant, "--published", published), published)

    def test_an_item_that_is_not_there(self):
        plant = self.write("plant.json", pump_plant())
        self.assert_refused(run("size", plant, "--item", "P-9"), "items/P-9")
        self.assert_refused(run("drive", plant, "P-9"), "items/P-9")


if __name__ == "__main__":
    unittest.main()
