"""The life of the process on a real desktop: how it starts, is found again, hides and ends."""

import os
import re
import resource
import shutil
import signal
import tempfile
import unittest

from desktop import TITLE, DesktopTest, stays_false, wait_until
from main_window import MainWindow
from session import Session

RECORD_FILES = ["classes.xml", "events.xml", "tasks.xml", "terms.xml"]
BOX = "Planovarium"
SPLASH = "Planovarium starts"
TASK_EDITOR = "Planovarium - New Task"
TIP = "Planovarium Tip of the Day"
READ_ERROR = "Planovarium - File Read Error"
NOBODY = 65534
NO_RECORD_FILE = "line 1\n<wrong>\n"


def terms(*names):
    """The text of a terms file with these terms, numbered from 1."""
    records = "".join(f"<term>\n  <id>{i}</id>\n  <name>{name}</name>\n  <start>2009/08/24</start>\n"
                      f"  <end>2009/12/18</end>\n</term>\n" for i, name in enumerate(names, 1))
    return '<?xml version="1.0" encoding="ISO-8859-1"?>\n<term_data>\n' + records + "</term_data>\n"


def tasks(*descriptions):
    """The text of a tasks file with these tasks, numbered from 1."""
    records = "".join(f"<task>\n  <id>{i}</id>\n  <date>2009/10/14</date>\n  <desc>{description}</desc>\n"
                      "  <date_exists>False</date_exists>\n  <type>None</type>\n  <priority>None</priority>\n"
                      "  <percent_complete>0%</percent_complete>\n  <done>False</done>\n"
                      "  <reminder>False</reminder>\n  <reminder_date>2009/10/14</reminder_date>\n"
                      "  <reminder_time>09:00 AM</reminder_time>\n"
                      "  <reminder_alarm>2009/10/14 09:00:00</reminder_alarm>\n"
                      "  <reminder_list>False</reminder_list>\n  <notes></notes>\n</task>\n"
                      for i, description in enumerate(descriptions, 1))
    return '<?xml version="1.0" encoding="ISO-8859-1"?>\n<task_data>\n' + records + "</task_data>\n"


def type_a_new_task(planner, description):
    """Opens the editor of a new task and types its description; gives the editor."""
    planner.desktop.press_in(planner.window(), "ctrl+t")
    editor = wait_until(lambda: planner.desktop.window(TASK_EDITOR), "the editor is open")
    wait_until(lambda: planner.desktop.active_window_name() == TASK_EDITOR, "the editor is active")
    planner.desktop.type(description)
    return editor


class Start(DesktopTest):
    def test_on_an_empty_drive_makes_the_folders_and_the_empty_files(self):
        planner = self.planner().start(tips=True)
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
        self.assertIsNotNone(self.desktop.window(SPLASH))
        self.assertEqual(planner.markers(), [f"{planner.process.pid}.PID"])
        self.desktop.press_in(box, "Return")
        planner.wait_for_window()
        wait_until(lambda: not self.desktop.window(SPLASH), "the splash is gone")
        self.assertTrue((planner.data / "events.xml").exists())
        self.assertEqual(planner.read_data("tasks.xml"), NO_RECORD_FILE)

    def test_that_cannot_make_its_marker_tells_so_and_ends(self):
        planner = self.planner()
        planner.host.rmdir()
        planner.start(shown=False, tips=True)
        self.desktop.press_in(wait_until(lambda: self.desktop.window(BOX), "the error is told"), "Return")
        self.assertEqual(planner.wait_for_exit(), 1)
        self.assertFalse((planner.documents / "Planovarium").exists())


    def test_with_paths_of_the_working_directory_reads_and_saves_on_the_drive(self):
        planner = self.planner()
        planner.write_data("tasks.xml", tasks("Water the plants"))
        for name in ("U3_HOST_EXEC_PATH", "U3_DEVICE_PATH", "U3_DEVICE_DOCUMENT_PATH", "U3_DEVICE_EXEC_PATH"):
            planner.environment[name] = os.path.relpath(planner.environment[name], planner.drive)
        planner.start(directory=planner.drive)
        type_a_new_task(planner, "Call home")
        self.desktop.key("Return")
        wait_until(lambda: "Call home" in planner.read_data("tasks.xml"), "the task is saved")
        self.assertIn("Water the plants", planner.read_data("tasks.xml"))
        self.assertIsNone(self.desktop.window(READ_ERROR))
        self.assertEqual(planner.shut_down(), 0)
        self.assertEqual(planner.markers(), [])
        self.assertEqual([p.name for p in planner.backup.iterdir()], ["tasks_backup1.xml"])

    def test_takes_away_the_markers_of_killed_processes(self):
        planner = self.planner().start()
        planner.process.kill()
        planner.process.wait()
        other = f"{os.getpid()}.PID"  # a process that lives
        (planner.host / other).touch()
        planner.start()
        self.assertEqual(planner.markers(), sorted([other, f"{planner.process.pid}.PID"]))

    def test_that_fails_is_ended_by_a_signal_while_its_box_is_open(self):
        planner = self.planner()
        planner.host.rmdir()
        planner.start(shown=False)
        wait_until(lambda: self.desktop.window(BOX), "the error is told")
        planner.process.send_signal(signal.SIGTERM)
        self.assertEqual(planner.wait_for_exit(), 1)


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

    def test_leaves_an_open_editor_in_front_and_ends(self):
        planner = self.planner().start()
        type_a_new_task(planner, "Call home")
        self.assertEqual(planner.wait_for_exit(planner.start_another()), 0)
        self.assertEqual(self.desktop.active_window_name(), TASK_EDITOR)
        self.assertIsNone(self.desktop.window(BOX))

    def test_after_exit_of_the_file_menu_reads_no_data_again(self):
        planner = self.planner().start()
        self.desktop.press_in(planner.window(), "alt+f")
        wait_until(self.desktop.popup_menu, "the menu is open")
        self.desktop.key("Up", "Return")  # the last item
        wait_until(lambda: not planner.window(), "the window is hidden")
        planner.write_data("tasks.xml", NO_RECORD_FILE)
        self.assertEqual(planner.wait_for_exit(planner.start_another()), 0)
        planner.wait_for_window()
        self.assertIsNone(self.desktop.window(READ_ERROR))
        self.assertEqual(planner.read_data("tasks.xml"), NO_RECORD_FILE)

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


