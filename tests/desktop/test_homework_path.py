"""The whole way of a student from an empty drive, once by keyboard and once by mouse: a term with two classes, three
assignments, one of them done and scored, and a task finished; then a class deleted, the planner shut down and started
again, and everything as it was left."""

import unittest

from desktop import DesktopTest, wait_until
from main_window import MainWindow
from places import Assignment, Main, MessageBox, Task, Term, TermChooser
from records import wait_for_record

QUESTION = "Planovarium"
CHOOSER = "Planovarium - Select a Term"
NEW_TERM = "Planovarium - New Term"
EDIT_TERM = "Planovarium - Edit Term"
NEW_ASSIGNMENT = "Planovarium - New Assignment"
EDIT_ASSIGNMENT = "Planovarium - Edit Assignment"
NEW_TASK = "Planovarium - New Task"

DATE = "2009-10-14 10:00:00"  # a Wednesday; a new term runs until the 23rd of December
CLASSES = (("Algebra", "3"), ("History", "2"))  # with their credits
SCORE, TOTAL = "17", "20"
TASK = "Buy graph paper"
BACKUPS = ["assignments_1_backup1.xml", "classes_backup1.xml", "tasks_backup1.xml", "terms_backup1.xml"]


class HomeworkPath(DesktopTest):
    """The way itself; how each step is done stands in the classes for the keyboard and the mouse."""

    def walk(self):
        self.program = self.planner(date=DATE).start()
        self.main = MainWindow(self.program)
        self.start_term()
        self.wait_for_record("terms.xml", name=["Fall 2009"], start=["2009/10/14"], end=["2009/12/18"])
        self.wait_for_record("classes.xml", name=["Algebra", "History"], credits=["3", "2"], term=["1", "1"])
        self.enter_assignment(0, "Sets")
        self.enter_assignment(1, "Rome", moved=True)
        self.enter_assignment(0, "Rings", estimate="01:30")
        self.wait_for_record("assignments_1.xml", desc=["Sets", "Rome", "Rings"], **{"class": ["1", "2", "1"]},
                           date=["2009/10/14", "2009/10/16", "2009/10/14"],
                             est_time=["00 : 30", "00 : 30", "01 : 30"])
        self.score_first_assignment()
        self.wait_for_record("assignments_1.xml", done=["True", "False", "False"], score=[SCORE, "", ""],
                           total=[TOTAL, "", ""], grade=["85%", "", ""])
        self.enter_finished_task()
        self.wait_for_record("tasks.xml", desc=[TASK], done=["True"], percent_complete=["100%"])
        self.delete_first_class()
        self.wait_for_record("classes.xml", name=["History"])
        self.wait_for_record("assignments_1.xml", desc=["Rome"], id=["2"])
        self.shut_down_and_start_again()

    def wait_for_record(self, file, **fields):
        wait_for_record(self, file, **fields)

    def shut_down_and_start_again(self):
        shown = self.views()
        self.shut_down()
        self.assertEqual(sorted(path.name for path in self.program.backup.iterdir()), BACKUPS)
        left = self.files()
        self.program.start()
        self.main = MainWindow(self.program)
        self.assertEqual(self.views(), shown)
        self.assertEqual(self.program.shut_down(), 0)
        self.assertEqual(self.files(), left)

    def views(self):
        """What the window shows of the homework and of the tasks."""
        shown = []
        for keys, mode in (("ctrl+2", "Homework"), ("ctrl+4", "Tasks")):
            self.desktop.key(keys)
            self.main.wait_for_mode(mode)
            shown.append(self.main.settled(Main.VIEW))
        return shown

    def files(self):
        return {path.relative_to(self.program.data): path.read_bytes() for path in self.program.data.rglob("*.xml")}

    def opened(self, title):
        """The window of this title, once it is in front."""
        window = wait_until(lambda: self.desktop.window(title), f"{title} is open")
        wait_until(lambda: self.desktop.active_window_name() == title, f"{title} is in front")
        return window

    def answered(self, question):
        wait_until(lambda: self.desktop.window(QUESTION) != question, "the question is answered")

    def closed(self, title):
        wait_until(lambda: not self.desktop.window(title), f"{title} is closed")
        # So that what comes next goes to the window behind it.
        wait_until(lambda: self.desktop.active_window_name() != title, f"{title} has lost the keyboard")


