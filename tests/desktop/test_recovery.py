"""Data that is old or damaged, with the real programs: the older release's folder is taken over, and a record that
stops the planner is found by plancheck and set aside."""

import os
import subprocess
import unittest

from desktop import DesktopTest, wait_until
from test_process import BOX, tasks

PLANCHECK = os.environ["PLANOVARIUM_PLANCHECK"]
EDIT_TASK = "Planovarium - Edit Task"


def old_record(length, *texts):
    """A record of the older release: texts at their offsets, blanks between them."""
    record = bytearray(b" " * length)
    for offset, text in texts:
        record[offset:offset + len(text)] = text.encode("latin-1")
    return bytes(record)


class Damaged(DesktopTest):
    def plancheck(self, planner, *arguments):
        """Runs the check beside no planner; gives its status and what it said."""
        result = subprocess.run([PLANCHECK, *arguments, str(planner.drive)], env=self.desktop.environment,
                                capture_output=True, text=True, check=False)
        return result.returncode, result.stdout + result.stderr

    def test_a_date_that_is_none_stops_the_start_until_its_record_is_set_aside(self):
        planner = self.planner(date="2009-10-14 12:00:00")
        dated = tasks("Water the plants", "Call home", "Buy paper").replace("<date_exists>False", "<date_exists>True")
        front, back = dated.split("<id>2</id>")
        planner.write_data("tasks.xml", front + "<id>2</id>" + back.replace("<date>2009/10/14", "<date>soon", 1))
        planner.start(shown=False)
        box = wait_until(lambda: self.desktop.window(BOX), "the error is told")
        self.desktop.press_in(box, "Return")
        self.assertEqual(planner.wait_for_exit(), 1)

        status, told = self.plancheck(planner)
        self.assertEqual(status, 1)
        self.assertIn('tasks.xml, line 21, record 2 "Call home", field date: "soon" is no date.', told)
        status, told = self.plancheck(planner, "--set-aside", "tasks.xml", "2")
        self.assertEqual(status, 0, told)
        self.assertIn("no fault found.", told)

        planner.start()
        self.assertEqual(planner.shut_down(), 0)
        self.assertEqual(planner.read_data("tasks.xml").count("<task>"), 2)
        self.assertIn("<desc>Water the plants</desc>", planner.read_data("tasks.xml"))
        self.assertIn("<desc>Buy paper</desc>", planner.read_data("tasks.xml"))
        self.assertIn("<desc>Call home</desc>", planner.read_data("Backup/tasks_set_aside.xml"))

    def test_a_running_planner_keeps_its_files_to_itself(self):
        planner = self.planner().start()
        status, told = self.plancheck(planner, "--restore", "tasks.xml", "1")
        self.assertEqual((status, "Shut it down first" in told), (2, True), told)
        self.assertEqual(planner.shut_down(), 0)


class Older(DesktopTest):
    def test_release_is_taken_over_and_its_task_without_a_date_opens_and_is_saved(self):
        planner = self.planner(date="2009-10-14 12:00:00")
        planner.data.mkdir(parents=True)
        for name, content in (
                ("Preferences.ini", b""),
                ("Terms.txt", old_record(100, (0, "1"), (5, "Fall 2009"), (40, "2009-08-24"), (55, "2009.12.18"))),
                ("Classes.txt", old_record(615, (0, "1"), (5, "1"), (10, "Algebra"))),
                ("Tasks.txt", old_record(1000, (5, "1"), (10, "Some day"), (70, "False"), (90, "None"), (100, "None"),
                                         (110, "False"), (115, "first</notes>\r\nsecond")))):
            (planner.data / name).write_bytes(content)
        planner.start()
        self.assertIn("<name>Algebra</name>", planner.read_data("classes.xml"))
        self.assertIn("<date>//</date>", planner.read_data("tasks.xml"))
        self.desktop.press_in(planner.window(), "ctrl+4")
        self.desktop.key("Down", "Return")
        wait_until(lambda: self.desktop.active_window_name() == EDIT_TASK, "the task is open")
        self.desktop.key("Return")
        wait_until(lambda: "<date>2009/10/14</date>" in planner.read_data("tasks.xml"), "the task is saved")
        saved = planner.read_data("tasks.xml")
        self.assertIn("<desc>Some day</desc>", saved)
        self.assertIn("<date_exists>False</date_exists>", saved)
        self.assertIn("<notes>first</notes> \nsecond</notes>", saved)
        self.assertEqual(planner.shut_down(), 0)


if __name__ == "__main__":
    unittest.main()
