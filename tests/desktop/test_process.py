"""The life of the process on a real desktop: how it starts, is found again, hides and ends."""

import signal
import unittest

from desktop import TITLE, DesktopTest, stays_false, wait_until

RECORD_FILES = ["classes.xml", "events.xml", "tasks.xml", "terms.xml"]
BOX = "Planovarium"
READ_ERROR = "Planovarium - File Read Error"
NO_RECORD_FILE = "line 1\n<wrong>\n"


def terms(*names):
    """The text of a terms file with these terms, numbered from 1."""
    records = "".join(f"<term>\n  <id>{i}</id>\n  <name>{name}</name>\n  <start>2009/08/24</start>\n"
                      f"  <end>2009/12/18</end>\n</term>\n" for i, name in enumerate(names, 1))
    return '<?xml version="1.0" encoding="ISO-8859-1"?>\n<term_data>\n' + records + "</term_data>\n"


class Start(DesktopTest):
    def test_on_an_empty_drive_makes_the_folders_and_the_empty_files(self):
        planner = self.planner().start()
        self.assertEqual(sorted(p.name for p in planner.data.glob("*.xml")), RECORD_FILES)
        self.assertTrue(planner.backup.is_dir())
        self.assertEqual(planner.markers(), [f"{planner.process.pid}.PID"])
        self.assertEqual((planner.host / planner.markers()[0]).stat().st_size, 0)
        self.assertFalse((planner.data / "Prefs.ini").exists())
        wait_until(self.desktop.tray_icon, "the icon is in the tray")

    def test_is_refused_without_any_of_the_four_variables(self):
        for name in ("U3_HOST_EXEC_PATH", "U3_DEVICE_PATH", "U3_DEVICE_DOCUMENT_PATH", "U3_DEVICE_EXEC_PATH"):
            with self.subTest(name):
                planner = self.planner()
                process = planner.start_another(environment=dict(planner.environment, **{name: ""}))
                box = wait_until(lambda: self.desktop.window(BOX), "the refusal is shown")
                self.assertIsNone(planner.window())
                self.desktop.press_in(box, "Return")
                self.assertEqual(planner.wait_for_exit(process), 0)
                self.assertFalse((planner.documents / "Planovarium").exists())
                self.assertEqual(planner.markers(), [])

    def test_goes_on_after_a_failed_read_with_its_marker_there(self):
        planner = self.planner()
        planner.write_data("tasks.xml", NO_RECORD_FILE)
        planner.start(shown=False)
        box = wait_until(lambda: self.desktop.window(READ_ERROR), "the failure is told")
        self.assertEqual(planner.markers(), [f"{planner.process.pid}.PID"])
        self.desktop.press_in(box, "Return")
        planner.wait_for_window()
        self.assertTrue((planner.data / "events.xml").exists())
        self.assertEqual(planner.read_data("tasks.xml"), NO_RECORD_FILE)


class StartMode(DesktopTest):
    def listed(self):
        """Whether the window manager lists the main window, as it does a minimized but not a hidden one."""
        windows = self.desktop.run("xprop", "-root", "_NET_CLIENT_LIST").split("#")[-1].split(",")
        return any(TITLE in self.desktop.run("xprop", "-id", window.strip(), "WM_NAME") for window in windows)

    def start_from_startup_folder(self, mode):
        planner = self.planner()
        planner.write_data("Prefs.ini", f"AutoStart={mode}\n")
        planner.start("Startup Folder", shown=False)
        wait_until(self.desktop.tray_icon, "the icon is in the tray")
        wait_until(lambda: (planner.data / "events.xml").exists(), "the load has read the data")
        return planner

    def test_that_hides_leaves_only_the_tray_icon(self):
        for mode in ("Full", "Tray", "No", "Other"):  # "Full" too: the start looks for another word
            with self.subTest(mode):
                planner = self.start_from_startup_folder(mode)
                self.assertTrue(stays_false(lambda: planner.window() or self.listed(), 1))
                self.assertEqual(planner.shut_down(), 0)

    def test_minimized_leaves_the_window_minimized(self):
        planner = self.start_from_startup_folder("Min")
        wait_until(self.listed, "the window manager knows the window")
        wait_until(lambda: not planner.window(), "the window is minimized")
        self.assertEqual(planner.shut_down(), 0)

    def test_is_not_looked_at_for_any_other_command_line(self):
        for arguments in ([], ["startup folder"], ["Startup", "Folder", "x"]):
            with self.subTest(arguments):
                planner = self.planner()
                planner.write_data("Prefs.ini", "AutoStart=Tray\n")
                planner.start(*arguments)
                self.assertEqual(planner.shut_down(), 0)


