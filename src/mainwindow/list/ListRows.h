// What the lists show in their rows: the same cells for the painting and for screen readers.
#pragma once

#include "mainwindow/list/ListColumns.h"
#include "platform/Clock.h"
#include "toolkit/grid/PaintedList.h"

#include <string_view>

// The number of rows that the selection of the list has left.
int RowsInList(ListKind kind);

// The row at the position in the list's rows, from 1. A bad text of its record raises the run-time error.
GridRow RowOfList(ListKind kind, int row);

// The same for each list.
GridRow HomeworkGridRow(int row);
GridRow StudyGridRow(int row);
GridRow TaskGridRow(int row);
GridRow EventGridRow(int row);
GridRow ReminderGridRow(int row);

// --- The cells that several lists have -----------------------------------------------------------

GridCell TextCell(std::string_view text);

// The text without the blanks at its ends.
GridCell TrimmedCell(std::string_view text);

// The text with a blank behind it, or what stands for an empty one.
GridCell NameCell(std::string_view text, std::string_view instead = " ");

// A clock length without its blanks.
GridCell ClockCell(std::string_view clock);

// The time of day in the stored form; nothing for a text that is no time.
GridCell TimeCell(std::string_view time);

// The date of a stored moment in the form "Medium Date".
GridCell DateCell(std::string_view date);
GridCell DateCell(Date date);

// The mark of a reminder, and that of a high priority, when the stored flag is true.
GridCell ReminderCell(std::string_view flag);
GridCell PriorityCell(std::string_view flag);
GridCell CheckCell(std::string_view flag);
