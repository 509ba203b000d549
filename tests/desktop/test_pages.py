"""The pages for printing in a headless browser: on how many sheets they come out, that heads are repeated and that
nothing is cut at the edges. And the validator's word on them."""

import os
import re
import subprocess
import tempfile
import unittest
import xml.etree.ElementTree as ElementTree
from pathlib import Path

from browser import Browser

SAMPLE_PAGES = os.environ["PLANOVARIUM_SAMPLE_PAGES"]
LISTS = {"Homework List": "Class", "Study Time List": "Class", "Task List": "Task", "Reminder List": "For",
         "Event List": "Event"}  # with the head of their first column
CALENDARS = ["Homework Calendar", "Task Calendar", "Event Calendar"]
SHEETS = {"A4": (210, 297), "Letter": (215.9, 279.4)}  # in millimetres
POINTS_PER_MM = 72 / 25.4
LEAST_MARGIN = 10 * POINTS_PER_MM
GREATEST_COLOR = 255

# What the fixed fragments of a page bring, which the validator minds: of lists the height of a row, of the calendar
# of homework the grey of what is done.
COMPLAINTS = {"lists": {'<tr> proprietary attribute "height"'}, "calendars": {"<font> element removed from HTML5"}}


def run(*command, **options):
    return subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, check=False, **options).stdout


class PageTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(folder.cleanup)
        cls.folder = Path(folder.name)
        subprocess.run([SAMPLE_PAGES, cls.folder], check=True)


class Validator(PageTest):
    def complaints(self, page):
        text = run("tidy", "-quiet", "-errors", "-win1252", page).decode("latin-1")
        return {re.sub(r"^line \d+ column \d+ - Warning: ", "", line) for line in text.splitlines()}

    def test_finds_nothing_in_the_templates_of_empty_lists_and_months(self):
        for name in [*LISTS, *CALENDARS]:
            with self.subTest(name):
                self.assertEqual(self.complaints(self.folder / "empty" / f"{name}.html"), set())

    def test_finds_what_the_fixed_fragments_bring_in_the_sample_pages(self):
        for name in [*LISTS, *CALENDARS]:
            with self.subTest(name):
                found = self.complaints(self.folder / "sample" / f"{name}.html")
                self.assertLessEqual(found, COMPLAINTS["lists" if name in LISTS else "calendars"])


class PrintedTest(PageTest):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.browser = cls.enterClassContext(Browser())

    def sheets(self, page, size, landscape):
        """Prints the page; gives for each sheet its size and its words with where they stand, in points."""
        self.browser.open(page)
        self.assertEqual(self.browser.complaints, [], "the browser's console")
        width, height = SHEETS[size][::-1] if landscape else SHEETS[size]
        self.pdf = self.folder / "page.pdf"
        self.browser.print(width, height, self.pdf)
        text = run("pdftotext", "-bbox", self.pdf, "-").decode()
        document = ElementTree.fromstring(re.sub(' xmlns="[^"]*"', "", text))
        sheets = [(float(sheet.get("width")), float(sheet.get("height")),
                   [(word.text, *(float(word.get(edge)) for edge in ("xMin", "yMin", "xMax", "yMax")))
                    for word in sheet.iter("word")]) for sheet in document.iter("page")]
        for got, _, _ in sheets:
            self.assertAlmostEqual(got, width * POINTS_PER_MM, delta=1)
        return sheets

    def check_margins(self, sheets):
        """No word and no ink lies in the margin of a sheet, and there is some ink within."""
        for width, height, words in sheets:
            self.assertTrue(words)
            for word, left, top, right, bottom in words:
                self.assertGreaterEqual(min(left, top, width - right, height - bottom), LEAST_MARGIN, word)
        prefix = self.folder / "picture"
        run("pdftoppm", "-gray", "-r", "72", self.pdf, prefix)
        for picture in self.folder.glob("picture*.pgm"):
            self.check_picture(picture)
            picture.unlink()

    def check_picture(self, picture):
        _, size, _, pixels = picture.read_bytes().split(b"\n", 3)
        width, height = map(int, size.split())
        margin = int(LEAST_MARGIN)
        rows = [pixels[row * width:(row + 1) * width] for row in range(height)]
        white = bytes([GREATEST_COLOR])
        self.assertEqual(len(pixels), width * height)
        for row in rows[:margin] + rows[-margin:]:
            self.assertEqual(row, white * width, "ink above or below")
        for row in rows:
            self.assertEqual(row[:margin] + row[-margin:], white * (2 * margin), "ink at the sides")
        self.assertTrue(any(row != white * width for row in rows))


