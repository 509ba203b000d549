"""A test with the sample drive and the main window at its design size."""

import shutil
import subprocess
import tempfile
from pathlib import Path

from desktop import DesktopTest
from main_window import MainWindow

ROOT = Path(__file__).resolve().parents[2]


class WindowTest(DesktopTest):
    """A test with the sample drive, laid out for the date of the test."""

    date = "2026-10-14 10:00:00"  # a Wednesday

    def setUp(self):
        super().setUp()
        folder = Path(tempfile.mkdtemp(prefix="planovarium-sample-"))
        self.addCleanup(shutil.rmtree, folder, ignore_errors=True)
        drive = folder / "drive"
        subprocess.run([ROOT / "tools" / "lay-out-drive", ROOT / "drive", drive, self.date[:10]], check=True,
                       capture_output=True)
        self.sample = self.planner(drive=drive, date=self.date)
        self.start_at_design_size()

    def start_at_design_size(self):
        self.sample.write_data("Prefs.ini", "ShowTipsAtStartup=No\n")
        self.sample.start()
        self.window = MainWindow(self.sample)
        self.window.wait_for_mode("Calendar")

    def key(self, *keys):
        self.desktop.key(*keys)
