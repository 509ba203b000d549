// The pages of a month of homework, tasks or events: a template whose commands tell which week and which line
// of its days the lines behind them are for.
#pragma once

#include "export/CalendarTables.h"
#include "export/ListPages.h"

const PageNames& NamesOf(CalendarPage page);

// The lines of the page.
//
//   header  each "~" is the next of: title, day of the export, the seven weekdays; one a line
//   row W   the week W, from 0 to 5, of seven columns. A line with the day's number ends its column.
//   line L  the line L of that week, dropped where all its days have fewer. A line with "~" ends its column.
//   footer  lines as they stand, like those before the first command
//
// Lines of commands are not written. A row without a week and a line without a number change nothing. A bad
// text of a record raises the run-time error.
void AddCalendarPage(CalendarPage page, const ExportedMonth& month, std::string_view templateText,
                     const AddLine& add);
