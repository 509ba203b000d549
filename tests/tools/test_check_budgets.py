"""How the figures of the benchmarks are held against their budgets, with reports of this test's own."""

import json
import shutil
import subprocess
import tempfile
import unittest
from pathlib import Path

TOOL = Path(__file__).resolve().parents[2] / "tools" / "check-budgets"


def figure(name, cpu, unit="ms", clock=0.0):
    return {"name": name, "cpu_time": cpu, "real_time": clock or cpu, "time_unit": unit}


class Budgets(unittest.TestCase):
    def setUp(self):
        self.folder = Path(tempfile.mkdtemp(prefix="planovarium-budgets-test-"))
        self.addCleanup(shutil.rmtree, self.folder)
        self.budgets = self.folder / "budgets.json"
        self.write([{"figure": "Paint", "yardstick": "Sort", "ratio": 2}])

    def write(self, budgets):
        yardsticks = {"": "Sort", "Save": "Copy"}
        self.budgets.write_text(json.dumps({"yardsticks": yardsticks, "budgets": budgets}))

    def check(self, *reports, store=False):
        """The tool's end and its last line but the sum."""
        files = []
        for number, figures in enumerate(reports):
            files.append(self.folder / f"{number}.json")
            files[-1].write_text(json.dumps({"benchmarks": figures}))
        ended = subprocess.run([TOOL, *(["--store"] if store else []), self.budgets, *files], capture_output=True,
                               text=True, timeout=60)
        return ended.returncode, ended.stdout

    def test_are_kept_up_to_their_ratio_in_whatever_unit(self):
        self.assertEqual(self.check([figure("Sort", 5), figure("Paint", 10)])[0], 0)
        self.assertEqual(self.check([figure("Sort", 5), figure("Paint", 10_000, "us")])[0], 0)
        status, text = self.check([figure("Sort", 5), figure("Paint", 10.1)])
        self.assertEqual(status, 1)
        self.assertIn("Paint: 10.10 ms, 2.02 of Sort, budget 2  OVER", text)

    def test_take_the_yardstick_of_the_same_report(self):
        self.write([{"figure": name, "yardstick": "Sort", "ratio": 2} for name in ("Paint", "Tick")])
        self.assertEqual(self.check([figure("Sort", 5), figure("Paint", 10)],
                                    [figure("Sort", 50), figure("Tick", 100)])[0], 0)
        self.assertEqual(self.check([figure("Sort", 50), figure("Paint", 10)],
                                    [figure("Sort", 5), figure("Tick", 100)])[0], 1)

    def test_go_by_the_clock_where_the_figure_does(self):
        for name in ("Open/manual_time", "DeviceSync/real_time"):
            self.write([{"figure": name, "yardstick": "Sort", "ratio": 2}])
            self.assertEqual(self.check([figure("Sort", 5), figure(name, 1, clock=11)])[0], 1)
            self.assertEqual(self.check([figure("Sort", 5), figure(name, 11, clock=1)])[0], 0)

    def test_that_lack_for_a_figure_or_have_none_are_told(self):
        status, text = self.check([figure("Sort", 5), figure("Paint", 1), figure("New", 1)])
        self.assertEqual(status, 1)
        self.assertIn("New: has no budget", text)
        status, text = self.check([figure("Sort", 5)])
        self.assertEqual(status, 1)
        self.assertIn("Paint: has a budget and was not measured", text)

    def test_of_a_figure_that_failed_count_as_not_measured(self):
        status, text = self.check([figure("Sort", 5), dict(figure("Paint", 1), error_occurred=True)])
        self.assertEqual(status, 1)
        self.assertIn("Paint: has a budget and was not measured", text)

    def test_are_stored_for_new_figures_alone_at_twice_what_they_are(self):
        self.check([figure("Sort", 5), figure("Copy", 4), figure("Paint", 1), figure("SaveAll", 8)], store=True)
        rows = json.loads(self.budgets.read_text())["budgets"]
        self.assertEqual(rows, [{"figure": "Paint", "yardstick": "Sort", "ratio": 2},
                                {"figure": "SaveAll", "yardstick": "Copy", "ratio": 4.0}])


if __name__ == "__main__":
    unittest.main()
