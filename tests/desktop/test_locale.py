"""The planner in another language: where dates are 14.10.2009 and a number's fraction stands behind a comma, what is
on the drive stays as it is everywhere."""

import os
import unittest

from desktop import DesktopTest, wait_until
from main_window import MainWindow

NEW_TASK = "Planovarium - New Task"
EDIT_TASK = "Planovarium - Edit Task"


class German(DesktopTest):
    def german_planner(self):
        planner = self.planner(date="2009-10-14 12:00:00")
        planner.environment.update(LC_ALL="de_DE.UTF-8", LOCPATH=os.environ["LOCPATH"])
        return planner.start()

    def editor(self, planner, keys, title):
        self.desktop.press_in(planner.window(), *keys)
        wait_until(lambda: self.desktop.active_window_name() == title, "the editor is open")

    def test_dates_of_the_editors_reach_the_files_in_the_files_form_and_come_back(self):
        planner = self.german_planner()
        self.editor(planner, ["ctrl+t"], NEW_TASK)
        self.desktop.type("Call home")
        self.desktop.key("Return")
        wait_until(lambda: "Call home" in planner.read_data("tasks.xml"), "the task is saved")
        saved = planner.read_data("tasks.xml")
        for line in ("<date>2009/10/14</date>", "<date_exists>True</date_exists>",
                     "<percent_complete>0%</percent_complete>", "<reminder_date>2009/10/14</reminder_date>",
                     "<reminder_alarm>2009/10/14 09:00:00</reminder_alarm>"):
            self.assertIn(line, saved)
        self.editor(planner, ["ctrl+4", "Down", "Return"], EDIT_TASK)
        self.desktop.key("End")
        self.desktop.type(" again")
        self.desktop.key("Return")
        wait_until(lambda: "again" in planner.read_data("tasks.xml"), "the task is saved once more")
        self.assertEqual(planner.read_data("tasks.xml"), saved.replace("Call home", "Call home again"))
        self.assertEqual(planner.shut_down(), 0)

    def test_numbers_are_read_and_written_with_points_and_without_separators(self):
        planner = self.german_planner()
        window = planner.window()
        self.desktop.run("xdotool", "windowsize", "--sync", window, "1100", "700")
        wait_until(lambda: self.desktop.geometry(window)[2:] == (1100, 700), "the window has its new size")
        MainWindow(planner).finish_input()  # the planner too knows of it
        self.assertEqual(planner.shut_down(), 0)
        self.assertIn("\nFormMainSizeX=1100\nFormMainSizeY=700\n", planner.read_data("Prefs.ini"))
        planner.start()
        wait_until(lambda: self.desktop.geometry(planner.window())[2:] == (1100, 700), "the size is back")


if __name__ == "__main__":
    unittest.main()