class TwoStarts(DesktopTest):
    """Two planners started side by side, on one drive."""

    def expect_one_planner(self, planner, first, second):
        """One of the two ends in peace, the other one runs and shows its window."""
        ended = wait_until(lambda: next((p for p in (first, second) if p.poll() is not None), None), "one of them ends")
        self.assertEqual(ended.returncode, 0)
        planner.process = second if ended is first else first
        planner.wait_for_window()
        self.assertIsNone(self.desktop.window(BOX))
        self.assertEqual(planner.shut_down(), 0)

    def test_at_the_same_moment_give_one_window_and_no_complaint(self):
        planner = self.planner()
        for attempt in range(5):
            with self.subTest(attempt):
                self.expect_one_planner(planner, planner.start_another(), planner.start_another())

    def expect_the_second_is_told_and_changes_nothing(self, planner, environment, **options):
        second = planner.start_another(environment=environment, **options)
        box = wait_until(lambda: self.desktop.window(BOX), "the second start is told")
        self.assertIsNone(self.desktop.window(SPLASH))
        self.desktop.press_in(box, "Return")
        self.assertEqual(planner.wait_for_exit(second), 0)
        self.assertIsNone(planner.process.poll())
        self.assertEqual(planner.markers(), [f"{planner.process.pid}.PID"])

    def folder_of_another(self):
        folder = tempfile.mkdtemp(prefix="planovarium-other-")
        self.addCleanup(shutil.rmtree, folder)
        return folder

    def test_with_another_runtime_folder_leave_the_drive_to_the_first(self):
        planner = self.planner().start()
        other = dict(planner.environment, XDG_RUNTIME_DIR=self.folder_of_another())
        self.expect_the_second_is_told_and_changes_nothing(planner, other)
        self.assertEqual(planner.shut_down(), 0)
        planner.start()  # the drive is free again
        self.assertEqual(planner.shut_down(), 0)

    def test_come_forward_though_the_lock_file_of_the_first_has_gone(self):
        planner = self.planner().start()
        planner.hide()
        (self.desktop.runtime / "planovarium.lock").unlink()
        self.assertEqual(planner.wait_for_exit(planner.start_another()), 0)
        planner.wait_for_window()

    @unittest.skipUnless(os.getuid() == 0, "only root may be somebody else")
    def test_of_two_users_leave_the_drive_to_the_first(self):
        planner = self.planner().start()
        folder = self.folder_of_another()
        shutil.chown(folder, NOBODY, NOBODY)
        planner.drive.chmod(0o755)
        other = dict(planner.environment, XDG_RUNTIME_DIR=folder, HOME=folder)
        self.expect_the_second_is_told_and_changes_nothing(planner, other, user=NOBODY)


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

    def test_menu_shows_the_reminders(self):
        self.planner().start()
        self.open_tray_menu()
        self.desktop.key("Down", "Return")  # the first item
        wait_until(lambda: self.desktop.windows_named("^Planovarium - Reminder List"), "the reminders are shown")

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


    def test_menu_restores_a_minimized_window(self):
        planner = self.planner().start()
        self.desktop.run("xdotool", "windowminimize", "--sync", planner.window())
        wait_until(lambda: not planner.window(), "the window is minimized")
        self.open_tray_menu()
        self.desktop.key("Down", "Down", "Return")
        planner.wait_for_window()


