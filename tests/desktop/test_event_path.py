"""The way of a student who has to study for a paper, once by keyboard and once by mouse: a weekly series of study
entered, one occurrence moved to another day and one given up, while the alert of missing study goes and comes back;
then the planner shut down and started again, and everything as it was left."""

import unittest

from desktop import DesktopTest, wait_until
from main_window import MainWindow
from places import Event, Main, MessageBox, Recurrence, small_day
from records import record_file, wait_for_record

QUESTION = "Planovarium"
NEW_EVENT = "Planovarium - New Event"
EDIT_EVENT = "Planovarium - Edit Event"
RECURRENCE = "Event Recurrence"
ALERT = "Planovarium - Study Time Alert"

DATE = "2009-10-14 08:00:00"  # a Wednesday
STUDY = "Study for the paper"
TERM = {"id": 1, "name": "Fall 2009", "start": "2009/09/01", "end": "2009/12/18"}
CLASS = {"id": 1, "term": 1, "name": "History", "credits": 3, "forecolor": 0, "backcolor": 0xFFFFFF, "notes": ""}
# Four half hours on Wednesdays and Thursdays before it is due are just enough.
PAPER = {"id": 1, "class": 1, "date": "2009/10/26", "type": "Paper", "priority": "False", "est_time": "02 : 00",
         "time_left": "02 : 00", "percent_complete": "0%", "desc": "Rome", "done": "False", "score": "", "total": "",
         "grade": "", "reminder": "False", "reminderdate": "2009/10/26", "remindertime": "09:00 AM",
         "reminderalarm": "2009/10/26 09:00:00", "reminderlist": "False", "notes": ""}
THURSDAY_15, WEDNESDAY_21 = (2, 4), (3, 3)  # row and column in the small calendar


class EventPath(DesktopTest):
    """The way itself; how each step is done stands in the classes for the keyboard and the mouse."""

    def walk(self):
        self.program = self.planner(date=DATE)
        self.program.write_data("terms.xml", record_file("term", TERM))
        self.program.write_data("classes.xml", record_file("class", CLASS))
        self.program.write_data("assignments_1.xml", record_file("assignment", PAPER))
        self.program.start()
        self.main = MainWindow(self.program)
        self.show_events()
        alert = self.main.settled(Main.ALERT)
        self.assertFalse(self.main.is_bare(Main.ALERT))
        self.enter_series()
        self.wait_for_events(desc=[STUDY], type=["Study Time"], date=["2009/10/14"], recurrence=["Day"],
                             repeat_daily=["FFTTFFF"], exceptions=[""], parent_id=[""])
        wait_until(lambda: self.main.is_bare(Main.ALERT), "the alert is gone")
        self.move_thursday_to_friday()
        self.wait_for_events(desc=[STUDY] * 2, date=["2009/10/14", "2009/10/16"], recurrence=["Day", "None"],
                             exceptions=["2009/10/15", ""], parent_id=["", "1"])
        self.main.finish_input()
        self.assertTrue(self.main.is_bare(Main.ALERT), "the study that was moved counts on")
        self.give_up_next_wednesday()
        self.wait_for_events(desc=[STUDY] * 2, exceptions=["2009/10/15 2009/10/21", ""])
        self.main.wait_for_picture(Main.ALERT, alert, "the alert is back")
        self.shut_down_and_start_again()
        self.main.wait_for_picture(Main.ALERT, alert, "the alert stands at the next start, too")
        self.assertEqual(self.program.shut_down(), 0)
        self.assertEqual(self.program.read_data("events.xml"), self.left)

    def wait_for_events(self, **fields):
        wait_for_record(self, "events.xml", **fields)

    def shut_down_and_start_again(self):
        self.show_events()
        shown = self.main.settled(Main.SMALL_CALENDAR)
        self.assertEqual(self.program.shut_down(), 0)
        self.left = self.program.read_data("events.xml")
        self.program.start()
        self.main = MainWindow(self.program)
        self.show_events()
        self.go_to_next_wednesday()
        self.assertEqual(self.main.settled(Main.SMALL_CALENDAR), shown)

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
        self.desktop.type(STUDY)
        self.keys("alt+y", "Down")
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

    def read_alert(self):
        self.main.click(Main.ALERT_BUTTON)
        self.opened(ALERT)
        self.desktop.key("Escape")
        self.closed(ALERT)
        self.main.finish_input()

    def enter_series(self):
        self.read_alert()
        self.main.click(Main.HALF_HOUR)
        dialog = self.opened(NEW_EVENT)
        self.click(dialog, Event.DESCRIPTION)
        self.desktop.type(STUDY)
        self.click(dialog, Event.TYPE)
        wait_until(self.desktop.popup_menu, "the types are offered")
        self.click(dialog, Event.STUDY_TIME)
        wait_until(lambda: not self.desktop.popup_menu(), "a type is chosen")
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
