"""The main window on a real desktop: its modes, its steppers, its list and the change of the day."""

import shutil
import subprocess
import tempfile
import time
import unittest
from pathlib import Path

from desktop import DesktopTest, stays_false, wait_until

ROOT = Path(__file__).resolve().parents[2]

# Places in the window at its design size, in pixels.
MODE_LABELS = {"Calendar": (66, 38), "Homework": (178, 38), "Events": (283, 38), "Tasks": (372, 38)}
MONTH_UP = (195, 78)
DAY_UP = (762, 77)
MONTH_NAME = (30, 68, 154, 20)  # left, top, width, height
SMALL_CALENDAR = (8, 68, 198, 142)
CLOCK = (540, 554, 230, 18)
GRID = (216, 98, 554, 440)
FIRST_ROW = (450, 129)
ROW_HEIGHT = 22
WHITE = b"\xff\xff\xff"
EDIT_ASSIGNMENT = "Planovarium - Edit Assignment"


class WindowTest(DesktopTest):
    """A test with the sample drive, laid out for the date of the test."""

    date = "2026-10-14 10:00:00"

    def setUp(self):
        super().setUp()
        folder = Path(tempfile.mkdtemp(prefix="planovarium-sample-"))
        self.addCleanup(shutil.rmtree, folder, ignore_errors=True)
        drive = folder / "drive"
        subprocess.run([ROOT / "tools" / "lay-out-drive", ROOT / "drive", drive, self.date[:10]], check=True,
                       capture_output=True)
        self.sample = self.planner(drive=drive, date=self.date)
        self.sample.write_data("Prefs.ini", "ShowTipsAtStartup=No\n")
        self.sample.start()
        self.window = self.sample.window()
        self.desktop.run("xdotool", "windowactivate", "--sync", self.window)
        wait_until(lambda: self.crop(GRID) != self.blank(GRID), "the view is painted")

    def crop(self, place):
        """The colours of a part of the window, three bytes a pixel."""
        left, top, width, height = place
        return subprocess.run(["import", "-window", self.window, "-crop", f"{width}x{height}+{left}+{top}", "+repage",
                               "-depth", "8", "rgb:-"], env=self.desktop.environment, capture_output=True,
                              check=True).stdout

    @staticmethod
    def blank(place):
        return WHITE * (place[2] * place[3])

    def at(self, point):
        left, top, _, _ = self.desktop.geometry(self.window)
        return left + point[0], top + point[1]

    def click(self, point, button=1):
        self.desktop.click(*self.at(point), button)

    def press(self, point):
        x, y = self.at(point)
        self.desktop.run("xdotool", "mousemove", str(x), str(y), "mousedown", "1")

    def release(self, point):
        x, y = self.at(point)
        self.desktop.run("xdotool", "mousemove", str(x), str(y), "mouseup", "1")

    def active_mode(self):
        """The mode whose word in the mode bar is white, or None while it changes."""
        white = [mode for mode, (x, y) in MODE_LABELS.items()
                 if WHITE in split(self.crop((x - 24, y - 8, 48, 16)))]
        return white[0] if len(white) == 1 else None

    def wait_for_mode(self, mode):
        wait_until(lambda: self.active_mode() == mode, f"the mode is {mode}")

    def settled(self, place):
        """The part of the window once it has stopped changing."""
        before = self.crop(place)
        while True:
            time.sleep(0.2)
            now = self.crop(place)
            if now == before:
                return now
            before = now


def split(colours):
    return {colours[i:i + 3] for i in range(0, len(colours), 3)}


class Modes(WindowTest):
    def test_are_chosen_with_the_mouse(self):
        for mode in ("Homework", "Events", "Tasks", "Calendar"):
            self.click(MODE_LABELS[mode])
            self.wait_for_mode(mode)

    def test_are_chosen_with_keys(self):
        for key, mode in (("2", "Homework"), ("3", "Events"), ("4", "Tasks"), ("1", "Calendar")):
            self.desktop.key(f"ctrl+{key}")
            self.wait_for_mode(mode)


class Steppers(WindowTest):
    def test_step_once_a_press_and_on_while_held(self):
        before = self.settled(MONTH_NAME)
        self.press(MONTH_UP)
        wait_until(lambda: self.crop(MONTH_NAME) != before, "the month has stepped")
        seen = set()

        def has_stepped_on():
            seen.add(self.crop(MONTH_NAME))
            return len(seen) >= 3

        wait_until(has_stepped_on, "the held button steps on")
        self.release(MONTH_UP)
        after = self.settled(MONTH_NAME)
        self.assertTrue(stays_false(lambda: self.crop(MONTH_NAME) != after, 1))

    def test_step_by_day(self):
        before = self.settled(SMALL_CALENDAR)
        self.click(DAY_UP)
        wait_until(lambda: self.crop(SMALL_CALENDAR) != before, "the selected day has moved")


class List(WindowTest):
    def setUp(self):
        super().setUp()
        self.desktop.key("ctrl+2")
        self.wait_for_mode("Homework")
        self.first = self.settled(GRID)

    def wheel(self, button, times):
        self.desktop.click(*self.at(FIRST_ROW), button, times)

    def test_wheel_stops_at_both_ends(self):
        self.wheel(4, 3)
        self.assertEqual(self.settled(GRID), self.first)
        self.wheel(5, 80)
        last = self.settled(GRID)
        self.assertNotEqual(last, self.first)
        self.wheel(5, 5)
        self.assertEqual(self.settled(GRID), last)
        self.wheel(4, 90)
        self.assertEqual(self.settled(GRID), self.first)

    def test_row_opens_when_press_and_release_fall_on_it(self):
        self.click(FIRST_ROW)
        dialog = wait_until(lambda: self.desktop.window(EDIT_ASSIGNMENT), "the editor is open")
        self.desktop.press_in(dialog, "Escape")
        wait_until(lambda: not self.desktop.window(EDIT_ASSIGNMENT), "the editor is closed")

    def test_drag_from_one_row_to_another_opens_nothing(self):
        self.press(FIRST_ROW)
        self.release((FIRST_ROW[0], FIRST_ROW[1] + 3 * ROW_HEIGHT))
        self.assertTrue(stays_false(lambda: self.desktop.window(EDIT_ASSIGNMENT), 1))

    def test_enter_opens_the_row_of_the_keyboard(self):
        self.desktop.key("Home", "Return")
        wait_until(lambda: self.desktop.window(EDIT_ASSIGNMENT), "the editor is open")


class Midnight(WindowTest):
    date = "2026-10-14 23:59:50"

    def test_moves_today_at_the_next_refresh(self):
        before = self.settled(SMALL_CALENDAR)
        clock = self.crop(CLOCK)
        wait_until(lambda: self.crop(CLOCK) != clock, "the clock of the status bar has passed midnight", 40)
        self.desktop.key("ctrl+2")
        self.wait_for_mode("Homework")
        self.desktop.key("ctrl+1")
        self.wait_for_mode("Calendar")
        self.assertNotEqual(self.settled(SMALL_CALENDAR), before)


if __name__ == "__main__":
    unittest.main()
