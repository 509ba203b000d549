"""Every command within reach on a real desktop: right clicks, colours, help, and the tray of either kind."""

import unittest

from desktop import DesktopTest, wait_until
from opener import Opener
from places import Colors, Main
from tray_host import TrayHost
from window_test import WindowTest

NEW_TASK = "Planovarium - New Task"
COLORS = "Planovarium - Colors and Names"
COLOR_DIALOG = "Select Color"
REMINDERS = "^Planovarium - Reminder List"
BLUE = bytes((0x12, 0x56, 0xFE))


class RightClicks(WindowTest):
    # Each mode with its key, and the mode to which the last item of its menu leads.
    modes = {"Homework": ("ctrl+2", "Calendar"), "Events": ("ctrl+3", "Calendar"), "Tasks": ("ctrl+4", "Calendar"),
             "Calendar": ("ctrl+1", "Tasks")}

    def by_mouse(self):
        self.desktop.click(*self.desktop.on_screen(self.window.id, Main.ROW), 3)

    def by_key(self):
        self.key("Menu")

    def size_of_menu(self, opened_by):
        opened_by()
        return self.desktop.geometry(wait_until(self.desktop.popup_menu, "the menu is open"))[2:]

    def test_open_the_menu_of_each_mode_by_mouse_and_by_the_menu_key(self):
        sizes = set()
        for mode, (key, target) in self.modes.items():
            for opened_by in (self.by_mouse, self.by_key):
                with self.subTest(mode, opened_by=opened_by.__name__):
                    self.key(key)
                    self.window.wait_for_mode(mode)
                    sizes.add((mode, self.size_of_menu(opened_by)))
                    self.key("Up", "Return")  # the last item
                    self.window.wait_for_mode(target)
        self.assertEqual(len(sizes), len(self.modes), "one menu a mode")

    def test_offer_a_new_record_first(self):
        self.key("ctrl+4")
        self.window.wait_for_mode("Tasks")
        self.by_key()
        wait_until(self.desktop.popup_menu, "the menu is open")
        self.key("Down", "Return")
        wait_until(lambda: self.desktop.window(NEW_TASK), "the editor is open")


class TypeColors(WindowTest):
    def test_are_chosen_in_the_color_dialog_and_seen_in_the_list_after_a_restart(self):
        self.key("alt+o", "c")
        dialog = wait_until(lambda: self.desktop.window(COLORS), "the colours are shown")
        self.desktop.press_in(dialog, "alt+b")  # of the first type of tasks
        chooser = wait_until(lambda: self.desktop.window(COLOR_DIALOG), "a colour is asked for")
        self.desktop.press_in(chooser, "alt+h", "ctrl+a")
        self.desktop.type("#" + BLUE.hex())
        self.key("Return")
        wait_until(lambda: not self.desktop.window(COLOR_DIALOG), "the colour is chosen")
        self.desktop.click_in(dialog, Colors.OK)
        wait_until(lambda: not self.desktop.window(COLORS), "the colours are closed")
        self.look_for_blue()
        self.assertEqual(self.sample.shut_down(), 0)
        self.sample.start()
        self.window = type(self.window)(self.sample)
        self.look_for_blue()

    def look_for_blue(self):
        self.key("ctrl+4")
        self.window.wait_for_mode("Tasks")
        wait_until(lambda: self.desktop.colours(self.window.id, Main.VIEW).count(BLUE) > 1000, "a row is blue")


class Help(WindowTest):
    def start_at_design_size(self):
        self.opener = Opener(self.sample)
        super().start_at_design_size()

    def test_opens_the_book_and_leaves_the_marker_of_its_process(self):
        programs = self.sample.drive / "Planovarium"
        book = str(programs / "Help" / "index.html")
        self.key("F1")
        self.opener.wait_for(book)
        self.assertEqual(self.sample.markers(),
                         sorted(f"{number}.PID" for number in (self.sample.process.pid, *self.opener.processes())))
        self.key("alt+h", "o")
        self.opener.wait_for(book, (programs / "Homework Help" / "index.html").as_uri())
        self.assertEqual(len(self.sample.markers()), 2)


class BusTray(DesktopTest):
    """The tray of most desktops, which asks for its icons over the session bus."""

    tray = False

    def setUp(self):
        super().setUp()
        self.host = TrayHost(self.desktop)
        self.addCleanup(self.host.close)
        self.program = self.planner().start()
        wait_until(self.host.has_icon, "the tray has the icon")

    def test_menu_offers_the_window_only_while_it_is_hidden(self):
        shown = ["Show Popup Reminders...", "-", "Shutdown Planovarium"]
        self.assertEqual(self.host.menu(), shown)
        self.program.hide()
        self.assertEqual(self.host.menu(), [*shown[:2], "Open Planovarium...", shown[2]])
        self.host.choose("Open Planovarium...")
        self.program.wait_for_window()
        self.assertEqual(self.host.menu(), shown)

    def test_two_clicks_show_a_hidden_window(self):
        self.program.hide()
        self.host.double_click()
        self.program.wait_for_window()

    def test_menu_shows_the_reminders_and_shuts_the_planner_down(self):
        self.host.choose("Show Popup Reminders...")
        wait_until(lambda: self.desktop.windows_named(REMINDERS), "the reminders are shown")
        self.host.choose("Shutdown Planovarium")
        self.assertEqual(self.program.wait_for_exit(), 0)
        self.assertEqual(self.program.markers(), [])


if __name__ == "__main__":
    unittest.main()
