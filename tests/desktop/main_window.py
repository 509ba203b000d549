"""The main window of a planner as a student sees and uses it: what it shows at its places, and its modes."""

import hashlib

from desktop import wait_until
from places import Main

BRIGHT = 0xE0  # the word of the active mode is white, those of the others have no more than 0xC0
HALF_WORD = 20  # pixels that are looked at to either side of a word's middle


class MainWindow:
    def __init__(self, planner):
        self.desktop = planner.desktop
        self.id = planner.window()
        self.desktop.activate(self.id)

    def look(self, area):
        """A short mark of what the area shows: the same for the same picture."""
        return hashlib.sha256(self.desktop.colours(self.id, area)).hexdigest()

    def is_bare(self, area):
        """Whether the area shows nothing but one colour."""
        colours = self.desktop.colours(self.id, area)
        return colours == colours[:3] * (len(colours) // 3)

    def click(self, place):
        self.desktop.click_in(self.id, place)

    def mode(self):
        """The mode whose word in the mode bar is bright, or None while it changes."""
        words = self.desktop.colours(self.id, Main.MODE_WORDS)
        bright = [mode for mode, (x, _) in Main.MODES.items() if has_bright_pixel(words, x)]
        return bright[0] if len(bright) == 1 else None

    def wait_for_mode(self, mode):
        wait_until(lambda: self.mode() == mode, f"the mode is {mode}")

    def wait_for_change(self, area, before, what):
        """Waits until the area shows something else, and gives what it shows then."""
        wait_until(lambda: self.look(area) != before, what)
        return self.settled(area)

    def wait_for_picture(self, area, picture, what):
        wait_until(lambda: self.look(area) == picture, what)

    def finish_input(self):
        """Waits until all mouse and keyboard input so far has taken effect: a menu opened behind it is open. That
        also tells that no dialog is."""
        bar = self.look(Main.MENU_BAR)
        self.desktop.key("alt+f")
        wait_until(self.desktop.popup_menu, "the menu is open")

        def has_left_the_menus():
            self.desktop.key("Escape", "Escape")  # out of the menu, out of the menu bar
            return not self.desktop.popup_menu() and self.look(Main.MENU_BAR) == bar

        wait_until(has_left_the_menus, "the menu is closed and the menu bar left")

    def settled(self, area):
        """What the area shows once all input has taken effect and two looks at it are alike."""
        self.finish_input()
        looks = [self.look(area)]

        def is_still():
            looks.append(self.look(area))
            return looks[-1] == looks[-2]

        wait_until(is_still, "the picture stands still")
        return looks[-1]


def has_bright_pixel(words, middle):
    """Whether the picture of the words has a bright pixel around this column."""
    left, width = middle - HALF_WORD, Main.MODE_WORDS[2]
    rows = (words[row + 3 * left:row + 3 * (left + 2 * HALF_WORD)] for row in range(0, len(words), 3 * width))
    return any(min(row[i:i + 3]) >= BRIGHT for row in rows for i in range(0, len(row), 3))
