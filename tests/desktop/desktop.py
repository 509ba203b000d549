"""A desktop for the tests: a virtual display with a window manager and a tray, and the real planner on it, driven
from outside with mouse and keyboard. Whatever is started here is ended here, by its process."""

import os
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import time
import unittest
from pathlib import Path

PROGRAM = os.environ["PLANOVARIUM_PROGRAM"]
TITLE = "Planovarium Homework System"
FAKETIME_LIBRARY = "/usr/lib/x86_64-linux-gnu/faketime/libfaketime.so.1"
GREATEST_ICON = 48  # pixels; a menu is wider
BOX_ICON, BOX_BUTTONS = 64, 40  # pixels of a message box left and below of its text
WHEEL_UP, WHEEL_DOWN = 4, 5  # the mouse buttons that stand for a notch of the wheel
NOWHERE = (0, 0, 0, 0)  # the geometry of no window
LIMIT = 20  # seconds that any condition may take to come true


def wait_until(condition, what, limit=LIMIT):
    """Waits until the condition gives something true and returns that."""
    end = time.monotonic() + limit
    while True:
        result = condition()
        if result:
            return result
        if time.monotonic() > end:
            raise AssertionError(f"Gave up waiting until {what}")
        time.sleep(0.05)


def stays_false(condition, seconds):
    """True when the condition has stayed false for so long: for what must not happen."""
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        if condition():
            return False
        time.sleep(0.05)
    return True


