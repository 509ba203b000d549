"""The main window on a real desktop: its modes, its size, its steppers, its list and the change of the day."""

import unittest

from desktop import TITLE, stays_false, wait_until
from places import Main, small_day
from window_test import WindowTest

EDIT_ASSIGNMENT = "Planovarium - Edit Assignment"
NEW_TASK = "Planovarium - New Task"
CHOOSER = "Planovarium - Select a Term"
EDIT_TERM = "Planovarium - Edit Term"
QUESTION = "Planovarium"


class Modes(WindowTest):
    def test_are_the_same_by_mouse_and_by_keys(self):
        modes = ["Homework", "Tasks", "Events", "Calendar"]
        keys = {"Homework": "ctrl+2", "Tasks": "ctrl+4", "Events": "ctrl+3", "Calendar": "ctrl+1"}
        by_mouse = self.pictures(modes, lambda mode: self.window.click(Main.MODES[mode]))
        self.assertEqual(len(set(by_mouse)), len(modes))
        self.assertEqual(self.sample.shut_down(), 0)
        self.start_at_design_size()
        by_keys = self.pictures(modes, lambda mode: self.key(keys[mode]))
        self.assertEqual(by_keys, by_mouse)

    def pictures(self, modes, choose):
        """What the view shows in each of the modes, entered in this order."""
        shown = []
        for mode in modes:
            choose(mode)
            self.window.wait_for_mode(mode)
            shown.append(self.window.settled(Main.VIEW))
        return shown


class Size(WindowTest):
    def size(self):
        return self.desktop.geometry(self.window.id)[2:]

    def wait_for_size(self, size):
        wait_until(lambda: self.size() == size, f"the window is of size {size}")

    def test_stops_at_the_design_size_when_its_corner_is_dragged(self):
        self.desktop.run("xdotool", "windowsize", self.window.id, "900", "650")
        self.wait_for_size((900, 650))
        self.desktop.hold(self.window.id, (895, 652))  # the corner of the frame
        self.desktop.move_to(self.window.id, (880, 640))  # far enough to count as a drag
        self.desktop.move_to(self.window.id, (845, 612))
        self.wait_for_size((850, 610))
        self.desktop.move_to(self.window.id, (300, 200))
        self.wait_for_size((780, 575))
        self.desktop.let_go()
        self.window.finish_input()
        self.assertEqual(self.size(), (780, 575))

    def test_stops_at_the_design_size_when_another_is_asked_for(self):
        for asked, given in ((("900", "200"), (900, 575)), (("300", "650"), (780, 650)), (("1", "1"), (780, 575))):
            with self.subTest(asked):
                self.desktop.run("xdotool", "windowsize", self.window.id, *asked)
                self.wait_for_size(given)


class Steppers(WindowTest):
    def test_step_once_a_press_and_on_while_held(self):
        october = self.window.settled(Main.MONTH_NAME)
        self.window.click(Main.MONTH_UP)
        november = self.window.wait_for_change(Main.MONTH_NAME, october, "the month has stepped")
        self.desktop.hold(self.window.id, Main.MONTH_UP)
        seen = {november}

        def has_stepped_on():
            seen.add(self.window.look(Main.MONTH_NAME))
            return len(seen) >= 4

        wait_until(has_stepped_on, "the held button has stepped three times")
        self.desktop.let_go()
        after = self.window.settled(Main.MONTH_NAME)
        self.assertTrue(stays_false(lambda: self.window.look(Main.MONTH_NAME) != after, 1))

    def test_step_by_day(self):
        fourteenth = self.window.settled(Main.SMALL_CALENDAR)
        days_on = []
        for column in (4, 5, 6):  # the 15th to the 17th
            before = self.window.look(Main.SMALL_CALENDAR)
            self.window.click(small_day(2, column))
            days_on.append(self.window.wait_for_change(Main.SMALL_CALENDAR, before, "another day is selected"))
        self.window.click(small_day(2, 3))
        self.window.wait_for_picture(Main.SMALL_CALENDAR, fourteenth, "the 14th is selected again")
        self.window.click(Main.DAY_UP)  # on a slow machine it may be held long enough to step again
        wait_until(lambda: self.window.look(Main.SMALL_CALENDAR) in days_on, "the next day is selected")


