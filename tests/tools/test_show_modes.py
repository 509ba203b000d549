"""What tools/show-modes tells of the planner that it starts, and what it leaves."""

import os
import subprocess
import tempfile
import unittest
from pathlib import Path

SHOW_MODES = Path(__file__).resolve().parents[2] / "tools" / "show-modes"
PROGRAM = os.environ["PLANOVARIUM_PROGRAM"]
TASKS = """<?xml version="1.0" encoding="ISO-8859-1"?>
<task_data>
<task>
  <id>1</id>
  <date>2009/10/14</date>
  <desc>Call home
"""


class ShowModes(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="planovarium-modes-")
        self.addCleanup(folder.cleanup)
        self.drive = Path(folder.name)
        self.pictures = self.drive / "pictures"
        self.data = self.drive / "Documents" / "Planovarium" / "Data"
        for path in (self.data, self.drive / "Host", self.drive / "Planovarium"):
            path.mkdir(parents=True)

    def show(self, program=PROGRAM):
        """Runs the script to its end."""
        environment = dict(os.environ, U3_DEVICE_PATH=str(self.drive), U3_HOST_EXEC_PATH=str(self.drive / "Host"),
                           U3_DEVICE_DOCUMENT_PATH=str(self.drive / "Documents"), HOME=str(self.drive),
                           U3_DEVICE_EXEC_PATH=str(self.drive / "Planovarium"), LC_ALL="C.UTF-8")
        return subprocess.run([SHOW_MODES, program, self.pictures], env=environment, capture_output=True, text=True,
                              check=False, timeout=120)

    def names(self):
        return sorted(path.name for path in self.pictures.iterdir())

    def test_leaves_a_picture_of_each_mode(self):
        done = self.show()
        self.assertEqual(done.returncode, 0, done.stderr)
        self.assertEqual(self.names(), ["Calendar.png", "Events.png", "Homework.png", "Tasks.png"])

    def test_tells_the_title_of_a_box_that_stands_before_the_window(self):
        (self.data / "tasks.xml").write_text(TASKS, encoding="latin-1")
        done = self.show()
        self.assertEqual(done.returncode, 1)
        self.assertIn('box, so its modes cannot be shown: "Planovarium - File Read Error"', done.stderr)
        self.assertNotIn("Gave up", done.stderr)
        self.assertEqual(self.names(), [])

    def test_tells_of_a_planner_that_ends_before_its_window_stands(self):
        done = self.show("/bin/false")
        self.assertEqual(done.returncode, 1)
        self.assertIn("The planner has ended", done.stderr)
        self.assertNotIn("Gave up", done.stderr)


if __name__ == "__main__":
    unittest.main()