class NoTray(DesktopTest):
    tray = False

    def test_closing_hides_all_the_same_and_a_second_start_brings_the_window_back(self):
        planner = self.planner().start()
        planner.hide()
        self.assertEqual(planner.wait_for_exit(planner.start_another()), 0)
        planner.wait_for_window()
        self.assertEqual(planner.shut_down(), 0)


class Saving(DesktopTest):
    def test_beyond_the_limit_of_a_files_size_tells_so_and_keeps_the_old_file(self):
        planner = self.planner()
        old = tasks(*["Water the plants"] * 20)
        planner.write_data("tasks.xml", old)
        planner.start()
        type_a_new_task(planner, "Call home")
        resource.prlimit(planner.process.pid, resource.RLIMIT_FSIZE, (4096, 4096))
        self.desktop.key("Return")
        box = wait_until(lambda: self.desktop.window(READ_ERROR), "the failure is told")
        self.desktop.press_in(box, "Return")
        wait_until(lambda: not self.desktop.window(READ_ERROR), "the message is closed")
        self.assertIsNone(planner.process.poll())
        self.assertEqual(planner.read_data("tasks.xml"), old)

    def test_in_a_run_gives_one_backup_of_that_file_alone(self):
        planner = self.planner().start()
        for description in ("Call home", "Water the plants"):
            type_a_new_task(planner, description)
            self.desktop.key("Return")
            wait_until(lambda: description in planner.read_data("tasks.xml"), "the task is saved")
        self.assertEqual(planner.shut_down(), 0)
        self.assertEqual([p.name for p in planner.backup.iterdir()], ["tasks_backup1.xml"])
        self.assertEqual((planner.backup / "tasks_backup1.xml").read_bytes(), (planner.data / "tasks.xml").read_bytes())


