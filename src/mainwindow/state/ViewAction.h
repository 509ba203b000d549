// What a click, a key or a press by a screen reader asks for: a value that a view gives, and that one
// procedure of flows/ acts on.
#pragma once

#include "mainwindow/state/Command.h"
#include "mainwindow/state/LargeCalendarLayout.h"
#include "mainwindow/state/Mode.h"
#include "platform/Clock.h"

#include <QPoint>

#include <optional>
#include <string>

enum class ViewActionKind {
    None,
    RunCommand,      // command
    RunPopupItem,    // words
    ChooseMode,      // mode
    ChooseFilter,    // the words that the filter menus show now
    ChooseStartDay,  // words: the full name of the day
    ChooseAutoStart, // words: one of StartModes
    StartOrPauseTimer,
    ResetTimer,
    TurnTimerSeconds,
    ExplainAlert,     // index, in the order of the buttons
    GoToDate,         // date
    OpenDayMenu,      // icon; date, which is gone to first
    OpenCalendarMenu, // date, which is gone to first
    OpenListMenu,     // that of the mode; halfHour in the schedule of a day
    OpenRow,          // row of the list
    ShowHalfHour,     // halfHour; row, the event row in it or 0
    OpenEvent,        // row, the event row; halfHour
    OpenHalfHour,     // halfHour
    OpenFromReminders // what the reminder window has left
};

struct ViewAction {
    ViewActionKind kind = ViewActionKind::None;
    Command command = Command::None;
    Mode mode = Mode::None;
    CalendarIcon icon{};
    int row = 0;                   // from 1
    int halfHour = -1;             // -1 for none
    std::size_t index = 0;         // from 0
    std::optional<Date> date{};    // none stays at the day
    std::optional<QPoint> point{}; // of the grid in pixels, where a menu opens; none opens beside the keys
    std::string words{};
    bool reveal = false; // the place is scrolled to, and told to screen readers
};
