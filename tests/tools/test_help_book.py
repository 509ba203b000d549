"""The help book and the homework help of the drive: valid pages whose links lead somewhere, whose pictures exist, and
which name commands and captions as the program has them."""
import html.parser
import pathlib
import re
import struct
import subprocess
import unittest
import urllib.parse

ROOT = pathlib.Path(__file__).resolve().parents[2]
PROGRAM_FOLDER = ROOT / "drive" / "Planovarium"
BOOK = PROGRAM_FOLDER / "Help"
FIRST_PAGE = BOOK / "index.html"
HOMEWORK_HELP = PROGRAM_FOLDER / "Homework Help" / "index.html"
PICTURES = BOOK / "pictures"
SOURCES = ("*.cpp", "*.h", "*.ui")

ONE_OF_A_PAGE = ("title", "h1", "nav", "main")
FOREIGN = ("script", "iframe", "object", "embed", "style", "form")

# Captions of windows and messages that are told of and that no source has yet.
NOT_YET = set()


class Page(html.parser.HTMLParser):
    """What the tests ask of a page."""

    def __init__(self, file):
        super().__init__()
        self.tags, self.ids, self.links, self.pictures, self.styles, self.bold, self.keys = [], [], [], [], [], [], []
        self.open = None
        self.feed(file.read_text(encoding="utf-8"))

    def handle_starttag(self, tag, attrs):
        attributes = dict(attrs)
        self.tags.append(tag)
        self.ids += [attributes["id"]] if "id" in attributes else []
        if tag == "a":
            self.links.append(attributes.get("href", ""))
        if tag == "img":
            self.pictures.append(attributes)
        if tag == "link":
            self.styles.append(attributes.get("href", ""))
        if tag in ("b", "kbd"):
            self.open = self.bold if tag == "b" else self.keys
            self.open.append("")

    def handle_endtag(self, tag):
        if tag in ("b", "kbd"):
            self.open = None

    def handle_data(self, data):
        if self.open is not None:
            self.open[-1] += data


def pages():
    return {file: Page(file) for file in sorted(BOOK.glob("*.html")) + [HOMEWORK_HELP]}


def target(file, link):
    """The file that a link leads to, and the id in it or nothing."""
    path, _, name = link.partition("#")
    return (file.parent / urllib.parse.unquote(path)).resolve() if path else file, name


def size_of_picture(file):
    """Width and height of a PNG, as its attributes have them."""
    head = file.read_bytes()[:24]
    if head[:8] != b"\x89PNG\r\n\x1a\n":
        return None
    return tuple(str(number) for number in struct.unpack(">II", head[16:24]))


def words(text):
    return " ".join(text.split())