class ByKeyboard(HomeworkPath):
    def test_leaves_everything_on_the_drive(self):
        self.walk()

    def keys(self, *keys):
        self.desktop.key(*keys)

    def start_term(self):
        self.keys("ctrl+n")
        self.opened(QUESTION)  # there is no term: start one?
        self.keys("Return")
        self.opened(CHOOSER)
        self.keys("Tab", "space")  # the first button that can be pressed starts a new term
        self.opened(NEW_TERM)
        self.keys("shift+Tab", "shift+Tab", "space", *["Left"] * 5, "Return", "Tab", "Tab")  # the end date
        for name, credits in CLASSES:
            self.keys("space")  # Add Class
            self.desktop.type(name)
            self.keys("Tab")
            self.desktop.type(credits)
            self.keys("shift+Tab", "Return")
        self.leave_term(NEW_TERM)

    def leave_term(self, title):
        self.keys("Tab", "Tab", "Return")  # from Add Class to OK
        self.closed(title)

    def enter_assignment(self, row, description, moved=False, estimate=None):
        self.keys("ctrl+n")
        self.opened(NEW_ASSIGNMENT)
        self.keys(*["Down"] * (row + 1), "Tab")  # the class
        if moved:
            self.keys("space", "Right", "Right", "Return")  # the due date
        self.keys("Tab", "Tab", "Tab")  # the type, the priority, the description
        self.desktop.type(description)
        if estimate:
            self.keys("Tab")
            self.desktop.type(estimate)
            self.keys("Tab", "Tab")  # out of the fields in which Return ends the entry
        self.keys("Return")
        self.closed(NEW_ASSIGNMENT)

    def score_first_assignment(self):
        self.keys("ctrl+2", "Home", "Return")
        self.opened(EDIT_ASSIGNMENT)
        self.keys(*["Tab"] * 8, "space", "Tab")  # the done box, the score
        self.desktop.type(SCORE)
        self.keys("Tab")
        self.desktop.type(TOTAL)
        self.keys("Tab", "Return")
        self.closed(EDIT_ASSIGNMENT)

    def enter_finished_task(self):
        self.keys("ctrl+4", "ctrl+t")
        self.opened(NEW_TASK)
        self.desktop.type(TASK)
        self.keys(*["Tab"] * 6, "space", "Return")  # the done box
        self.closed(NEW_TASK)

    def delete_first_class(self):
        self.keys("ctrl+1", "alt+e", "Up", "Return")  # in Calendar mode, the last item of the menu
        self.opened(CHOOSER)
        self.keys("Tab", "Tab", "space")
        self.opened(EDIT_TERM)
        self.keys("Tab", "space")  # Edit Class
        self.keys(*["Tab"] * 5, "space")  # over the fields, OK and Cancel to Delete
        for _ in range(2):
            question = self.opened(QUESTION)
            self.keys("Tab", "space")  # from No, which comes first where something is deleted, to Yes
            self.answered(question)
        self.opened(EDIT_TERM)
        self.leave_term(EDIT_TERM)

    def shut_down(self):
        self.assertEqual(self.program.shut_down(), 0)


class ByMouse(HomeworkPath):
    """Keys only where there is text to type."""

    def test_leaves_everything_on_the_drive(self):
        self.walk()

    def click(self, window, place):
        self.desktop.click_in(window, place)

    def say_yes(self):
        question = self.opened(QUESTION)
        self.click(question, MessageBox.YES)
        self.answered(question)

    def start_term(self):
        self.main.click(Main.NEW)
        self.say_yes()  # there is no term: start one?
        self.click(self.opened(CHOOSER), TermChooser.NEW_TERM)
        term = self.opened(NEW_TERM)
        self.click(term, Term.END_DATE_BUTTON)
        self.click(term, Term.END_DATE_18)
        for name, credits in CLASSES:
            self.click(term, Term.ADD_CLASS)
            self.click(term, Term.CLASS_NAME)
            self.desktop.type(name)
            self.click(term, Term.CREDITS)
            self.desktop.type(credits)
            self.click(term, Term.OK_CLASS)
        self.click(term, Term.OK)
        self.closed(NEW_TERM)

    def enter_assignment(self, row, description, moved=False, estimate=None):
        self.main.click(Main.NEW)
        dialog = self.opened(NEW_ASSIGNMENT)
        self.click(dialog, Assignment.CLASSES)
        wait_until(self.desktop.popup_menu, "the classes drop down")
        x, y = Assignment.CLASS_ROW
        self.click(dialog, (x, y + row * Assignment.CLASS_ROW_HEIGHT))
        wait_until(lambda: not self.desktop.popup_menu(), "a class is chosen")
        if moved:
            self.click(dialog, Assignment.DUE_DATE_BUTTON)
            self.click(dialog, Assignment.DUE_DATE_16)
        self.click(dialog, Assignment.DESCRIPTION)
        self.desktop.type(description)
        if estimate:
            self.click(dialog, Assignment.ESTIMATE)
            self.desktop.key("ctrl+a")
            self.desktop.type(estimate)
        self.click(dialog, Assignment.OK)
        self.closed(NEW_ASSIGNMENT)

    def score_first_assignment(self):
        self.main.click(Main.MODES["Homework"])
        self.main.wait_for_mode("Homework")
        self.main.finish_input()
        self.main.click(Main.ROW)
        dialog = self.opened(EDIT_ASSIGNMENT)
        self.click(dialog, Assignment.DONE)
        self.click(dialog, Assignment.SCORE)
        self.desktop.type(SCORE)
        self.click(dialog, Assignment.TOTAL)
        self.desktop.type(TOTAL)
        self.click(dialog, Assignment.OK)
        self.closed(EDIT_ASSIGNMENT)

    def enter_finished_task(self):
        self.main.click(Main.MODES["Tasks"])
        self.main.wait_for_mode("Tasks")
        self.main.click(Main.NEW)
        dialog = self.opened(NEW_TASK)
        self.click(dialog, Task.DESCRIPTION)
        self.desktop.type(TASK)
        self.click(dialog, Task.DONE)
        self.click(dialog, Task.OK)
        self.closed(NEW_TASK)

    def delete_first_class(self):
        self.main.click(Main.MODES["Calendar"])
        self.main.wait_for_mode("Calendar")
        self.main.click(Main.CLASS_SCHEDULE)
        self.click(self.opened(CHOOSER), TermChooser.EDIT_CLASSES)
        term = self.opened(EDIT_TERM)
        self.click(term, Term.EDIT_CLASS)
        self.click(term, Term.DELETE_CLASS)
        for _ in range(2):
            self.say_yes()
        self.opened(EDIT_TERM)
        self.click(term, Term.OK)
        self.closed(EDIT_TERM)

    def shut_down(self):
        self.open_tray_menu()
        self.desktop.key("Up", "Return")
        self.assertEqual(self.program.wait_for_exit(), 0)


if __name__ == "__main__":
    unittest.main()
