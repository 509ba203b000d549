"""A month and a list become pages through the real file dialog, and the program that the desktop opens pages with is
told of them."""

import shutil
import unittest
from pathlib import Path

from desktop import DesktopTest, wait_until
from opener import Opener

TEMPLATES = Path(__file__).resolve().parents[2] / "drive" / "Planovarium"
DATE = "2009-10-14 10:00:00"
BOX = "Planovarium"
TASK_CALENDAR = "Export Tasks to HTML Calendar File"
TASK_LIST = "Export Tasks to HTML File"


class Export(DesktopTest):
    def start(self):
        """Starts a planner on a drive with the templates, and a program that opens pages: it notes their addresses."""
        planner = self.planner(date=DATE)
        for template in TEMPLATES.glob("*.html"):
            shutil.copy(template, planner.drive / "Planovarium")
        self.opener = Opener(planner)
        return planner.start()

    def choose(self, planner, item, title):
        """Chooses an item of the export menu by its letter; gives the dialog."""
        self.desktop.press_in(planner.window(), "alt+f")
        wait_until(self.desktop.popup_menu, "the menu is open")
        self.desktop.key("o")
        self.desktop.key(item)
        return wait_until(lambda: self.desktop.window(title), "the dialog asks for the place")

    def enter(self, dialog, name):
        self.desktop.activate(dialog)
        self.desktop.key("ctrl+a")
        self.desktop.type(str(name))
        self.desktop.key("Return")

    def test_a_month_is_proposed_in_the_document_folder_and_opened(self):
        planner = self.start()
        self.desktop.activate(self.choose(planner, "t", TASK_CALENDAR))
        self.desktop.key("Return")
        page = planner.documents / "Planovarium" / "October Task Calendar.html"
        self.opener.wait_for(page.as_uri())
        text = page.read_bytes()
        self.assertIn(b"<h1>October 2009 Task Calendar</h1>\r\n", text)
        self.assertTrue(text.endswith(b"</html>\r\n"))
        self.assertEqual(planner.shut_down(), 0)

    def test_a_list_gets_the_ending_and_replaces_a_page_when_told_so(self):
        planner = self.start()
        self.desktop.press_in(planner.window(), "ctrl+4")
        page = planner.drive / "My tasks.html"
        page.write_text("old")
        self.enter(self.choose(planner, "i", TASK_LIST), planner.drive / "My tasks")
        self.desktop.activate(wait_until(self.question, "it is asked whether the page is replaced"))
        self.assertEqual(page.read_text(), "old")
        self.desktop.key("alt+y")
        self.opener.wait_for(page.as_uri())
        self.assertIn("<h1>Tasks</h1>", page.read_text())

    def question(self):
        """The box over the dialog, which has its title."""
        windows = self.desktop.windows_named(f"^{TASK_LIST}$")
        return windows[1] if len(windows) > 1 else None

    def test_cancel_opens_nothing(self):
        planner = self.start()
        dialog = self.choose(planner, "t", TASK_CALENDAR)
        self.desktop.press_in(dialog, "Escape")
        wait_until(lambda: not self.desktop.window(TASK_CALENDAR), "the dialog is closed")
        self.assertEqual(planner.shut_down(), 0)
        self.assertEqual(self.opener.opened(), [])
        self.assertEqual([*planner.documents.rglob("*.html")], [])

    def test_a_missing_template_ends_the_program_with_its_error_box(self):
        planner = self.start()
        (planner.drive / "Planovarium" / "Tasks-Events Calendar Template3.html").unlink()
        self.enter(self.choose(planner, "t", TASK_CALENDAR), planner.drive / "Page")
        wait_until(lambda: not self.desktop.window(TASK_CALENDAR), "the dialog is closed")
        self.desktop.press_in(wait_until(self.error_box, "the error is told"), "Return")
        self.assertEqual(planner.wait_for_exit(), 1)
        self.assertEqual((planner.drive / "Page.html").read_bytes(), b"")
        self.assertEqual(self.opener.opened(), [])

    def error_box(self):
        return self.desktop.window(BOX)


if __name__ == "__main__":
    unittest.main()