class List(WindowTest):
    def setUp(self):
        super().setUp()
        self.key("ctrl+2")
        self.window.wait_for_mode("Homework")
        self.first = self.window.settled(Main.VIEW)

    def view(self):
        self.window.finish_input()
        return self.window.look(Main.VIEW)

    def turn_wheel(self, notches, place=Main.ROW):
        self.desktop.turn_wheel(*self.desktop.on_screen(self.window.id, place), notches)

    def row(self, number):
        """A place in the row of this number, counted from 0."""
        return Main.ROW[0], Main.ROW[1] + number * Main.ROW_HEIGHT

    def close_editor(self):
        dialog = wait_until(lambda: self.desktop.window(EDIT_ASSIGNMENT), "the editor is open")
        self.desktop.press_in(dialog, "Escape")
        wait_until(lambda: not self.desktop.window(EDIT_ASSIGNMENT), "the editor is closed")

    def test_wheel_stops_at_both_ends(self):
        self.turn_wheel(-3)
        self.assertEqual(self.view(), self.first)
        self.turn_wheel(1)
        self.window.wait_for_change(Main.VIEW, self.first, "the list has moved")
        self.turn_wheel(60)
        last = self.window.settled(Main.VIEW)
        self.turn_wheel(5)
        self.assertEqual(self.view(), last)
        self.turn_wheel(-1)  # what was turned beyond the end counts for nothing
        self.window.wait_for_change(Main.VIEW, last, "the list has moved back")
        self.turn_wheel(-65)
        self.window.wait_for_picture(Main.VIEW, self.first, "the list is at its start")
        self.turn_wheel(-3)
        self.assertEqual(self.view(), self.first)

    def test_wheel_counts_over_the_status_bar(self):
        self.turn_wheel(1, Main.CLOCK[:2])
        self.window.wait_for_change(Main.VIEW, self.first, "the list has moved")

    def test_row_opens_when_press_and_release_fall_on_it(self):
        self.window.click(self.row(0))
        self.close_editor()

    def test_row_opens_when_the_mouse_comes_back_to_it(self):
        self.desktop.hold(self.window.id, self.row(0))
        self.desktop.move_to(self.window.id, self.row(3))
        self.desktop.move_to(self.window.id, self.row(0))
        self.desktop.let_go()
        self.close_editor()

    def test_release_on_another_row_opens_nothing(self):
        for target in (self.row(1), self.row(-2), Main.MONTH_UP):  # a row, a title, outside of the list
            with self.subTest(target):
                self.desktop.hold(self.window.id, self.row(0))
                self.desktop.move_to(self.window.id, target)
                self.desktop.let_go()
                self.window.finish_input()
                self.assertIsNone(self.desktop.window(EDIT_ASSIGNMENT))

    def test_enter_opens_the_row_of_the_keyboard(self):
        self.key("Home", "Return")
        self.close_editor()


class Dialogs(WindowTest):
    def opened(self, title, other_than=None):
        """The window of this title, other than that one, once it has the keyboard."""
        def window():
            found = self.desktop.window(title)
            return found != other_than and self.desktop.active_window_name() == title and found

        return wait_until(window, f"{title} is open")

    def say_yes(self):
        self.key("Tab", "space")  # No comes first where something is given up

    def test_keys_reach_the_window_behind_a_question_and_an_editor(self):
        self.key("ctrl+t")
        self.opened(NEW_TASK)
        self.desktop.type("x")
        self.key("Escape")
        self.opened(QUESTION)
        self.say_yes()
        wait_until(lambda: not self.desktop.window(NEW_TASK), "the editor is closed")
        wait_until(lambda: self.desktop.active_window_name() == TITLE, "the main window has the keyboard")
        self.key("ctrl+2")
        self.window.wait_for_mode("Homework")

    def test_question_behind_a_question_opens_over_their_dialog(self):
        self.key("alt+e", "Up", "Return")  # the last item of the menu
        self.opened(CHOOSER)
        self.key("Tab", "Tab", "space")
        term = self.opened(EDIT_TERM)
        self.key("Tab", "Tab", "Tab", "Tab", "space")  # from Add Class to Delete
        first = self.opened(QUESTION)
        self.say_yes()
        second = self.opened(QUESTION, other_than=first)
        (x, y), (term_x, term_y) = self.middle(second), self.middle(term)
        self.assertLess(abs(x - term_x) + abs(y - term_y), 60)

    def middle(self, window):
        left, top, width, height = self.desktop.geometry(window)
        return left + width // 2, top + height // 2


class Midnight(WindowTest):
    date = "2026-10-14 23:59:00"

    def test_moves_today_at_the_next_refresh(self):
        before = self.window.settled(Main.SMALL_CALENDAR)
        clock = self.window.look(Main.CLOCK)
        self.sample.set_date("2026-10-15 00:00:01")
        self.window.wait_for_change(Main.CLOCK, clock, "the clock in the status bar has passed midnight")
        self.assertEqual(self.window.look(Main.SMALL_CALENDAR), before)
        self.key("ctrl+2")
        self.window.wait_for_mode("Homework")
        self.key("ctrl+1")
        self.window.wait_for_mode("Calendar")
        self.window.wait_for_change(Main.SMALL_CALENDAR, before, "today has moved")
        moved = self.pictures()
        self.assertEqual(self.sample.shut_down(), 0)
        self.start_at_design_size()  # on the 15th
        self.window.click(small_day(2, 3))  # the 14th, which the first one still has selected
        for area, picture in moved.items():
            self.window.wait_for_picture(area, picture, "all is shown as by a planner started after midnight")

    def pictures(self):
        return {area: self.window.settled(area) for area in (Main.SMALL_CALENDAR, Main.TOP, Main.VIEW)}


if __name__ == "__main__":
    unittest.main()
