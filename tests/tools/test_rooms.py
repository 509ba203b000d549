"""tools/rooms on a copy of the sources: it passes them as they stand, and tells of each fault planted there."""
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]


class Rooms(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.tree = pathlib.Path(folder.name)
        for name in ("src", "docs"):
            shutil.copytree(ROOT / name, self.tree / name)

    def check(self):
        return subprocess.run([sys.executable, ROOT / "tools" / "rooms", "check", "--tree", self.tree],
                              capture_output=True, text=True, check=False)

    def plant(self, file, include):
        path = self.tree / "src" / file
        path.parent.mkdir(parents=True, exist_ok=True)
        text = path.read_text(encoding="utf-8") if path.exists() else ""
        path.write_text(text + f"\n#include {include}\n", encoding="utf-8")

    def assert_told(self, words):
        result = self.check()
        self.assertEqual(result.returncode, 1)
        self.assertIn(words, result.stdout)

    def test_of_the_sources_as_they_stand_are_kept(self):
        result = self.check()
        self.assertEqual((result.returncode, result.stdout), (0, ""))

    def test_tell_of_a_view_that_includes_a_flow(self):
        self.plant("mainwindow/list/TaskGrid.cpp", '"mainwindow/flows/RecordFlow.h"')
        self.assert_told("mainwindow/list/TaskGrid.cpp includes mainwindow/flows/RecordFlow.h")

    def test_tell_of_a_view_that_opens_an_editor_or_a_menu_or_writes_a_file(self):
        for view in ("input/GridClicks.cpp", "month/MonthCalendar.cpp", "day/DaySchedule.cpp", "list/ListGrid.cpp",
                     "panels/CalendarSteps.cpp", "grid/ViewParts.cpp"):
            for name in ("mainwindow/flows/TaskFlow.h", "mainwindow/flows/Actions.h", "mainwindow/menus/PopupMenus.h",
                         "mainwindow/frame/Unload.h", "editors/FrmTask.h", "persistence/modIO.h"):
                with self.subTest(view=view, name=name):
                    self.plant(f"mainwindow/{view}", f'"{name}"')
                    self.assert_told(f"mainwindow/{view} includes {name}")

    def test_tell_of_a_view_that_refreshes_the_window(self):
        path = self.tree / "src" / "mainwindow" / "panels" / "StudyTimer.cpp"
        text = path.read_text(encoding="utf-8")
        path.write_text(text + "\n// RefreshView comes later\n", encoding="utf-8")
        self.assertEqual(self.check().returncode, 0)
        path.write_text(text + "\nvoid Refresh(frmMain& window) { window.RefreshFor(ReasonResize); }\n", encoding="utf-8")
        self.assert_told("src/mainwindow/panels/StudyTimer.cpp is a view and calls RefreshFor")

    def test_tell_of_a_rule_that_includes_a_file_procedure(self):
        self.plant("planner/study/StudyLog.cpp", '"persistence/modIO.h"')
        self.assert_told("planner/study/StudyLog.cpp includes persistence/modIO.h")

    def test_tell_of_a_rule_that_includes_the_toolkit(self):
        self.plant("planner/dates/DateHelpers.h", "<QString>")
        self.assert_told("planner/dates/DateHelpers.h includes QString")

    def test_tell_of_a_folder_without_a_row(self):
        self.plant("attic/Old.cpp", "<string>")
        self.assert_told("src/attic is no room of the table")

    def test_tell_of_a_folder_that_nobody_looks_over(self):
        for number in range(30):
            self.plant(f"planner/grades/More{number}.cpp", "<string>")
        self.assert_told("src/planner/grades holds 32 sources")

    def test_tell_of_a_drawing_that_is_not_that_of_the_sources(self):
        page = self.tree / "docs" / "architecture.md"
        page.write_text(page.read_text(encoding="utf-8").replace("| 0 | `platform` |", "| 0 | `attic` |"), encoding="utf-8")
        self.assert_told("docs/architecture.md draws other arrows")


if __name__ == "__main__":
    unittest.main()