class Idle(DesktopTest):
    seconds = 11  # longer than the slowest timer's interval

    @staticmethod
    def processor_seconds(process):
        with open(f"/proc/{process.pid}/stat", encoding="ascii") as stat:
            fields = stat.read().rsplit(")", 1)[1].split()
        return (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")  # its own and the system's for it

    def wait_for_rest(self, process):
        """Waits until all that comes with the start is done."""
        def rests():
            before = self.processor_seconds(process)
            return stays_false(lambda: self.processor_seconds(process) != before, 1)

        wait_until(rests, "the planner rests")

    def test_takes_less_than_a_hundredth_of_a_processor(self):
        planner = self.planner().start()
        wait_until(lambda: self.desktop.active_window_name() == TITLE, "the window is active")
        wait_until(self.desktop.tray_icon, "the icon is in the tray")
        self.wait_for_rest(planner.process)
        before = self.processor_seconds(planner.process)
        limit = before + self.seconds / 100
        self.assertTrue(stays_false(lambda: self.processor_seconds(planner.process) > limit, self.seconds))


class Failure(DesktopTest):
    def test_while_an_event_is_handled_is_told_and_ends_the_program(self):
        planner = self.planner()
        planner.write_data("tasks.xml", tasks("Call home").replace("<reminder>False", "<reminder>Perhaps"))
        planner.start()
        self.desktop.press_in(planner.window(), "ctrl+4")  # whose list needs the flag
        self.desktop.press_in(wait_until(lambda: self.desktop.window(BOX), "the error is told"), "Return")
        self.assertEqual(planner.wait_for_exit(), 1)
        self.assertEqual(planner.read_data("Prefs.ini"), "ShowTipsAtStartup=No\n")


class Tips(DesktopTest):
    def test_come_up_with_the_window_until_the_box_is_unticked(self):
        planner = self.planner()
        planner.start(tips=True)
        tip = wait_until(lambda: self.desktop.window(TIP), "a tip stands")
        self.desktop.press_in(tip, "alt+s")
        wait_until(lambda: self.desktop.key("Escape") or not self.desktop.window(TIP), "the tip has gone")
        self.assertEqual(planner.shut_down(), 0)
        self.assertIn("\nShowTipsAtStartup=No\n", planner.read_data("Prefs.ini"))
        self.assertTrue(planner.read_data("Prefs.ini").count("\nCurrentTip=1\n"))
        planner.start(tips=True)
        self.assertTrue(stays_false(lambda: self.desktop.window(TIP), 1.5))
        self.assertEqual(planner.shut_down(), 0)

    def lines_told_at_the_start(self, record, field, value):
        """The pictures of the lines of the box that the start ends with, where a field of one of two tasks has a
        value that cannot be used."""
        planner = self.planner(date="2009-10-14 12:00:00")
        text = tasks("Water the plants", "Call home").replace("<date_exists>False", "<date_exists>True")
        front, back = text.split(f"<id>{record}</id>")
        text = front + f"<id>{record}</id>" + re.sub(f"<{field}>[^<]*", f"<{field}>{value}", back, count=1)
        planner.write_data("tasks.xml", text)
        planner.start(shown=False)
        box = wait_until(lambda: self.desktop.window(BOX), "the error is told")
        lines = wait_until(lambda: self.desktop.settled_lines_of_text(box), "the text is painted")
        self.desktop.press_in(box, "Return")
        self.assertEqual(planner.wait_for_exit(), 1)
        self.assertEqual(planner.read_data("tasks.xml"), text)
        return lines

    def test_at_the_start_is_told_with_its_place_in_the_file_and_ends_the_program(self):
        error, _, record, field, value = range(5)  # the lines of the box, the second of which names the file
        told = self.lines_told_at_the_start(2, "done", "Perhaps")
        self.assertGreater(len(told), value + 1, "the advice")
        for other, expected in (((1, "done", "Perhaps"), {record}), ((2, "date", "Perhaps"), {error, field}),
                                ((2, "done", "Possibly"), {error, value})):
            with self.subTest(other):
                lines = self.lines_told_at_the_start(*other)
                self.assertEqual(len(lines), len(told))
                self.assertEqual({i for i, line in enumerate(lines) if line != told[i]}, expected)


class Shutdown(DesktopTest):
    def test_by_signal_leaves_everything_in_order(self):
        for number in (signal.SIGTERM, signal.SIGINT, signal.SIGHUP):
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

    def test_by_the_end_of_the_desktop_session_leaves_everything_in_order(self):
        session = Session()
        planner = self.planner()
        planner.write_data("Prefs.ini", "StartDayofWeek=Saturday\n")
        planner.environment["SESSION_MANAGER"] = session.address
        planner.start()
        wait_until(lambda: session.saved == 1, "the planner takes part in the session")
        planner.hide()
        self.assertIsNone(planner.process.poll())
        session.end()
        self.assertEqual(planner.wait_for_exit(), 0)
        self.assertEqual(planner.markers(), [])
        self.assertIn("\nStartDayofWeek=Saturday\n", planner.read_data("Prefs.ini"))

    def test_before_the_preferences_were_read_leaves_them_alone(self):
        planner = self.planner()
        preferences = "ActiveTerm=Fall 2009\nShowTipsAtStartup=No\n"
        planner.write_data("Prefs.ini", preferences)
        planner.write_data("terms.xml", NO_RECORD_FILE)
        planner.start(shown=False)
        wait_until(lambda: self.desktop.window(READ_ERROR), "the failure is told")
        self.assertEqual(planner.shut_down(), 0)
        self.assertEqual(planner.read_data("Prefs.ini"), preferences)
        self.assertFalse((planner.data / "events.xml").exists())
        self.assertEqual(planner.markers(), [])


    def test_while_an_editor_is_open_saves_nothing_of_it(self):
        planner = self.planner()
        planner.write_data("tasks.xml", tasks("Water the plants"))
        planner.start()
        type_a_new_task(planner, "Call home")
        self.assertEqual(planner.shut_down(), 0)
        self.assertEqual(planner.read_data("tasks.xml"), tasks("Water the plants"))
        self.assertEqual(planner.markers(), [])
        self.assertTrue((planner.data / "Prefs.ini").exists())


class WindowPlace(DesktopTest):
    def test_comes_back_where_it_was_left(self):
        planner = self.planner().start()
        window = planner.window()
        self.desktop.run("xdotool", "windowsize", "--sync", window, "900", "650")
        self.desktop.run("xdotool", "windowmove", "--sync", window, "120", "90")
        wait_until(lambda: self.desktop.geometry(window)[2:] == (900, 650), "the window has its new size")
        before = self.desktop.geometry(window)
        MainWindow(planner).finish_input()  # the planner too knows of it
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

    def test_maximized_returns_to_the_design_size(self):
        planner = self.planner()
        planner.write_data("Prefs.ini", "FormMainState=2\nFormMainLocationX=0\nFormMainSizeX=0\nFormMainSizeY=0\n")
        planner.start()
        wait_until(lambda: self.desktop.geometry(planner.window())[2] > 1200, "the window is maximized")
        self.desktop.run("wmctrl", "-i", "-r", planner.window(), "-b", "remove,maximized_vert,maximized_horz")
        wait_until(lambda: self.desktop.geometry(planner.window())[2:] == (780, 575), "the window has the design size")


if __name__ == "__main__":
    unittest.main()
