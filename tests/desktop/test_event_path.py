"""The way of a student with a lecture, once by keyboard and once by mouse: a weekly series entered, one occurrence moved
to another day and one given up; then the planner shut down and started again, and everything as it was left."""

import unittest

from desktop import DesktopTest, wait_until
from main_window import MainWindow
from places import Event, Main, MessageBox, Recurrence, small_day
from records import wait_for_record

QUESTION = "Planovarium"
NEW_EVENT = "Planovarium - New Event"
EDIT_EVENT = "Planovarium - Edit Event"
RECURRENCE = "Event Recurrence"

DATE = "2009-10-14 10:00:00"  # a Wednesday
LECTURE = "Lecture"
THURSDAY_15, WEDNESDAY_21 = (2, 4), (3, 3)  # row and column in the small calendar


class EventPath(DesktopTest):
    """The way itself; how each step is done stands in the classes for the keyboard and the mouse."""

    def walk(self):
        self.program = self.planner(date=DATE).start()
        self.main = MainWindow(self.program)
        self.show_events()
        self.enter_series()
        self.wait_for_events(desc=[LECTURE], date=["2009/10/14"], recurrence=["Day"], repeat_daily=["FFTTFFF"],
                             exceptions=[""], parent_id=[""])
        self.move_thursday_to_friday()
        self.wait_for_events(desc=[LECTURE] * 2, date=["2009/10/14", "2009/10/16"], recurrence=["Day", "None"],
                             exceptions=["2009/10/15", ""], parent_id=["", "1"])
        self.give_up_next_wednesday()
        self.wait_for_events(desc=[LECTURE] * 2, exceptions=["2009/10/15 2009/10/21", ""])
        self.shut_down_and_start_again()

    def wait_for_events(self, **fields):
        wait_for_record(self, "events.xml", **fields)

    def shut_down_and_start_again(self):
        self.show_events()
        shown = self.main.settled(Main.SMALL_CALENDAR)
        self.assertEqual(self.program.shut_down(), 0)
        left = self.program.read_data("events.xml")
        self.program.start()
        self.main = MainWindow(self.program)
        self.show_events()
        self.go_to_next_wednesday()
        self.assertEqual(self.main.settled(Main.SMALL_CALENDAR), shown)
        self.assertEqual(self.program.shut_down(), 0)
        self.assertEqual(self.program.read_data("events.xml"), left)

    def opened(self, title):
        """The window of this title, once it is in front."""
        window = wait_until(lambda: self.desktop.window(title), f"{title} is open")
        wait_until(lambda: self.desktop.active_window_name() == title, f"{title} is in front")
        return window

    def closed(self, title):
        wait_until(lambda: not self.desktop.window(title), f"{title} is closed")
        # So that what comes next goes to the window behind it.
        wait_until(lambda: self.desktop.active_window_name() != title, f"{title} has lost the keyboard")

    def answered(self, question):
        wait_until(lambda: self.desktop.window(QUESTION) != question, "the question is answered")


class ByKeyboard(EventPath):
    def test_leaves_everything_on_the_drive(self):
        self.walk()

    def keys(self, *keys):
        self.desktop.key(*keys)

    def show_events(self):
        self.keys("ctrl+3")
        self.main.wait_for_mode("Events")

    def enter_series(self):
        self.keys("ctrl+e")  # at nine o'clock
        self.opened(NEW_EVENT)
        self.desktop.type(LECTURE)
        self.keys("alt+c")
        self.opened(RECURRENCE)
        self.keys("Down", "alt+h", "Return")  # Daily, and Thursday beside the weekday of the start
        self.closed(RECURRENCE)
        self.opened(NEW_EVENT)
        self.keys("alt+s", "Return")  # from the Change button, which Enter would press again
        self.closed(NEW_EVENT)

    def go_by_days(self, *arrows):
        self.keys("ctrl+1")
        self.main.wait_for_mode("Calendar")
        self.keys(*arrows)
        self.show_events()

    def open_occurrence(self):
        self.keys("Home", *["Down"] * 18, "Return")  # nine o'clock
        question = self.opened(QUESTION)
        self.keys("Tab", "space")  # from Yes to No
        self.answered(question)
        return self.opened(EDIT_EVENT)

    def move_thursday_to_friday(self):
        self.go_by_days("Right")
        self.open_occurrence()
        self.keys("Tab", "space", "Right", "Return")  # the date
        self.keys("alt+s", "Return")
        self.closed(EDIT_EVENT)

    def give_up_next_wednesday(self):
        self.go_by_days("Down", "Left")
        self.open_occurrence()
        self.keys("alt+d")
        question = self.opened(QUESTION)
        self.keys("Tab", "space")  # from No, which comes first where something is deleted, to Yes
        self.answered(question)
        self.closed(EDIT_EVENT)

    def go_to_next_wednesday(self):
        self.go_by_days("Down")


class ByMouse(EventPath):
    """Keys only where there is text to type."""

    def test_leaves_everything_on_the_drive(self):
        self.walk()

    def click(self, window, place):
        self.desktop.click_in(window, place)

    def show_events(self):
        self.main.click(Main.MODES["Events"])
        self.main.wait_for_mode("Events")
        self.main.finish_input()

    def enter_series(self):
        self.main.click(Main.HALF_HOUR)
        dialog = self.opened(NEW_EVENT)
        self.click(dialog, Event.DESCRIPTION)
        self.desktop.type(LECTURE)
        self.click(dialog, Event.CHANGE)
        recurrence = self.opened(RECURRENCE)
        self.click(recurrence, Recurrence.DAILY)
        self.click(recurrence, Recurrence.THURSDAY)
        self.click(recurrence, Recurrence.OK)
        self.closed(RECURRENCE)
        self.opened(NEW_EVENT)
        self.click(dialog, Event.OK)
        self.closed(NEW_EVENT)

    def open_occurrence(self, row, column):
        self.main.click(small_day(row, column))
        self.main.finish_input()
        self.main.click(Main.HALF_HOUR)
        question = self.opened(QUESTION)
        self.click(question, MessageBox.NO_OF_THREE)
        self.answered(question)
        return self.opened(EDIT_EVENT)

    def move_thursday_to_friday(self):
        dialog = self.open_occurrence(*THURSDAY_15)
        self.click(dialog, Event.DATE_BUTTON)
        self.click(dialog, Event.DATE_16)
        self.click(dialog, Event.OK)
        self.closed(EDIT_EVENT)

    def give_up_next_wednesday(self):
        dialog = self.open_occurrence(*WEDNESDAY_21)
        self.click(dialog, Event.DELETE)
        question = self.opened(QUESTION)
        self.click(question, MessageBox.YES)
        self.answered(question)
        self.closed(EDIT_EVENT)

    def go_to_next_wednesday(self):
        self.main.click(small_day(*WEDNESDAY_21))


if __name__ == "__main__":
    unittest.main()
