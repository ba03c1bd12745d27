"""Plant databases: import, export, results that are stored whole, one writer at a time."""
import json
import random
import signal
import sqlite3
import subprocess
import time
import unittest

from program import PROGRAM, ProgramTest, pump_plant, run

KILLS = 200


class Database(ProgramTest):
    def imported(self, pumps=1):
        plant = self.write("plant.json", pump_plant(pumps))
        database = self.path("plant.szw")
        done = run("import", plant, database)
        self.assertEqual(done.returncode, 0, done.stderr)
        return database

    def exported(self, database):
        done = run("export", database)
        self.assertEqual(done.returncode, 0, done.stderr)
        return json.loads(done.stdout)

    def is_sized(self, item):
        return "CpFluidHead" in item.get("component", {})

    def test_import_and_export_change_nothing(self):
        database = self.imported(3)
        self.assertEqual(run("export", database, self.path("out.json")).returncode, 0)
        again = self.path("again.szw")
        run("import", self.path("out.json"), again)
        self.assertEqual(run("export", again).stdout, self.path("out.json").read_text())
        self.assertEqual(self.exported(database)["items"].keys(), pump_plant(3)["items"].keys())

    def test_an_existing_database_stays_unless_forced(self):
        database = self.imported()
        before = database.read_bytes()
        self.assert_refused(run("import", self.path("plant.json"), database), "exists already")
        self.assertEqual(database.read_bytes(), before)
        self.assertEqual(run("import", self.path("plant.json"), database, "--force").returncode, 0)

    def test_sizing_stores_the_results(self):
        database = self.imported(2)
        self.assertEqual(run("size", database).returncode, 0)
        stored = self.exported(database)
        run("size", self.path("plant.json"), "--save", self.path("sized.json"))
        self.assertEqual(stored, json.loads(self.path("sized.json").read_text()))
        self.assertTrue(self.is_sized(stored["items"]["P-2"]))

    def test_a_report_comes_from_a_database_too(self):
        database = self.imported()
        self.assertEqual(json.loads(run("drive", database, "P-1").stdout)["isValid"], 1)
        self.assertFalse(self.is_sized(self.exported(database)["items"]["P-1"]))  # drive stores not

    def test_a_second_writer_is_told(self):
        database = self.imported()
        with sqlite3.connect(database, isolation_level=None) as holder:
            holder.execute("BEGIN IMMEDIATE")
            self.assert_refused(run("size", database), database, "in use by another process")
            self.assertEqual(run("check", database).returncode, 0)  # reading goes on
            holder.execute("ROLLBACK")
        holder.close()
        self.assertEqual(run("size", database).returncode, 0)

    def test_a_file_that_is_no_plant_database_is_refused(self):
        other = self.path("other.db")
        with sqlite3.connect(other) as connection:
            connection.execute("CREATE TABLE t(x)")
        connection.close()
        self.assert_refused(run("size", other), other, "not a plant database")
        self.assert_refused(run("export", self.write("text", "{}")), "text")

    def test_killed_at_any_moment_every_item_is_whole_and_a_rerun_finishes(self):
        plant = self.write("plant.json", pump_plant(400))
        whole = json.loads(run("size", plant, "--json").stdout.splitlines()[0])["component"]
        whole.pop("object name")
        start = time.monotonic()
        run("size", plant, "--quiet")
        longest = (time.monotonic() - start) * 2
        master = self.path("master.szw")
        self.assertEqual(run("import", plant, master).returncode, 0)
        database = self.path("plant.szw")
        chance = random.Random(1)
        cut_short = 0
        for _ in range(KILLS):
            for ending in ["", "-wal", "-shm"]:
                self.path("plant.szw" + ending).unlink(missing_ok=True)
            database.write_bytes(master.read_bytes())
            process = subprocess.Popen([PROGRAM, "size", database, "--quiet"])
            time.sleep(chance.uniform(0, longest))
            process.send_signal(signal.SIGKILL)
            process.wait()
            items = self.exported(database)["items"]
            self.assertEqual(len(items), 400)
            sized = 0
            for item in items.values():
                record = item.get("component", {})
                if record:
                    self.assertEqual(record, whole)
                    sized += 1
            cut_short += 0 < sized < 400
        self.assertEqual(run("size", database, "--quiet").returncode, 0)
        for item in self.exported(database)["items"].values():
            self.assertEqual(item["component"], whole)
        self.assertGreater(cut_short, 0)  # some of the kills came in the middle


if __name__ == "__main__":
    unittest.main()
