"""The reminder window on a real desktop: when and where it comes up, what it leaves to the student, and how an item
is opened from it."""

import os
import re
import unittest

from desktop import LIMIT, TITLE, DesktopTest, stays_false, wait_until
from test_process import tasks

UNARMED = "<reminder>False</reminder>"
ARMED = "<reminder>True</reminder>"
FIRED = "<reminder_list>True</reminder_list>"
EDIT_TASK = "Planovarium - Edit Task"
NEW_TASK = "Planovarium - New Task"
FIRST_TICK = 40 + LIMIT  # seconds from the start until the first tick has surely come
EDGE = 10  # pixels between the window and the edges of the work area


class Reminders(DesktopTest):
    def planner_with_an_alarm(self):
        """With a task whose alarm is set for nine, started at eight; sounds are noted in a file."""
        planner = self.planner(date="2009-10-14 08:00:00")
        planner.write_data("tasks.xml", tasks("Water the plants").replace(UNARMED, ARMED))
        self.sounds = self.desktop.runtime / "sounds"
        planner.environment.update(SOUND_LOG=str(self.sounds),
                                   LD_LIBRARY_PATH=os.environ["PLANOVARIUM_RECORDED_SOUND"])
        return planner.start()

    def start_again(self, planner, date):
        self.assertEqual(planner.shut_down(), 0)
        planner.set_date(date)
        planner.start()

    def wait_for_reminder(self):
        return wait_until(lambda: self.desktop.window("1 Reminder"), "the reminder is shown", FIRST_TICK)

    def numbers(self, property_name, *window):
        """The numbers of a property of a window, or of the desktop itself."""
        where = ["-id", *window] if window else ["-root"]
        return [int(n) for n in re.findall(r"\d+", self.desktop.run("xprop", *where, property_name).split("=")[-1])]

    def far_corner(self, window):
        """Right and bottom of the window with its frame."""
        left, top, width, height = self.desktop.geometry(window)
        _, right, _, bottom = self.numbers("_NET_FRAME_EXTENTS", window)
        return left + width + right, top + height + bottom

    def far_corner_of_work_area(self):
        left, top, width, height = self.numbers("_NET_WORKAREA")[:4]
        return left + width, top + height

    def is_in_front(self, window, other):
        """Whether the window lies over the other one, wherever the windows of the desktop itself lie."""
        stacked = self.desktop.run("xprop", "-root", "_NET_CLIENT_LIST_STACKING")
        order = [str(int(number, 16)) for number in re.findall(r"0x[0-9a-f]+", stacked)]
        return window in order and order.index(window) > order.index(other)

    def test_an_alarm_that_passed_while_the_program_was_closed_comes_up_and_opens_its_task(self):
        planner = self.planner_with_an_alarm()
        self.start_again(planner, "2009-10-14 14:00:00")
        self.desktop.activate(planner.window())
        reminder = self.wait_for_reminder()
        right, bottom = self.far_corner_of_work_area()
        wait_until(lambda: self.far_corner(reminder) == (right - EDGE, bottom - EDGE),
                   "the window stands in the corner with its frame")
        wait_until(lambda: self.is_in_front(reminder, planner.window()), "the window is in front")
        wait_until(lambda: FIRED in planner.read_data("tasks.xml"), "the fired reminder is saved")
        wait_until(self.sounds.exists, "the sound is asked for")
        self.assertEqual(self.sounds.read_text(), f"{planner.drive}/Planovarium/Reminder.wav\n")
        self.assertTrue(stays_false(lambda: self.desktop.active_window_name() != TITLE, 1))
        self.desktop.key("ctrl+t")  # the keys still go to the main window
        wait_until(lambda: self.desktop.active_window_name() == NEW_TASK, "the editor is open")
        self.desktop.key("Escape")
        wait_until(lambda: not self.desktop.window(NEW_TASK), "the editor is closed")

        planner.hide()
        self.desktop.press_in(reminder, "Down", "Return")
        wait_until(lambda: self.desktop.active_window_name() == EDIT_TASK, "the task is open")
        self.assertIsNotNone(planner.window())
        self.desktop.key("Escape")
        wait_until(lambda: not self.desktop.window(EDIT_TASK), "the task is closed")
        self.desktop.press_in(reminder, "Delete")
        wait_until(lambda: FIRED not in planner.read_data("tasks.xml"), "the reminder is dismissed")
        wait_until(lambda: self.desktop.window("0 Reminders"), "the list is empty")
        self.desktop.key("Escape")
        wait_until(lambda: not self.desktop.window("0 Reminders"), "the window is hidden")
        self.assertEqual(planner.shut_down(), 0)

    def test_is_opened_by_hand_with_the_keyboard_and_without_a_sound(self):
        planner = self.planner_with_an_alarm()
        self.desktop.press_in(planner.window(), "ctrl+5")
        title = "Planovarium - Reminder List"
        wait_until(lambda: self.desktop.active_window_name() == title, "the window has the keyboard")
        self.assertFalse(self.sounds.exists())
        self.desktop.close_with_window_manager(self.desktop.window(title))
        wait_until(lambda: not self.desktop.window(title), "the window is hidden")
        self.assertIsNotNone(planner.window())
        self.assertEqual(planner.shut_down(), 0)


if __name__ == "__main__":
    unittest.main()
