"""sizewright size, check, new, --help and --version."""
import json
import unittest

from program import ProgramTest, pump_plant, run

HEAD = 100 * 2.31 / (50 / 62.43)  # FEET


class Size(ProgramTest):
    def setUp(self):
        super().setUp()
        self.plant = self.write("plant.json", pump_plant(2))

    def test_prints_a_table_with_units(self):
        done = run("size", self.plant)
        self.assertEqual(done.returncode, 0)
        lines = [line.split() for line in done.stdout.splitlines()]
        self.assertEqual(lines[0], ["Item", "Result", "Value", "Unit"])
        self.assertIn(["P-1", "CPumpObj", "CENTRIF"], lines)
        self.assertIn(["CpFluidHead", f"{HEAD:.1f}", "FEET"], lines)

    def test_prints_a_report_a_line(self):
        done = run("size", self.plant, "--json")
        reports = [json.loads(line) for line in done.stdout.splitlines()]
        self.assertEqual([report["item"] for report in reports], ["P-1", "P-2"])
        for report in reports:
            value, unit = report["component"]["CpFluidHead"]
            self.assertAlmostEqual(value, HEAD, places=9)
            self.assertEqual(unit, "FEET")
            self.assertEqual(report["steps"], [{"op": "Size", "result": 1},
                                               {"op": "Commit", "result": 1},
                                               {"op": "UpdateSizeInfo", "result": 1}])

    def test_sizes_the_named_items_in_the_order_of_the_plant(self):
        plant = self.write("three.json", pump_plant(3))
        done = run("size", plant, "--json", "--item", "p-3", "--item", "P-1")
        self.assertEqual([json.loads(line)["item"] for line in done.stdout.splitlines()],
                         ["P-1", "P-3"])

    def test_an_item_that_is_not_sized_gives_status_1_and_says_why(self):
        plant = pump_plant(2)
        del plant["items"]["P-1"]["inlets"]
        done = run("size", self.write("bad.json", plant))
        self.assertEqual(done.returncode, 1)
        self.assertIn("P-1   CPumpObj CENTRIF: not sized", done.stdout)
        self.assertIn("CpFluidHead", done.stdout)  # of the other one

    def test_a_class_that_is_not_available_counts_as_not_sized(self):
        plant = pump_plant(1)
        plant["items"]["H-1"] = {"category": "DHE", "item": "FLOAT HEAD"}
        done = run("size", self.write("exchanger.json", plant))
        self.assertEqual(done.returncode, 1)
        self.assertIn("items/H-1: the equipment class CHxObj is not available yet", done.stdout)

    def test_messages_stand_under_their_item(self):
        plant = pump_plant(1)
        plant["streams"]["S2"]["slots"]["PRESSURE"] = [20, "PSI"]
        done = run("size", self.write("flat.json", plant))
        self.assertIn("\nP-1\n  warning: ------Please check inlet and exit pressure "
                      "conditions.------\n", done.stdout)
        self.assertNotIn("remark:", done.stdout)
        verbose = run("size", self.path("flat.json"), "--verbose")
        self.assertIn("  remark: Driver Power is not specified by the user", verbose.stdout)

    def test_writes_to_files(self):
        done = run("size", self.plant, "--out", self.path("table"), "--save", self.path("sized"),
                   "--report", self.path("reports"), "--quiet")
        self.assertEqual((done.returncode, done.stdout, done.stderr), (0, "", ""))
        sized = json.loads(self.path("sized").read_text())
        self.assertAlmostEqual(sized["items"]["P-2"]["component"]["CpFluidHead"][0], HEAD, places=9)
        self.assertEqual(len(self.path("reports").read_text().splitlines()), 2)
        self.assertEqual(sorted(path.name for path in self.folder.iterdir()),
                         ["plant.json", "reports", "sized", "table"])

    def test_compares_with_published_figures_in_the_same_unit(self):
        published = self.write("published.json", {"items": {"P-1": {
            "CpFluidHead": [HEAD * 0.3048 / 2, "M"], "CpDriverPower": [12, "KW"]}}})
        done = run("size", self.plant, "--published", published)
        lines = [line.split() for line in done.stdout.splitlines()]
        self.assertEqual(lines[0][-2:], ["Published", "Difference"])
        self.assertIn(["CpFluidHead", f"{HEAD:.1f}", "FEET", f"{HEAD / 2:.1f}", "+100", "%"], lines)
        self.assertIn(["CpDriverPower", "12.00"], lines)

    def test_tells_its_progress_line_by_line_without_a_terminal(self):
        done = run("size", self.plant)
        self.assertEqual(done.stderr, "1 of 2 items sized\n2 of 2 items sized\n")
        self.assertEqual(run("size", self.plant, "--quiet").stderr, "")

    def test_sizing_a_sized_plant_again_gives_the_same(self):
        run("size", self.plant, "--save", self.path("once"))
        run("size", self.path("once"), "--save", self.path("twice"))
        self.assertEqual(self.path("once").read_text(), self.path("twice").read_text())


class Others(ProgramTest):
    def test_new_writes_a_plant_that_can_be_sized(self):
        self.assertEqual(run("new", self.path("plant.json")).returncode, 0)
        self.assertEqual(run("size", self.path("plant.json")).returncode, 0)
        self.assertEqual(run("new").stdout, self.path("plant.json").read_text())

    def test_new_leaves_an_existing_file_alone(self):
        plant = self.write("plant.json", "mine")
        self.assert_refused(run("new", plant), "exists already")
        self.assertEqual(plant.read_text(), "mine")
        self.assertEqual(run("new", plant, "--force").returncode, 0)
        self.assertIn("sizewright", plant.read_text())

    def test_check_says_what_is_there(self):
        plant = self.write("plant.json", pump_plant(2))
        done = run("check", plant)
        self.assertEqual(done.returncode, 0)
        self.assertEqual(done.stdout, f"{plant}: no fault; items: 2, streams: 2, blocks: 0\n")

    def test_help_and_version(self):
        self.assertIn("Examples:", run("--help").stdout)
        self.assertIn("--published", run("size", "--help").stdout)
        self.assertRegex(run("--version").stdout, r"^sizewright \d+\.\d+\.\d+\n$")

    def test_bad_usage_gives_one_line_and_status_2(self):
        for arguments in [(), ("size",), ("grow", "plant.json"), ("size", "a", "--what"),
                          ("drive", "a"), ("import", "a")]:
            self.assert_refused(run(*arguments), "sizewright: ")


if __name__ == "__main__":
    unittest.main()