class HelpBook(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.pages = pages()

    def for_each_page(self, check):
        for file, page in self.pages.items():
            with self.subTest(page=file.name):
                check(file, page)

    def test_holds_a_page_a_window_and_a_page_a_task(self):
        names = {file.stem for file in self.pages}
        self.assertLessEqual(
            {"window-main", "mode-calendar", "mode-homework", "mode-study", "mode-tasks", "mode-events", "mode-reminders",
             "window-terms", "window-assignment", "window-task", "window-event", "window-recurrence", "window-date",
             "window-reminders", "window-gpa", "window-colors", "window-tip", "window-about", "window-alerts"}, names)
        self.assertLessEqual({"classes", "study", "alerts", "drive", "backup", "reminders", "print", "colors-howto",
                              "study-tips", "average", "templates", "keys"}, names)

    def test_is_valid(self):
        def check(file, _page):
            result = subprocess.run(["tidy", "-quiet", "-errors", "-utf8", file], capture_output=True, text=True,
                                    check=False)
            self.assertEqual((result.returncode, result.stdout + result.stderr), (0, ""))

        self.for_each_page(check)

    def test_has_a_heading_and_a_way_back_to_the_contents_on_each_page(self):
        def check(file, page):
            for tag in ONE_OF_A_PAGE:
                self.assertEqual(page.tags.count(tag), 1, tag)
            self.assertIn(FIRST_PAGE, [target(file, link)[0] for link in page.links])

        self.for_each_page(check)

    def test_has_one_style_and_nothing_that_runs_or_comes_from_elsewhere(self):
        def check(file, page):
            self.assertEqual([target(file, style)[0] for style in page.styles], [BOOK / "book.css"])
            self.assertFalse(set(FOREIGN) & set(page.tags))
            text = file.read_text(encoding="utf-8")
            self.assertNotRegex(text, r"(?i)\son\w+\s*=|javascript:|style\s*=")
            self.assertNotRegex(text, r"(?i)(src|href)\s*=\s*[\"']?\s*([a-z]+:|//)")

        self.for_each_page(check)
        style = (BOOK / "book.css").read_text(encoding="utf-8")
        self.assertNotRegex(style, r"(?i)url\(|@import")
        self.assertIn("@media print", style)

    def test_has_links_that_lead_somewhere(self):
        def check(file, page):
            for link in page.links:
                leads_to, name = target(file, link)
                self.assertIn(leads_to, self.pages, link)
                if name:
                    self.assertIn(name, self.pages[leads_to].ids, link)

        self.for_each_page(check)

    def test_has_no_page_that_the_contents_do_not_lead_to(self):
        reached, waiting = set(), [FIRST_PAGE]
        while waiting:
            file = waiting.pop()
            if file not in reached:
                reached.add(file)
                waiting += [target(file, link)[0] for link in self.pages[file].links]
        self.assertEqual(reached, set(self.pages))
        contents = {target(FIRST_PAGE, link)[0] for link in self.pages[FIRST_PAGE].links}
        self.assertEqual(contents, set(self.pages))

    def test_shows_pictures_that_exist_in_their_size_and_says_what_they_show(self):
        shown = set()
        def check(file, page):
            for picture in page.pictures:
                leads_to, _ = target(file, picture["src"])
                shown.add(leads_to)
                self.assertTrue(leads_to.is_file(), picture["src"])
                self.assertEqual(size_of_picture(leads_to), (picture["width"], picture["height"]), picture["src"])
                self.assertTrue(picture["alt"], picture["src"])

        self.for_each_page(check)
        self.assertEqual(shown, set(PICTURES.iterdir()))

    def test_shows_pictures_that_the_tool_makes(self):
        tool = (ROOT / "tools" / "make-help-pictures").read_text(encoding="utf-8")
        made = set(re.findall(r'^    "(\w+)": \(', tool, re.M))
        self.assertGreater(len(made), 10)
        self.assertLessEqual({file.stem for file in PICTURES.iterdir()}, made)

    def test_names_captions_as_the_program_has_them(self):
        sources = [file for pattern in SOURCES for file in (ROOT / "src").rglob(pattern)]
        told = "\n".join(file.read_text(encoding="utf-8") for file in sources)
        told = re.sub(r'"\s*\n\s*"', "", told).replace("&amp;", "").replace("&", "").replace('\\"', '"')
        def check(_file, page):
            for caption in {words(text) for text in page.bold} - NOT_YET:
                self.assertTrue(re.search(rf"(?<![\w.]){re.escape(caption)}(?![\w])", told), caption)

        self.for_each_page(check)

    def test_tells_of_every_command_of_the_menus_and_its_key(self):
        menus = ROOT / "src" / "mainwindow" / "menus"
        bar = (menus / "MenuBar.cpp").read_text(encoding="utf-8")
        table = (menus / "CommandTable.h").read_text(encoding="utf-8")
        items = re.findall(r'(\w+) = AddCheckable\(window\.(\w+), "([^"]+)"(?:, "([^"]+)")?\)', bar)
        items += [(name, None, caption, key) for name, caption, key in
                  re.findall(r'&MenuBarControls::(\w+),\s*"([^"]+)"(?:,\s*"([^"]*)")?', table)]
        hidden = {"MenuData", "MenuExportCalendar", "MenuExportList"}
        offered = [(caption.replace("&", ""), key) for name, menu, caption, key in items
                   if menu != "MenuStartup" and name not in hidden]
        self.assertGreater(len(offered), 20)
        captions = {words(text) for page in self.pages.values() for text in page.bold}
        keys = {words(text) for text in self.pages[BOOK / "keys.html"].keys}
        for caption, key in offered:
            told = caption in captions or (caption in ("Saturday", "Sunday", "Monday"))
            self.assertTrue(told, caption)
            self.assertTrue(not key or key in keys, key)

    def test_tells_of_every_template_of_the_pages(self):
        templates = {file.name for file in PROGRAM_FOLDER.glob("*Template*.html")}
        self.assertTrue(templates)
        told = words((BOOK / "templates.html").read_text(encoding="utf-8"))
        self.assertEqual(set(re.findall(r">([^<>]* Template\d?\.html)<", told)), templates)

    def test_tells_of_every_command_of_the_check_where_a_backup_is_got_back(self):
        source = (ROOT / "src" / "check" / "Commands.cpp").read_text(encoding="utf-8")
        commands = set(re.findall(r'^    \{"(--[a-z-]+)", \d\},$', source, re.M))
        self.assertGreater(len(commands), 3)
        told = words((BOOK / "backup.html").read_text(encoding="utf-8"))
        self.assertEqual(set(re.findall(r"<td><code>Planovarium/plancheck (--[a-z-]+)", told)), commands)
        self.assertIn("<td><code>Planovarium/plancheck</code>", told)


if __name__ == "__main__":
    unittest.main()
