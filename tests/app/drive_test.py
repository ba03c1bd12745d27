"""sizewright drive."""
import json
import unittest

from program import ProgramTest, pump_plant, run

OPERATIONS = ["IsValid", "Initialize", "Size", "GetLastInfo", "GetStreamInfo", "ReturnValues",
              "SaveParameters", "UpdateConnectivity", "AddWarningAndError", "Commit",
              "UpdateSizeInfo", "GetConnectedStreams", "DisconnectStreams", "GetEquipCatType"]


class Drive(ProgramTest):
    def drive(self, script=None, plant=None, item="P-1"):
        arguments = ["drive", self.write("plant.json", plant or pump_plant()), item]
        if script is not None:
            arguments += ["--script", self.write("script.json", script)]
        done = run(*arguments)
        self.assertEqual(done.returncode, 0, done.stderr)
        return json.loads(done.stdout)

    def results(self, report):
        return [(step["op"], step["result"]) for step in report["steps"]]

    def test_without_a_script_sizes_shows_commits_and_files(self):
        report = self.drive()
        self.assertEqual(list(report), ["item", "class", "isValid", "steps", "messages", "status",
                                        "dialogs", "component", "project", "size record",
                                        "changes"])
        self.assertEqual((report["item"], report["class"], report["isValid"]),
                         ("P-1", "CPumpObj", 1))
        self.assertEqual(self.results(report), [("Size", 1), ("ReturnValues", 1), ("Commit", 1),
                                                ("UpdateSizeInfo", 1)])
        self.assertEqual(report["steps"][1]["form"][0], ["Inlet Stream", "S1"])
        self.assertEqual(list(report["messages"]), ["warnings", "errors", "notes", "calculations"])
        self.assertEqual(report["status"][0], [30, "Initializing all the variables"])
        self.assertEqual(report["component"]["CpFluidHead"],
                         report["size record"]["CpFluidHead"])
        self.assertEqual(list(report["project"]), ["Sizing Note(s)", "Sizing Calculation(s)"])
        self.assertEqual(report["changes"], {"streams": {}, "utilities": {}, "databases": {}})

    def test_performs_every_operation(self):
        report = self.drive({"steps": OPERATIONS})
        self.assertEqual([step["op"] for step in report["steps"]], OPERATIONS)
        self.assertEqual(report["steps"][0]["result"], 1)
        self.assertEqual(report["steps"][-1]["result"], 10)  # the family of pumps

    def test_a_form_gives_numbers_units_and_texts(self):
        report = self.drive({"steps": [
            "GetLastInfo",
            {"SetValues": {"Capacity Overdesign Factor": 1.25, "CpFluidHead": [120, "FEET"],
                           "Inlet Stream": "S1", "CpDriverPower": "7\nHP"}},
            "Size", "ReturnValues"]})
        form = dict(report["steps"][3]["form"])
        self.assertEqual(form["Capacity Overdesign Factor"], "1.25")
        self.assertEqual(form["CpFluidHead"], "120\nFEET")
        self.assertEqual(form["CpDriverPower"], "7\nHP")
        self.assertNotIn("Outlet Stream", form)

    def test_a_form_can_be_given_as_it_stands(self):
        names = ["CpFluidHead", "CpFluidHead", "lonely"]
        report = self.drive({"steps": [{"SetValues": {"names": names, "values": ["5\nM", "9\nM"]}},
                                       "ReturnValues"]})
        self.assertEqual(report["steps"][0], {"op": "SetValues", "result": 1})
        head = dict(report["steps"][1]["form"])["CpFluidHead"].split("\n")
        self.assertAlmostEqual(float(head[0]), 5 / 0.3048, places=9)

    def test_an_empty_form_is_refused_by_the_object(self):
        report = self.drive({"steps": [{"SetValues": {}}]})
        self.assertEqual(self.results(report), [("SetValues", 0)])

    def test_an_object_that_is_not_valid_performs_nothing(self):
        plant = pump_plant()
        del plant["items"]["P-1"]["category"]
        plant["items"]["P-1"]["class"] = "CPumpObj"
        report = self.drive(plant=plant)
        self.assertEqual((report["isValid"], report["steps"]), (0, []))

    def test_the_selection_form_looks_at_a_block(self):
        plant = pump_plant()
        plant["simulator"] = 1
        plant["blocks"] = {"B1": {"slots": {"ITEM MODEL": "PUMP"}}}
        script = {"form": "selection", "block": "B1", "steps": ["IsValid"]}
        self.assertEqual(self.drive(script, plant)["isValid"], 1)
        script["block"] = "none"
        self.assertEqual(self.drive(script, plant)["isValid"], 0)

    def test_an_interactive_object_shows_boxes(self):
        plant = pump_plant()
        plant["streams"]["S1"]["slots"].pop("LIQUID MASS FLOW")
        text = "No inlet flow specified. Cannot estimate pump capacity. Please check inlet stream."
        report = self.drive({"interactive": 1, "steps": ["Size"]}, plant)
        self.assertEqual(report["dialogs"], [{"kind": "box", "text": text, "title": "Sizing",
                                              "flags": 48}])
        self.assertEqual(self.drive({"steps": ["Size"]}, plant)["dialogs"], [])

    def test_a_fault_of_the_project_is_printed(self):
        report = self.drive({"arguments": ["", "NOWHERE"], "steps": ["Size"]})
        self.assertEqual(report["isValid"], 0)
        self.assertEqual(report["dialogs"], [{
            "kind": "printf",
            "text": "Could not find <NOWHERE> database. Please recreate project."}])

    def test_other_changes_are_told(self):
        plant = pump_plant()
        plant["record changes"] = True
        plant["databases"] = {"OTHER": {}}
        report = self.drive({"arguments": ["", "", "", "OTHER", ""],
                             "steps": ["Size", "Commit", "UpdateSizeInfo"]}, plant)
        self.assertIn("CpFluidHead", report["size record"])  # of the results database named

    def test_a_script_that_is_none_is_refused(self):
        plant = self.write("plant.json", pump_plant())
        for script, where in [("[", "line 1"), ({}, "steps"), ({"steps": ["Grow"]}, "steps/0"),
                              ({"steps": [], "form": "free"}, "form"),
                              ({"steps": [], "form": "selection"}, "block"),
                              ({"steps": [{"SetValues": 3}]}, "steps/0"),
                              ({"steps": [], "arguments": [1]}, "arguments"),
                              ({"steps": [], "arguments": [""] * 6}, "arguments"),
                              ({"steps": [], "interactive": 1.5}, "interactive"),
                              ({"steps": [], "other": 1}, "other")]:
            path = self.write("script.json", script)
            with self.subTest(script=script):
                self.assert_refused(run("drive", plant, "P-1", "--script", path), path, where)


if __name__ == "__main__":
    unittest.main()