class Desktop:
    """A display of its own with openbox and, unless told otherwise, trayer, and a runtime folder of its own."""

    def __init__(self, size="1280x1024", tray=True):
        try:
            self._open(size, tray)
        except BaseException:
            self.close()
            raise

    def _open(self, size, tray):
        self.runtime = Path(tempfile.mkdtemp(prefix="planovarium-runtime-"))  # of mode 700, as it has to be
        self.processes = []
        read_end, write_end = os.pipe()
        self.start(["Xvfb", "-displayfd", str(write_end), "-screen", "0", f"{size}x24", "-nolisten", "tcp",
                     "-noreset", "-r"],  # no key repeats itself when the machine is slow to let it go
                    os.environ, pass_fds=[write_end])
        os.close(write_end)
        with os.fdopen(read_end) as told:
            number = told.readline().strip()
        self.environment = dict(os.environ, DISPLAY=f":{number}", XDG_RUNTIME_DIR=str(self.runtime),
                                HOME=str(self.runtime), QT_QPA_PLATFORM="xcb", LC_ALL="C.UTF-8")
        for name in ("DBUS_SESSION_BUS_ADDRESS", "WAYLAND_DISPLAY"):
            self.environment.pop(name, None)
        self.start(["openbox", "--sm-disable"])
        wait_until(self._window_manager_answers, "the window manager answers")
        if tray:
            self.start(["trayer", "--edge", "bottom", "--align", "right", "--widthtype", "request", "--height", "32"])
            wait_until(lambda: self.windows_named("^panel$"), "the tray stands")

    def _window_manager_answers(self):
        """Asks for one desktop in place of the usual four. Windows that come up earlier may stay unseen: what
        openbox reads while it starts it handles only as something more comes."""
        self.run("xdotool", "set_num_desktops", "1")
        return self.run("xdotool", "get_num_desktops").strip() == "1"

    def start(self, command, environment=None, **options):
        """Starts a program that ends with the desktop, on its display unless told otherwise."""
        self.processes.append(subprocess.Popen(command, env=environment or self.environment, stderr=subprocess.DEVNULL,
                                               **{"stdout": subprocess.DEVNULL, **options}))
        return self.processes[-1]

    def close(self):
        for process in reversed(self.processes):
            process.terminate()
            try:
                process.wait(timeout=5)
            except subprocess.TimeoutExpired:
                process.kill()
                process.wait()
        shutil.rmtree(self.runtime, ignore_errors=True)

    def run(self, *command):
        """The output of a command on this display, whatever its exit."""
        return subprocess.run(command, env=self.environment, capture_output=True, text=True, check=False,
                              timeout=LIMIT).stdout

    def windows_named(self, pattern):
        """The ids of the windows on the screen whose names match the pattern."""
        return self.run("xdotool", "search", "--onlyvisible", "--name", pattern).split()

    def window(self, name):
        """The id of the one window with exactly this name, or None."""
        found = self.windows_named("^" + re.escape(name) + "$")
        return found[0] if found else None

    def active_window_name(self):
        return self.run("xdotool", "getactivewindow", "getwindowname").strip()

    def activate(self, window):
        """Brings the window to the front and gives it the keyboard."""
        def is_active():
            self.run("xdotool", "windowactivate", window)
            return self.run("xdotool", "getactivewindow").strip() == window

        wait_until(is_active, "the window is active")

    def geometry(self, window):
        """Left, top, width and height of a window on the screen; NOWHERE of None and of one that has gone."""
        text = self.run("xwininfo", "-id", window) if window else ""
        numbers = [re.search(label + r":\s+(-?\d+)", text) for label in
                   ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height")]
        return tuple(int(number.group(1)) for number in numbers) if all(numbers) else NOWHERE

    def click(self, x, y, button=1, repeat=1):
        self.run("xdotool", "mousemove", str(x), str(y), "click", "--repeat", str(repeat), "--delay", "60", str(button))

    def turn_wheel(self, x, y, notches):
        """Turns the wheel down at a point of the screen; up where the notches are below zero."""
        button = WHEEL_DOWN if notches > 0 else WHEEL_UP
        self.run("xdotool", "mousemove", str(x), str(y), "click", "--repeat", str(abs(notches)), "--delay", "10",
                 str(button))

    def key(self, *keys):
        self.run("xdotool", "key", "--clearmodifiers", *keys)

    def type(self, text):
        self.run("xdotool", "type", "--delay", "5", text)

    def picture(self, path):
        self.run("import", "-window", "root", str(path))

    def press_in(self, window, *keys):
        """Brings the window to the front and presses the keys in it."""
        self.activate(window)
        self.key(*keys)

    def on_screen(self, window, place):
        """Where on the screen a place of the window is, which is given from the window's left top corner, or below
        zero from its right and bottom."""
        left, top, width, height = place_of_window = self.geometry(window)
        if place_of_window == NOWHERE:
            raise AssertionError(f"The window to be clicked at {place} has gone")
        x, y = place
        return left + (x if x >= 0 else width + x), top + (y if y >= 0 else height + y)

    def click_in(self, window, place):
        self.click(*self.on_screen(window, place))

    def move_to(self, window, place):
        x, y = self.on_screen(window, place)
        self.run("xdotool", "mousemove", str(x), str(y))

    def hold(self, window, place):
        """Presses the mouse at the place and leaves it down."""
        self.move_to(window, place)
        self.run("xdotool", "mousedown", "1")

    def let_go(self):
        self.run("xdotool", "mouseup", "1")

    def colours(self, window, area):
        """The colours in an area of the window, from its left top corner: left, top, width and height; three bytes
        a pixel, row by row."""
        left, top, width, height = area
        return subprocess.run(["import", "-window", window, "-crop", f"{width}x{height}+{left}+{top}", "+repage",
                               "-depth", "8", "rgb:-"], env=self.environment, capture_output=True, check=True,
                              timeout=LIMIT).stdout

    def lines_of_text(self, box):
        """The pictures of the lines of a message box's text, from the top: what is not ground beside its icon and
        above its buttons. None while nothing is painted."""
        width, height = self.geometry(box)[2:]
        width, height = width - BOX_ICON, height - BOX_BUTTONS
        if width <= 0 or height <= 0:
            return None
        pixels = self.colours(box, (BOX_ICON, 0, width, height))
        ground = pixels[:3]
        lines, line = [], []
        for y in range(height):
            row = [pixels[i:i + 3] for i in range(3 * y * width, 3 * (y + 1) * width, 3)]
            while row and row[-1] == ground:
                row.pop()
            if row:
                line.append(row)
            elif line:
                lines.append(line)
                line = []
        return lines or None

    def settled_lines_of_text(self, box):
        """The lines once two looks find the same; None before."""
        lines = self.lines_of_text(box)
        return lines if lines == self.lines_of_text(box) else None

    def close_with_window_manager(self, window):
        """What the window's close box does."""
        self.run("wmctrl", "-i", "-c", window)

    def popup_menu(self):
        """The id of an open menu or drop-down list, or None."""
        for window in self.run("xdotool", "search", "--onlyvisible", "--class", "planovarium").split():
            told = self.run("xwininfo", "-id", window)
            if "Override Redirect State: yes" in told and self.geometry(window)[2] > GREATEST_ICON:
                return window
        return None

    def tray_icon(self):
        """Left, top, width and height of the planner's icon that is seen in the tray, or None."""
        panel = self.windows_named("^panel$")
        tree = self.run("xwininfo", "-tree", "-id", panel[0]) if panel else ""
        icons = re.findall(r"(0x[0-9a-f]+) .*planovarium", tree, re.IGNORECASE)
        seen = [icon for icon in icons if "IsViewable" in self.run("xwininfo", "-id", icon)]
        return self.geometry(seen[0]) if seen else None

    def settled_tray_icon(self):
        """The icon once two looks find it at one place: the tray moves as it makes room."""
        def place():
            first = self.tray_icon()
            return first and first == self.tray_icon() and first

        return wait_until(place, "the icon stands in the tray")


class Planner:
    """The program with a smart drive of its own."""

    def __init__(self, desktop, drive=None, date=None, program=PROGRAM):
        self.desktop = desktop
        self.program = program
        self.drive = Path(drive or tempfile.mkdtemp(prefix="planovarium-drive-"))
        self.owns_drive = drive is None
        self.host = self.drive / "Host"
        self.documents = self.drive / "Documents"
        self.data = self.documents / "Planovarium" / "Data"
        self.backup = self.data / "Backup"
        for folder in (self.host, self.documents, self.drive / "Planovarium"):
            folder.mkdir(parents=True, exist_ok=True)
        self.environment = dict(desktop.environment, U3_DEVICE_PATH=str(self.drive),
                                U3_DEVICE_EXEC_PATH=str(self.drive / "Planovarium"),
                                U3_DEVICE_DOCUMENT_PATH=str(self.documents), U3_HOST_EXEC_PATH=str(self.host))
        self.complaints = desktop.runtime / f"complaints-{self.drive.name}"  # what the program writes to stderr
        self.date_file = desktop.runtime / f"date-{self.drive.name}"
        if date:
            self.set_date(date)
            self.environment.update(LD_PRELOAD=FAKETIME_LIBRARY, FAKETIME_TIMESTAMP_FILE=str(self.date_file),
                                    FAKETIME_NO_CACHE="1", FAKETIME_DONT_FAKE_MONOTONIC="1")
        self.process = None
        self.started = []

    def set_date(self, date):
        """Sets the clock of the program, from where it goes on; also while it runs. The first time that it reads then
        falls a moment before this one."""
        unfinished = self.date_file.with_suffix(".new")
        unfinished.write_text(f"@{date}\n")
        unfinished.rename(self.date_file)

    def start(self, *arguments, shown=True, directory=None, tips=False):
        """Starts the first instance and, unless it starts hidden, waits for its window. No tip of the day comes up
        unless it is told to."""
        if not tips:
            self.want_no_tips()
        self.process = self.start_another(*arguments, directory=directory)
        if shown:
            self.wait_for_window()
        return self

    def want_no_tips(self):
        preferences = self.read_data("Prefs.ini")
        if "ShowTipsAtStartup=No\n" not in preferences:
            self.write_data("Prefs.ini", preferences.replace("ShowTipsAtStartup=Yes\n", "") + "ShowTipsAtStartup=No\n")

    def start_another(self, *arguments, environment=None, directory=None, user=None):
        with self.complaints.open("ab") as complaints:
            process = subprocess.Popen([self.program, *arguments], env=environment or self.environment,
                                       cwd=directory, user=user, stdout=subprocess.DEVNULL, stderr=complaints)
        self.started.append(process)
        return process

    def window(self):
        return self.desktop.window(TITLE)

    def wait_for_window(self):
        def window():
            if self.process.poll() is not None:
                raise AssertionError(f"The planner ended with {self.process.returncode}: {self.complaints.read_text()}")
            return self.window()

        return wait_until(window, "the main window is on the screen")

    def wait_for_exit(self, process=None):
        """The exit status of the process, the first instance's unless told otherwise."""
        return (process or self.process).wait(timeout=LIMIT)

    def shut_down(self):
        self.process.send_signal(signal.SIGTERM)
        return self.wait_for_exit()

    def hide(self):
        """Closes the main window by its close box."""
        self.desktop.close_with_window_manager(self.window())
        wait_until(lambda: not self.window(), "the window is hidden")

    def markers(self):
        return sorted(path.name for path in self.host.glob("*.PID"))

    def write_data(self, name, text):
        self.data.mkdir(parents=True, exist_ok=True)
        (self.data / name).write_bytes(text.replace("\n", "\r\n").encode("latin-1"))

    def read_data(self, name):
        """The text of a file of the data folder; empty while the program has the file moved aside to replace it."""
        try:
            return (self.data / name).read_bytes().decode("latin-1").replace("\r\n", "\n")
        except FileNotFoundError:
            return ""

    def account(self):
        """What a reader of a failed test wants to know of the first instance."""
        if not self.process:
            return "The planner was not started."
        status = self.process.poll()
        state = "runs" if status is None else f"has ended with {status}"
        return f"The planner {state}; its complaints: {self.complaints.read_text()!r}"

    def close(self):
        for process in self.started:
            if process.poll() is None:
                process.kill()
            process.wait()
            for kind in ("sem.faketime_sem", "faketime_shm"):  # which a killed process leaves
                Path(f"/dev/shm/{kind}_{process.pid}").unlink(missing_ok=True)
        if self.owns_drive:
            shutil.rmtree(self.drive, ignore_errors=True)


class DesktopTest(unittest.TestCase):
    """A test with a desktop; planners that it makes are ended with it."""

    screen = "1280x1024"
    tray = True

    def setUp(self):
        self.desktop = Desktop(self.screen, self.tray)
        self.addCleanup(self.desktop.close)

    def _report_failure(self, planner):
        """Tells of the planner of a failed test. With PLANOVARIUM_FAILURES set, leaves a picture of its screen in
        that folder."""
        result = self._outcome.result
        if not any(test is self for test, _ in result.failures + result.errors):
            return
        print(planner.account(), file=sys.stderr)
        folder = os.environ.get("PLANOVARIUM_FAILURES")
        if folder:
            self.desktop.picture(Path(folder) / f"{self.id()}.png")

    def planner(self, **options):
        planner = Planner(self.desktop, **options)
        self.addCleanup(planner.close)
        self.addCleanup(self._report_failure, planner)
        return planner

    def click_tray(self, button=1, repeat=1):
        left, top, width, height = self.desktop.settled_tray_icon()
        self.desktop.click(left + width // 2, top + height // 2, button, repeat)

    def open_tray_menu(self):
        """Later than the toolkit, which notices 0.1 s late that the program's last window has gone, and then closes
        every menu."""
        time.sleep(0.5)
        self.click_tray(button=3)
        wait_until(self.desktop.popup_menu, "the menu is open")
