// Records by the thousand as a student would write them, the same at each run.
#pragma once

#include <string>
#include <string_view>

// Fills the empty store with so many events: single ones, and one in four a series with exceptions, an end or
// both.
void AddSampleEvents(int count);

// Fills the empty store with so many assignments of one term.
void AddSampleAssignments(int count);

// The store's events as an iCalendar file, with the same dates, times, texts, series and alarms.
std::string EventsAsICalendar();

// Writes a file of the current folder, through to the device.
void WriteFile(const std::string& name, std::string_view bytes);
