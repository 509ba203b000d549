"""Where things stand in the windows, in pixels from the left top corner of the window without its frame; below zero,
from its right or its bottom. The main window is at its design size of 780 by 575, each dialog at the size at which it
opens. A point is left and top, an area left, top, width and height."""


class Main:
    """The main window."""

    MENU_BAR = (0, 0, 170, 18)
    MODES = {"Calendar": (66, 38), "Homework": (178, 38), "Events": (283, 38), "Tasks": (372, 38)}  # their words
    MODE_WORDS = (0, 30, 420, 16)  # the row in which they stand
    MONTH_UP = (195, 78)
    MONTH_NAME = (30, 68, 154, 20)
    SMALL_CALENDAR = (8, 68, 198, 142)
    DAY_UP = (762, 77)
    TOP = (240, 66, 510, 24)  # the title and the day over the view
    VIEW = (217, 99, 553, 442)  # without the frame of the focus
    ROW = (450, 129)  # the first row of a list
    ROW_HEIGHT = 22
    CLOCK = (540, 554, 220, 18)
    NEW = (31, 254)  # of the buttons for new records the first
    CLASS_SCHEDULE = (106, 319)  # in Calendar mode
    ALERT = (7, 341, 200, 21)  # the first one, in Events mode
    ALERT_BUTTON = (100, 351)
    HALF_HOUR = (450, 300)  # one of those that the day's schedule shows first


def small_day(row, column):
    """A day in the small calendar, its rows and columns counted from 0."""
    return 23 + 28 * column, 113 + 18 * row


class MessageBox:
    YES = (-137, -23)
    NO_OF_THREE = (-137, -23)  # beside Yes and Cancel


class TermChooser:
    NEW_TERM = (112, 176)
    EDIT_CLASSES = (112, 125)


class Term:
    END_DATE_BUTTON = (624, 41)
    END_DATE_18 = (580, 141)  # the 18th of December 2009 in the month that opens from that button
    ADD_CLASS = (495, 142)
    EDIT_CLASS = (583, 142)
    CLASS_NAME = (263, 197)
    CREDITS = (569, 197)
    OK_CLASS = (395, 471)
    DELETE_CLASS = (583, 471)
    OK = (408, 517)


class Assignment:
    CLASSES = (138, 42)
    CLASS_ROW = (70, 65)  # in the list that opens under the box; so far aside that a click is no double click
    CLASS_ROW_HEIGHT = 22
    DUE_DATE_BUTTON = (499, 42)
    DUE_DATE_16 = (427, 143)  # the 16th of October 2009 in the month that opens from that button
    DESCRIPTION = (264, 137)
    ESTIMATE = (100, 185)
    DONE = (412, 185)
    SCORE = (67, 231)
    TOTAL = (194, 231)
    OK = (284, 453)


class Task:
    DESCRIPTION = (263, 41)
    DONE = (410, 141)
    OK = (283, 394)


class Event:
    DESCRIPTION = (262, 41)
    TYPE = (460, 88)
    STUDY_TIME = (310, 133)  # in the list that opens under that box
    DATE_BUTTON = (243, 88)
    DATE_16 = (175, 189)  # the 16th of October 2009 in the month that opens from that button
    CHANGE = (464, 244)
    OK = (284, 434)
    DELETE = (472, 434)


class Colors:
    OK = (-140, -25)


class Recurrence:
    DAILY = (25, 68)
    THURSDAY = (112, 111)
    OK = (280, 277)
