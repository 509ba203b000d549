// The eight pages through the templates that come with the program, for the tests of their bytes and of what
// a browser makes of them.
#pragma once

#include "export/CalendarPages.h"
#include "export/ListPages.h"

#include <array>
#include <filesystem>
#include <string>

inline const std::filesystem::path TemplateFolder =
    std::filesystem::path(PLANOVARIUM_SOURCE_DIR) / "drive/Planovarium";

inline constexpr std::array<ListPage, 5> ListPages{ListPage::Homework, ListPage::StudySessions,
                                                   ListPage::Tasks, ListPage::Reminders, ListPage::Events};
inline constexpr std::array<CalendarPage, 3> CalendarPages{CalendarPage::Homework, CalendarPage::Tasks,
                                                           CalendarPage::Events};

// The month of today with weeks that begin on Monday.
ExportedMonth MonthOfToday();

// Writes the eight pages of what the store holds into a new folder: the lists as they first show, the
// calendars of today's month.
void WritePages(const std::filesystem::path& folder);

// Reads the sample drive as it is laid out for 2026-11-16 into the store, and sets the clock to that day. The
// log of study sessions, which no file holds, gets two entries.
void ReadSampleDrive(const std::filesystem::path& laidOut);

// Fills the store with records of today's month: so many rows in each list, and so many items on one day of
// each of so many weeks.
void StoreRows(int rows);
void StoreFullDays(int weeks, int items);