class SecondStart(DesktopTest):
    def test_brings_a_hidden_window_forward_and_ends(self):
        planner = self.planner().start()
        planner.hide()
        self.assertIsNone(planner.process.poll())
        self.assertEqual(planner.wait_for_exit(planner.start_another()), 0)
        planner.wait_for_window()
        self.assertEqual(planner.markers(), [f"{planner.process.pid}.PID"])

    def test_restores_a_minimized_window(self):
        planner = self.planner().start()
        self.desktop.run("xdotool", "windowminimize", "--sync", planner.window())
        wait_until(lambda: not planner.window(), "the window is minimized")
        self.assertEqual(planner.wait_for_exit(planner.start_another()), 0)
        planner.wait_for_window()

    def test_ends_silently_while_a_message_box_is_open(self):
        planner = self.planner()
        planner.write_data("events.xml", NO_RECORD_FILE)
        planner.start(shown=False)
        wait_until(lambda: self.desktop.window(READ_ERROR), "the failure is told")
        self.assertEqual(planner.wait_for_exit(planner.start_another()), 0)
        self.assertIsNone(planner.window())
        self.assertIsNotNone(self.desktop.window(READ_ERROR))
        self.assertIsNone(self.desktop.window(BOX))

    def test_needs_no_variables_to_hand_over(self):
        planner = self.planner().start()
        planner.hide()
        bare = dict(planner.environment, U3_HOST_EXEC_PATH="")
        self.assertEqual(planner.wait_for_exit(planner.start_another(environment=bare)), 0)
        planner.wait_for_window()

    def test_tells_that_the_planner_runs_when_the_first_does_not_answer(self):
        planner = self.planner().start()
        planner.process.send_signal(signal.SIGSTOP)
        self.addCleanup(planner.process.send_signal, signal.SIGCONT)
        second = planner.start_another()
        box = wait_until(lambda: self.desktop.window(BOX), "the link error is told")
        self.desktop.press_in(box, "Return")
        self.assertEqual(planner.wait_for_exit(second), 0)

    def test_takes_over_from_a_killed_instance(self):
        planner = self.planner().start()
        planner.process.kill()
        planner.process.wait()
        planner.start()
        self.assertEqual(planner.shut_down(), 0)


class Tray(DesktopTest):
    def test_double_click_shows_a_hidden_window(self):
        planner = self.planner().start()
        planner.hide()
        self.click_tray(repeat=2)
        planner.wait_for_window()

    def test_menu_shuts_the_planner_down(self):
        planner = self.planner().start()
        self.open_tray_menu()
        self.desktop.key("Up", "Return")  # the last item
        self.assertEqual(planner.wait_for_exit(), 0)
        self.assertEqual(planner.markers(), [])
        self.assertTrue((planner.data / "Prefs.ini").exists())

    def test_menu_opens_a_hidden_window(self):
        planner = self.planner().start()
        planner.hide()
        self.open_tray_menu()
        self.desktop.key("Down", "Down", "Return")  # the reminders, then the window
        planner.wait_for_window()

    def test_menu_has_no_commands_while_a_message_box_is_open(self):
        planner = self.planner()
        planner.write_data("events.xml", NO_RECORD_FILE)
        planner.start(shown=False)
        wait_until(lambda: self.desktop.window(READ_ERROR), "the failure is told")
        self.click_tray(button=3)
        self.assertTrue(stays_false(self.desktop.popup_menu, 1))


class Shutdown(DesktopTest):
    def test_by_signal_leaves_everything_in_order(self):
        for number in (signal.SIGTERM, signal.SIGINT):
            with self.subTest(number):
                planner = self.planner()
                planner.write_data("terms.xml", terms("Fall 2009", "Spring 2010"))
                planner.write_data("Prefs.ini", "ActiveTerm=Fall 2009\nStartDayofWeek=Saturday\n")
                planner.start()
                planner.process.send_signal(number)
                self.assertEqual(planner.wait_for_exit(), 0)
                self.assertEqual(planner.markers(), [])
                preferences = planner.read_data("Prefs.ini")
                self.assertIn("\nActiveTerm=Fall 2009\n", preferences)
                self.assertIn("\nStartDayofWeek=Saturday\n", preferences)
                self.assertTrue(preferences.endswith("EventFC_Custom3=0\n"))
                self.assertEqual(list(planner.backup.iterdir()), [])
                self.assertEqual(planner.read_data("terms.xml"), terms("Fall 2009", "Spring 2010"))

    def test_before_the_preferences_were_read_leaves_them_alone(self):
        planner = self.planner()
        planner.write_data("Prefs.ini", "ActiveTerm=Fall 2009\n")
        planner.write_data("terms.xml", NO_RECORD_FILE)
        planner.start(shown=False)
        wait_until(lambda: self.desktop.window(READ_ERROR), "the failure is told")
        self.assertEqual(planner.shut_down(), 0)
        self.assertEqual(planner.read_data("Prefs.ini"), "ActiveTerm=Fall 2009\n")
        self.assertFalse((planner.data / "events.xml").exists())
        self.assertEqual(planner.markers(), [])


class WindowPlace(DesktopTest):
    def test_comes_back_where_it_was_left(self):
        planner = self.planner().start()
        window = planner.window()
        self.desktop.run("xdotool", "windowsize", "--sync", window, "900", "650")
        self.desktop.run("xdotool", "windowmove", "--sync", window, "120", "90")
        wait_until(lambda: self.desktop.geometry(window)[2:] == (900, 650), "the window has its new size")
        before = self.desktop.geometry(window)
        self.assertEqual(planner.shut_down(), 0)
        planner.start()
        wait_until(lambda: self.desktop.geometry(planner.window()) == before, "the window is where it was")

    def test_maximized_saves_zeros_and_comes_back_maximized(self):
        planner = self.planner()
        planner.write_data("Prefs.ini", "FormMainState=2\n")
        planner.start()
        wait_until(lambda: self.desktop.geometry(planner.window())[2] > 1200, "the window is maximized")
        self.assertEqual(planner.shut_down(), 0)
        self.assertTrue(planner.read_data("Prefs.ini").startswith(
            "[Window Position]\nFormMainState=2\nFormMainLocationX=0\nFormMainLocationY=0\nFormMainSizeX=0\n"
            "FormMainSizeY=0\n"))

    def test_cannot_be_made_smaller_than_the_design_size(self):
        planner = self.planner().start()
        window = planner.window()
        self.desktop.run("xdotool", "windowsize", window, "300", "200")
        self.assertTrue(stays_false(lambda: self.desktop.geometry(window)[2] < 780 or
                                    self.desktop.geometry(window)[3] < 575, 1))


if __name__ == "__main__":
    unittest.main()
