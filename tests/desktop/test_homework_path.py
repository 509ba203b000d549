"""The whole way of a student by mouse and keyboard: from an empty drive to a term with two classes, three
assignments, one done and scored, and a task finished; then a class deleted, and all of it found again."""

import unittest

from desktop import DesktopTest, wait_until

QUESTION = "Planovarium"
CHOOSER = "Planovarium - Select a Term"
NEW_TERM = "Planovarium - New Term"
EDIT_TERM = "Planovarium - Edit Term"
NEW_ASSIGNMENT = "Planovarium - New Assignment"
EDIT_ASSIGNMENT = "Planovarium - Edit Assignment"
NEW_TASK = "Planovarium - New Task"
DATE = "2009-10-14 10:00:00"


def values(text, tag):
    """The values of a field in a record file, in order."""
    return [line.strip()[len(tag) + 2:-len(tag) - 3] for line in text.split("\n") if line.strip().startswith(f"<{tag}>")]


class HomeworkPath(DesktopTest):
    def opened(self, title):
        window = wait_until(lambda: self.desktop.window(title), f"{title} is open")
        wait_until(lambda: self.desktop.active_window_name() == title, f"{title} is in front")
        return window

    def closed(self, title):
        wait_until(lambda: not self.desktop.window(title), f"{title} is closed")

    def keys(self, *keys):
        self.desktop.key(*keys)

    def to_main(self, planner):
        self.desktop.run("xdotool", "windowactivate", "--sync", planner.window())

    def start_term_from_new_assignment(self):
        self.keys("ctrl+n")
        self.opened(QUESTION)  # there is no term: start one?
        self.keys("Return")
        self.opened(CHOOSER)
        self.press_button_of_chooser(new=True)

    def press_button_of_chooser(self, new):
        """From the list of terms: a new one, or the classes of the present one."""
        self.keys(*(["Tab"] if new else ["Tab", "Tab"]), "space")
        self.closed(CHOOSER)

    def enter_term(self):
        self.opened(NEW_TERM)
        for name, credits in (("Algebra", "3"), ("History", "2")):
            self.keys("space")  # Add Class has the focus
            self.desktop.type(name)
            self.keys("Tab")
            self.desktop.type(credits)
            self.keys("shift+Tab", "Return")
        self.keys("Return")
        self.closed(NEW_TERM)

    def enter_assignment(self, row, description):
        self.keys("ctrl+n")
        self.opened(NEW_ASSIGNMENT)
        self.keys(*["Down"] * row)  # in the list of classes
        self.keys(*["Tab"] * 4)  # over the due date, the type and the priority
        self.desktop.type(description)
        self.keys("Return")
        self.closed(NEW_ASSIGNMENT)

    def finish_and_score_first_assignment(self):
        self.keys("ctrl+2", "Home", "Return")
        self.opened(EDIT_ASSIGNMENT)
        self.keys(*["Tab"] * 8, "space")  # the done box
        self.keys("Tab")
        self.desktop.type("17")
        self.keys("Tab")
        self.desktop.type("20")
        self.keys("Return")  # ends the entry
        self.keys("Return")
        self.closed(EDIT_ASSIGNMENT)

    def enter_finished_task(self):
        self.keys("ctrl+t")
        self.opened(NEW_TASK)
        self.desktop.type("Buy graph paper")
        self.keys(*["Tab"] * 6, "space")  # the done box
        self.keys("Return")
        self.closed(NEW_TASK)

    def delete_first_class(self, planner):
        self.to_main(planner)
        left, top, _, _ = self.desktop.geometry(planner.window())
        self.keys("ctrl+1")
        self.desktop.click(left + 106, top + 320)  # Edit Class Schedule, in Calendar mode
        self.opened(CHOOSER)
        self.press_button_of_chooser(new=False)
        self.opened(EDIT_TERM)
        self.keys("Tab", "space")  # Edit Class
        self.keys(*["Tab"] * 5, "space")  # over the fields, OK and Cancel to Delete
        for _ in range(2):
            self.opened(QUESTION)
            self.keys("Return")
        self.opened(EDIT_TERM)
        self.keys("Return")
        self.closed(EDIT_TERM)

    def test_leaves_everything_on_the_drive(self):
        planner = self.planner(date=DATE).start()
        self.to_main(planner)
        self.start_term_from_new_assignment()
        self.enter_term()
        self.enter_assignment(1, "Sets")
        self.enter_assignment(2, "Rome")
        self.enter_assignment(1, "Rings")
        self.finish_and_score_first_assignment()
        self.keys("ctrl+4")
        self.enter_finished_task()
        assignments = planner.read_data("assignments_1.xml")
        self.assertEqual(values(assignments, "desc"), ["Sets", "Rome", "Rings"])
        self.assertEqual(values(assignments, "class"), ["1", "2", "1"])
        self.assertEqual(values(assignments, "done"), ["True", "False", "False"])
        self.assertEqual(values(assignments, "grade"), ["85%", "", ""])
        self.assertEqual(values(planner.read_data("tasks.xml"), "done"), ["True"])
        self.delete_first_class(planner)
        self.assertEqual(values(planner.read_data("assignments_1.xml"), "desc"), ["Rome"])
        self.assertEqual(planner.shut_down(), 0)
        self.assertEqual(sorted(path.name for path in planner.backup.iterdir()),
                         ["assignments_1_backup1.xml", "classes_backup1.xml", "tasks_backup1.xml",
                          "terms_backup1.xml"])
        before = {path.name: path.read_bytes() for path in planner.data.glob("*.xml")}
        planner.start()
        self.assertEqual(planner.shut_down(), 0)
        self.assertEqual({path.name: path.read_bytes() for path in planner.data.glob("*.xml")}, before)
        self.assertEqual(values(planner.read_data("classes.xml"), "name"), ["History"])


if __name__ == "__main__":
    unittest.main()