class Months(PrintedTest):
    def test_a_month_takes_one_sheet_also_with_a_week_of_20_lines(self):
        for kind in ("sample", "weeks1", "weeks2"):
            for name in CALENDARS:
                for size in SHEETS:
                    with self.subTest(kind=kind, name=name, size=size):
                        sheets = self.sheets(self.folder / kind / f"{name}.html", size, True)
                        self.assertEqual(len(sheets), 1)
                        self.check_margins(sheets)

    def test_a_fuller_month_is_broken_between_weeks_under_the_same_heads(self):
        for name in CALENDARS:
            for size in SHEETS:
                with self.subTest(name=name, size=size):
                    sheets = self.sheets(self.folder / "weeks6" / f"{name}.html", size, True)
                    self.assertEqual(len(sheets), 2)
                    self.check_margins(sheets)
                    for _, _, words in sheets:
                        self.assertEqual(self.days_under_heads(words), 7)

    def days_under_heads(self, words):
        """The day numbers in the topmost line under the heads of the sheet."""
        (heads,) = [bottom for word, _, _, _, bottom in words if word == "MONDAY"]
        below = [(top, word) for word, _, top, _, _ in words if top > heads]
        first = min(top for top, _ in below)
        return sum(re.fullmatch(r"\d{1,2}", word) is not None and top < first + 4 for top, word in below)

    def test_no_type_is_smaller_than_5_points(self):
        for kind, least in (("sample", 8), ("weeks1", 7), ("weeks2", 5), ("weeks6", 5)):
            self.browser.open(self.folder / kind / "Task Calendar.html")
            self.browser.ask("Emulation.setEmulatedMedia", media="print")
            pixels = self.browser.ask_page("parseFloat(getComputedStyle(document.querySelector('td')).fontSize)")
            self.browser.ask("Emulation.setEmulatedMedia", media="")
            self.assertGreaterEqual(pixels * 0.75, least, kind)


class Lists(PrintedTest):
    def test_the_head_of_a_list_of_200_rows_stands_on_every_sheet(self):
        for name, head in LISTS.items():
            for size in SHEETS:
                with self.subTest(name=name, size=size):
                    sheets = self.sheets(self.folder / "rows" / f"{name}.html", size, False)
                    self.assertGreater(len(sheets), 3)
                    self.check_margins(sheets)
                    for _, _, words in sheets:
                        heads = [top for word, _, top, _, _ in words if word == head.upper()]
                        self.assertEqual(len(heads), 1)

    def test_sample_lists_stay_within_their_sheets(self):
        for name in LISTS:
            for size in SHEETS:
                with self.subTest(name=name, size=size):
                    self.check_margins(self.sheets(self.folder / "sample" / f"{name}.html", size, False))

    def test_an_empty_last_cell_of_homework_and_tasks_is_a_box_to_tick(self):
        box = "getComputedStyle([...document.querySelectorAll('tbody tr')].map(row => row.lastElementChild)" \
              ".find(cell => (cell.textContent == '') == {}), '::before').borderTopStyle"
        for name in ("Homework List", "Task List"):
            self.browser.open(self.folder / "sample" / f"{name}.html")
            self.assertEqual(self.browser.ask_page(box.format("true")), "solid")
            self.assertEqual(self.browser.ask_page(box.format("false")), "none")


if __name__ == "__main__":
    unittest.main()
