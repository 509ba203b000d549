"""tools/make-help-pictures: it opens windows of the real program and keeps their pictures."""

import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

from desktop import PROGRAM

ROOT = Path(__file__).resolve().parents[2]
DESIGN_SIZE = "780 575"  # of the main window
LONGEST = 60  # seconds for two pictures


class HelpPictures(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)

    def make(self, *names):
        return subprocess.run([sys.executable, ROOT / "tools" / "make-help-pictures", PROGRAM, self.folder, *names],
                              capture_output=True, text=True, check=False, timeout=LONGEST)

    def told(self, name, what):
        """What ImageMagick tells of a picture."""
        return subprocess.run(["identify", "-format", what, self.folder / name], capture_output=True, text=True,
                              check=True).stdout

    def test_are_made_of_the_windows_that_are_named_and_of_no_others(self):
        result = self.make("homework", "terms")
        self.assertEqual((result.returncode, result.stderr), (0, ""))
        self.assertEqual(sorted(file.name for file in self.folder.iterdir()), ["homework.png", "terms.png"])
        self.assertEqual(self.told("homework.png", "%w %h"), DESIGN_SIZE)
        self.assertNotEqual(self.told("terms.png", "%w %h"), DESIGN_SIZE)
        for name in ("homework.png", "terms.png"):
            self.assertGreater(int(self.told(name, "%k")), 20, "colours, so it is no empty window")

    def test_of_a_window_that_there_is_not_are_refused(self):
        result = self.make("homework", "cellar")
        self.assertEqual(result.returncode, 1)
        self.assertIn("usage:", result.stderr)
        self.assertEqual(list(self.folder.iterdir()), [])


if __name__ == "__main__":
    unittest.main()
